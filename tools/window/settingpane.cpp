// SPDX-License-Identifier: MIT
#include "tools/window/settingpane.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// The language's own name for a translation's file, with the file.
QString languageName(const QString &file)
{
    if (file.isEmpty())
        return QLocale::languageToString(QLocale::English);
    const QLocale locale(QFileInfo(file).baseName().section(u'_', 1));
    return locale.language() == QLocale::C ? file
                                           : locale.nativeLanguageName() + " ("_L1 + file + u')';
}

} // namespace

bool SettingPane::isLanguage(const Setting *setting)
{
    return setting && "language"_L1 == setting->group && "file"_L1 == setting->word;
}

SettingPane::SettingPane()
    : layout(new QVBoxLayout(this))
    , title(new QLabel)
    , effect(new QLabel)
    , everywhere(new QPushButton(tr("Set Everywhere")))
{
    effect->setWordWrap(true);
    title->setTextInteractionFlags(Qt::TextSelectableByMouse);
    everywhere->setToolTip(tr("Gives every document that has this setting the same value."));
    connect(everywhere, &QPushButton::clicked, this, [this] { spread(); });
    layout->addWidget(title);
    layout->addWidget(effect);
    layout->addWidget(everywhere, 0, Qt::AlignLeft);
}

void SettingPane::show(const QString &key, const Setting *shown, const QString &value)
{
    if (key == shownKey && shown == setting && editor && value == shownValue)
        return;
    const bool hasFocus = editor && editor->hasFocus();
    if (shown)
        clear(key, Setting::tr(shown->effect));
    else
        clear(key, tr("Nothing reads this key."));
    setting = shown;
    shownValue = value;
    if (shown)
        effect->setText(effect->text() + u' ' + rangeText());
    editor = newEditor(value);
    title->setBuddy(editor);
    layout->insertWidget(2, editor);
    if (hasFocus)
        editor->setFocus();
    everywhere->setVisible(shown && shown->group.isEmpty());
}

void SettingPane::showGroup(const QString &key) { clear(key, {}); }

void SettingPane::clear(const QString &key, const QString &text)
{
    shownKey = key;
    setting = nullptr;
    title->setText(u"<b>"_s + key.toHtmlEscaped() + u"</b>"_s);
    effect->setText(text);
    everywhere->hide();
    if (editor) { // which may be telling of its value just now
        editor->hide();
        editor->deleteLater();
    }
    editor = nullptr;
}

void SettingPane::focusEditor()
{
    if (editor)
        editor->setFocus();
}

void SettingPane::tell(const QString &value)
{
    shownValue = value; // which is not to be shown anew while it is typed
    edited(value);
}

QString SettingPane::rangeText() const
{
    QString text;
    if (setting->kind == SettingKind::Number)
        text = tr("0 to %1.").arg(setting->most) + u' ';
    if (!setting->byDefault.isEmpty())
        text += tr("Unless set: %1.").arg(setting->byDefault);
    return text;
}

QWidget *SettingPane::newEditor(const QString &value)
{
    if (isLanguage(setting))
        return newChoice(value, translations());
    switch (setting ? setting->kind : SettingKind::Text) {
    case SettingKind::Switch:
        return newSwitch(value);
    case SettingKind::Number:
        return newNumber(value);
    case SettingKind::LogLevel:
        return newChoice(value, {u"DEBUG"_s, u"INFO"_s, u"WARNING"_s, u"ERROR"_s, u"FATAL"_s});
    case SettingKind::LogType:
        return newChoice(value, {u"APPEND"_s, u"OVERWRITE"_s});
    case SettingKind::Text:
    case SettingKind::Folder:
    case SettingKind::FileName:
        break;
    }
    return newLine(value);
}

QWidget *SettingPane::newSwitch(const QString &value)
{
    auto *const box = new QCheckBox(tr("&Value: on"));
    box->setChecked(value == "true"_L1);
    connect(box, &QCheckBox::toggled, this, [this](bool on) { tell(on ? u"true"_s : u"false"_s); });
    return box;
}

QWidget *SettingPane::newNumber(const QString &value)
{
    auto *const box = new QSpinBox;
    box->setRange(qMin(value.toInt(), 0), setting->most);
    box->setValue(value.toInt());
    connect(box, &QSpinBox::valueChanged, this,
            [this](int number) { tell(QString::number(number)); });
    return box;
}

QWidget *SettingPane::newLine(const QString &value)
{
    auto *const line = new QLineEdit(value);
    connect(line, &QLineEdit::textEdited, this, &SettingPane::tell);
    if (!setting || setting->kind != SettingKind::Folder)
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
        tell(line->text());
    });
    return line;
}

QWidget *SettingPane::newChoice(const QString &value, const QStringList &choices)
{
    auto *const box = new QComboBox;
    QStringList values = choices;
    if (!values.contains(value, Qt::CaseInsensitive))
        values.prepend(value);
    for (const QString &choice : std::as_const(values)) {
        const bool isSystem = choice == "/"_L1;
        box->addItem(isSystem              ? tr("as the system (/)")
                     : isLanguage(setting) ? languageName(choice)
                                           : choice,
                     choice);
    }
    box->setCurrentIndex(box->findData(value, Qt::UserRole, Qt::MatchFixedString));
    connect(box, &QComboBox::activated, this, [this, box] { tell(box->currentData().toString()); });
    return box;
}

} // namespace configtool
