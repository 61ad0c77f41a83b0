// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

#include <gtest/gtest.h>

#include <memory>

/// An application without a display for as long as the tests of a program run that includes this.
class GuiEnvironment : public testing::Environment
{
public:
    void SetUp() override
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application = std::make_unique<QApplication>(argc, argv);
    }
    void TearDown() override { application.reset(); }

private:
    int argc = 1;
    char name[5] = "test";
    char *argv[2] = {name, nullptr};
    std::unique_ptr<QApplication> application;
};

inline const auto *const guiEnvironment = testing::AddGlobalTestEnvironment(new GuiEnvironment);
