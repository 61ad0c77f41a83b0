// SPDX-License-Identifier: MIT
#pragma once

#include "tools/command.h"
#include "tools/preview/paper.h"

#include <QCoreApplication>

#include <memory>

namespace configtool {
struct Source;
}

namespace tools {

/// What needs the desktop's libraries: only the second program has it, which the companion starts
/// when something of it is wanted.
struct Desktop
{
    /// The window in which a configuration is edited; answers an exit status.
    int (*edit)(const Call &call, const configtool::Source &source);
    /// An application object that draws without a display, and minds no words but the program's.
    std::unique_ptr<QCoreApplication> (*pictureApplication)(char **argv);
    /// Writes the file, which is replaced when the new one is complete. Answers why it could not be
    /// written, and an empty text when it was.
    QString (*writePicture)(const std::vector<preview::Sheet> &sheets,
                            const preview::PictureOptions &options);
};

/// Runs the companion program's commands; answers the exit status. `desktop` is null in the program
/// that loads no desktop library.
int runCompanion(int argc, char **argv, const Desktop *desktop);

/// The folder of the companion program, also while the second program runs.
QString programFolder();
/// The folder of the labels' translations, as installed or built; empty where there is none.
QString translationsFolder();

/// Runs the second program, with all words of this one, in the place of this process. Answers only
/// where it cannot be started: Trouble, which is told.
int startDesktop(const Call &call);

} // namespace tools
