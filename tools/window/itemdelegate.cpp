// SPDX-License-Identifier: MIT
#include "tools/window/itemdelegate.h"

#include "config/configviews.h"
#include "tools/knownkeys.h"

#include <QApplication>
#include <QCompleter>
#include <QLineEdit>
#include <QStyle>
#include <QTimer>
#include <QTreeWidget>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// What may be typed for an item: the groups, or the keys of its group with values to choose from.
QStringList proposals(const QTreeWidgetItem &item)
{
    QStringList texts;
    if (libconfig::isGroupItem(item)) {
        texts.append(tools::ProductGroup);
        for (const QString &group : tools::knownGroups())
            texts.append(group);
        return texts;
    }
    const QString group = item.parent() ? item.parent()->text(0) : QString();
    for (const Setting *const setting : tools::settingsOf(group)) {
        const QLatin1StringView word(setting->word);
        if (setting->kind == SettingKind::Switch)
            texts << libconfig::settingText(word, u"true"_s)
                  << libconfig::settingText(word, u"false"_s);
        else
            texts << libconfig::settingText(word, {});
    }
    return texts;
}

} // namespace

ItemDelegate::ItemDelegate(QTreeWidget *view)
    : QStyledItemDelegate(view)
    , view(view)
{
}

void ItemDelegate::setMarks(const QHash<const QTreeWidgetItem *, tools::Severity> &marks)
{
    marked = marks;
    view->viewport()->update();
}

QWidget *ItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                    const QModelIndex &index) const
{
    QTreeWidgetItem *const item = view->itemFromIndex(index);
    auto *const editor = new QLineEdit(parent);
    auto *const completer = new QCompleter(proposals(*item), editor);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    editor->setCompleter(completer);
    connect(editor, &QLineEdit::textChanged, this, [this, item](const QString &text) {
        if (typed)
            typed(item, text);
    });
    return editor;
}

void ItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *const line = qobject_cast<QLineEdit *>(editor);
    const QTreeWidgetItem *const item = view->itemFromIndex(index);
    const QSignalBlocker silence(line);
    const QString text = item->text(0);
    line->setText(text);
    const qsizetype equals = text.indexOf(" = "_L1);
    const bool hasKey = !libconfig::isGroupItem(*item) && equals > 0;
    const int begin = hasKey ? int(equals) + 3 : 0; // mostly the value changes
    auto *const soon = new QTimer(line);            // the view selects all before
    connect(soon, &QTimer::timeout, line, [line, begin, text, soon] {
        soon->stop();
        if (line->text() == text)
            line->setSelection(begin, int(text.size()));
    });
    soon->start(0);
}

void ItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *,
                                const QModelIndex &index) const
{
    if (entered)
        entered(view->itemFromIndex(index), qobject_cast<QLineEdit *>(editor)->text());
}

void ItemDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const QTreeWidgetItem *const item = view->itemFromIndex(index);
    const bool isFile = !index.parent().isValid();
    const auto mark = marked.constFind(item);
    const QStyle *const style = option->widget ? option->widget->style() : QApplication::style();
    option->features |= QStyleOptionViewItem::HasDecoration;
    if (mark != marked.constEnd())
        option->icon =
            style->standardIcon(*mark == tools::Severity::Error ? QStyle::SP_MessageBoxCritical
                                                                : QStyle::SP_MessageBoxWarning);
    else if (isFile || !libconfig::isGroupItem(*item))
        option->icon = style->standardIcon(QStyle::SP_FileIcon);
    else
        option->icon = style->standardIcon(QStyle::SP_DirIcon);
}

} // namespace configtool
