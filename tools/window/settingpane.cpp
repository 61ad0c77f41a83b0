// SPDX-License-Identifier: MIT
#include "tools/window/settingpane.h"

#include "config/configviews.h"
#include "tools/command.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// What a choice is called: of translations' files the language's own name for itself, too.
QString titleOf(const QString &choice, bool isLanguage)
{
    if (choice == "/"_L1)
        return SettingPane::tr("as the system (/)");
    if (!isLanguage)
        return choice;
    if (choice.isEmpty())
        return QLocale::languageToString(QLocale::English);
    const QLocale locale(QFileInfo(choice).baseName().section(u'_', 1));
    return locale.language() == QLocale::C ? choice
                                           : locale.nativeLanguageName() + " ("_L1 + choice + u')';
}

bool isLanguage(const Setting *setting)
{
    return setting && "language"_L1 == setting->group && "file"_L1 == setting->word;
}

QString describe(const Setting &setting)
{
    QString text = Setting::tr(setting.effect) + u' ';
    if (setting.kind == SettingKind::Number)
        text += SettingPane::tr("0 to %1.").arg(setting.most) + u' ';
    if (!setting.byDefault.isEmpty())
        text += SettingPane::tr("Unless set: %1.").arg(setting.byDefault);
    return text;
}

} // namespace

SettingPane::SettingPane(ConfigTree &tree)
    : tree(tree)
    , layout(new QVBoxLayout(this))
    , title(new QLabel)
    , effect(new QLabel)
    , everywhere(new QPushButton(tr("Set Everywhere")))
{
    effect->setWordWrap(true);
    title->setTextInteractionFlags(Qt::TextSelectableByMouse);
    everywhere->setToolTip(tr("Gives every document that has this setting the same value."));
    connect(everywhere, &QPushButton::clicked, &tree, &ConfigTree::setEverywhere);
    layout->addWidget(title);
    layout->addWidget(effect);
    layout->addWidget(everywhere, 0, Qt::AlignLeft);
}

void SettingPane::showCurrent()
{
    const QTreeWidgetItem *const item = tree.currentItem();
    const bool isGroup = !item || libconfig::isGroupItem(*item);
    const QString key = item ? tree.keyOf(item) : QString();
    const QString value = isGroup ? QString() : libconfig::settingOf(item->text(0)).second;
    if (const QString text = isGroup ? key : libconfig::settingText(key, value);
        text == std::exchange(shown, text))
        return;
    const Setting *const setting = tree.settingOf(item);
    title->setText(u"<b>"_s + key.toHtmlEscaped() + u"</b>"_s);
    effect->setText(isGroup   ? QString()
                    : setting ? describe(*setting)
                              : tr("Nothing reads this key."));
    everywhere->setVisible(setting && setting->group.isEmpty());
    const bool hasFocus = editor && editor->hasFocus();
    if (editor) { // which may be telling of its value just now
        editor->hide();
        editor->deleteLater();
    }
    editor = isGroup ? nullptr : newEditor(setting, tools::shownValue(setting, value));
    if (!editor)
        return;
    title->setBuddy(editor);
    layout->insertWidget(2, editor);
    if (hasFocus)
        editor->setFocus();
}

void SettingPane::focusEditor()
{
    if (editor)
        editor->setFocus();
}

void SettingPane::toggleSwitch()
{
    if (auto *const box = qobject_cast<QCheckBox *>(editor))
        box->toggle();
}

/// Gives the current setting the value that the person gives it.
void SettingPane::edit(const QString &text)
{
    QTreeWidgetItem *const item = tree.currentItem();
    const Setting *const setting = tree.settingOf(item);
    const QString value = tools::storedValue(setting, text);
    shown = libconfig::settingText(tree.keyOf(item), value); // in the editor, as it is typed
    if (isLanguage(setting))
        tree.setValues({{item->parent(), u"basedir"_s,
                         value.isEmpty() ? QString() : tools::storedValue(setting, labelsFolder())},
                        {item->parent(), u"file"_s, value}});
    else
        tree.setValue(item, value);
}

/// The folder of the labels' translations: that of the settings, or the suite's own.
QString SettingPane::labelsFolder() const
{
    const QTreeWidgetItem *const item =
        ConfigTree::childOf(tree.currentItem()->parent(), false, u"basedir"_s);
    const QString folder =
        item ? tools::shownValue(tree.settingOf(item), libconfig::settingOf(item->text(0)).second)
             : QString();
    const bool isUsed = !folder.isEmpty() && !QDir(folder, u"*.qm"_s).isEmpty();
    return isUsed ? folder : tools::translationsFolder();
}

QStringList SettingPane::languages() const
{
    const QString folder = labelsFolder();
    QStringList values{QString(), u"/"_s};
    for (const QString &file : QDir(folder).entryList({u"*.qm"_s}))
        values.append((folder.endsWith(u'/') ? u""_s : u"/"_s) + file.chopped(3));
    return values;
}

QWidget *SettingPane::newEditor(const Setting *setting, const QString &value)
{
    const SettingKind kind = setting ? setting->kind : SettingKind::Text;
    if (const QStringList choices = isLanguage(setting) ? languages() : tools::wordsOf(kind);
        !choices.isEmpty())
        return newChoice(isLanguage(setting), choices, value);
    if (kind == SettingKind::Number) {
        auto *const box = new QSpinBox;
        box->setRange(qMin(value.toInt(), 0), setting->most);
        box->setValue(value.toInt());
        connect(box, &QSpinBox::valueChanged, this,
                [this](int number) { edit(QString::number(number)); });
        return box;
    }
    if (kind == SettingKind::Switch) {
        auto *const box = new QCheckBox(tr("&Value: on"));
        box->setChecked(value == "true"_L1);
        connect(box, &QCheckBox::toggled, this,
                [this](bool on) { edit(on ? u"true"_s : u"false"_s); });
        return box;
    }
    return newLine(kind == SettingKind::Folder, value);
}

QWidget *SettingPane::newLine(bool isFolder, const QString &value)
{
    auto *const line = new QLineEdit(value);
    connect(line, &QLineEdit::textEdited, this, &SettingPane::edit);
    if (!isFolder)
        return line;
    QAction *const choose =
        line->addAction(style()->standardIcon(QStyle::SP_DirOpenIcon), QLineEdit::TrailingPosition);
    choose->setShortcut(Qt::Key_F4);
    choose->setToolTip(tr("Choose a folder (F4)"));
    connect(choose, &QAction::triggered, this, [this, line] {
        const QString folder =
            QFileDialog::getExistingDirectory(this, tr("Choose a folder"), line->text());
        if (folder.isEmpty())
            return;
        line->setText(folder + u'/');
        edit(line->text());
    });
    return line;
}

QWidget *SettingPane::newChoice(bool isLanguage, QStringList choices, const QString &value)
{
    auto *const box = new QComboBox;
    if (!choices.contains(value, Qt::CaseInsensitive))
        choices.prepend(value);
    for (const QString &choice : std::as_const(choices))
        box->addItem(titleOf(choice, isLanguage), choice);
    box->setCurrentIndex(box->findData(value, Qt::UserRole, Qt::MatchFixedString));
    connect(box, &QComboBox::activated, this, [this, box] { edit(box->currentData().toString()); });
    return box;
}

} // namespace configtool
