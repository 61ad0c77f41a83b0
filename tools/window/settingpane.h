// SPDX-License-Identifier: MIT
#pragma once

#include "render/settings.h"

#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

#include <functional>
#include <utility>
#include <vector>

class QPushButton;

namespace configtool {

/// What a setting is for, and an editor that fits its value.
class SettingPane : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(SettingPane)

public:
    SettingPane();

    /// Shows a setting of the dotted key; a null one is a key that nothing reads.
    void show(const QString &key, const Setting *setting, const QString &value);
    /// Shows a group: nothing to edit.
    void showGroup(const QString &key);
    /// Gives the editor the keyboard.
    void focusEditor();

    /// Told of a value that the person gives, as they type it.
    std::function<void(const QString &value)> edited = [](const QString &) {};
    /// Told that all documents are to have the value.
    std::function<void()> spread = [] {};
    /// The values of the setting of the labels' language to choose from.
    std::function<QStringList()> translations = [] { return QStringList(); };
    /// Whether the setting is that of the labels' language.
    static bool isLanguage(const Setting *setting);

private:
    void clear(const QString &key, const QString &text);
    void tell(const QString &value);
    QWidget *newEditor(const QString &value);
    QWidget *newSwitch(const QString &value);
    QWidget *newNumber(const QString &value);
    QWidget *newLine(const QString &value);
    QWidget *newChoice(const QString &value, const QStringList &choices);
    QString rangeText() const;

    QVBoxLayout *const layout;
    QLabel *const title;
    QLabel *const effect;
    QWidget *editor = nullptr;
    QPushButton *const everywhere;
    QString shownKey;
    QString shownValue;
    const Setting *setting = nullptr;
};

} // namespace configtool
