// SPDX-License-Identifier: MIT
#pragma once

#include "tools/window/configtree.h"

#include <QLabel>
#include <QVBoxLayout>

class QPushButton;

namespace configtool {

/// What the current setting of a tree is for, and an editor that fits its value.
class SettingPane : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(SettingPane)

public:
    /// The tree is borrowed.
    explicit SettingPane(ConfigTree &tree);

    /// Shows the current setting, or that there is nothing to edit.
    void showCurrent();
    /// Gives the editor the keyboard.
    void focusEditor();
    /// Turns a setting from true to false or the other way.
    void toggleSwitch();

private:
    void edit(const QString &text);
    QString labelsFolder() const;
    QStringList languages() const;
    QWidget *newEditor(const Setting *setting, const QString &value);
    QWidget *newLine(bool isFolder, const QString &value);
    QWidget *newChoice(bool isLanguage, QStringList choices, const QString &value);

    ConfigTree &tree;
    QVBoxLayout *const layout;
    QLabel *const title;
    QLabel *const effect;
    QWidget *editor = nullptr;
    QPushButton *const everywhere;
    QString shown; ///< the setting's key and its value
};

} // namespace configtool
