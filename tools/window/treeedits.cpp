// SPDX-License-Identifier: MIT
#include "tools/window/configtree.h"

#include "config/configviews.h"
#include "tools/knownkeys.h"

#include <algorithm>
#include <utility>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// Another text for an item, which `shows` shows, unless it is null.
class TextChange : public QUndoCommand
{
public:
    TextChange(ConfigTree *shows, QTreeWidgetItem *item, const QString &text, int session = 0)
        : shows(shows)
        , item(item)
        , other(text)
        , session(session)
    {
    }
    void redo() override { exchange(); }
    void undo() override { exchange(); }
    int id() const override { return session > 0 ? 1 : -1; }
    bool mergeWith(const QUndoCommand *command) override
    {
        const auto *const later = dynamic_cast<const TextChange *>(command);
        return later && later->item == item && later->session == session;
    }

private:
    void exchange()
    {
        const QString present = item->text(0);
        item->setText(0, std::exchange(other, present));
        if (shows)
            shows->showItem(item);
    }

    ConfigTree *const shows;
    QTreeWidgetItem *const item;
    QString other; // the text that the item does not have now
    const int session;
};

/// An item that joins the tree or leaves it; the change owns it while it is outside.
class PresenceChange : public QUndoCommand
{
public:
    /// Adds `item`, or removes it where it stands in the tree. One that `isAdded` has joined it
    /// already.
    PresenceChange(ConfigTree *shows, QTreeWidgetItem *item, QTreeWidgetItem *parent, int index,
                   bool isAdded = false)
        : shows(shows)
        , item(item)
        , outside(item->parent() ? nullptr : item)
        , parent(parent)
        , index(index)
        , isDone(isAdded)
    {
    }
    void redo() override
    {
        if (!std::exchange(isDone, false))
            exchange();
    }
    void undo() override { exchange(); }

private:
    void exchange()
    {
        if (outside) {
            parent->insertChild(index, outside.release());
            if (shows)
                shows->showItem(item);
        } else {
            outside.reset(parent->takeChild(index));
        }
    }

    ConfigTree *const shows;
    QTreeWidgetItem *const item;
    std::unique_ptr<QTreeWidgetItem> outside; // `item`, while the tree does not have it
    QTreeWidgetItem *const parent;
    const int index;
    bool isDone;
};

} // namespace

/// The group that new items join.
QTreeWidgetItem *ConfigTree::currentGroup() const
{
    QTreeWidgetItem *const current = currentItem();
    if (!current)
        return fileItem();
    return libconfig::isGroupItem(*current) ? current : current->parent();
}

void ConfigTree::addSetting()
{
    finishTyping();
    const QTreeWidgetItem *const group = currentGroup();
    QTreeWidgetItem *const current = currentItem();
    int index = 0; // behind the current setting, or the last one; groups come after settings
    if (current && current->parent() == group && !libconfig::isGroupItem(*current)) {
        index = group->indexOfChild(current) + 1;
    } else {
        while (index < group->childCount() && !libconfig::isGroupItem(*group->child(index)))
            ++index;
    }
    addAndEdit(libconfig::newSettingItem({}, {}), index);
}

void ConfigTree::addGroup()
{
    finishTyping();
    addAndEdit(libconfig::newGroupItem({}), currentGroup()->childCount());
}

void ConfigTree::addAndEdit(QTreeWidgetItem *item, int index)
{
    currentGroup()->insertChild(index, item);
    showItem(item);
    editItem(item);
    isNew = typed == item;
    if (!isNew)
        delete item;
}

/// The text that has been typed is entered; a new item without one goes again.
void ConfigTree::commitData(QWidget *)
{
    if (!typed || (isNew && typed->text(0) == before))
        return;
    QTreeWidgetItem *const item = std::exchange(typed, nullptr);
    const QString text = item->text(0);
    if (std::exchange(isNew, false)) {
        QTreeWidgetItem *const parent = item->parent();
        changes.push(new PresenceChange(this, item, parent, parent->indexOfChild(item), true));
    } else if (text != before) {
        item->setText(0, before);
        changes.push(new TextChange(this, item, text));
    }
}

void ConfigTree::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    QTreeWidgetItem *const item = std::exchange(typed, nullptr);
    const bool goes = std::exchange(isNew, false);
    if (item && !goes)
        item->setText(0, before);
    QTreeWidget::closeEditor(editor, hint);
    if (item && goes)
        delete item;
}

void ConfigTree::finishTyping()
{
    setFocus();
    QWidget *const line = typed ? indexWidget(indexFromItem(typed)) : nullptr;
    if (!line)
        return; // it has lost the focus by that
    commitData(line);
    closeEditor(line, QAbstractItemDelegate::NoHint);
}

void ConfigTree::removeSelected()
{
    finishTyping();
    QList<QTreeWidgetItem *> chosen = selectedItems();
    chosen.removeIf([this](const QTreeWidgetItem *item) { // it goes with another
        const QTreeWidgetItem *above = item->parent();
        while (above && !above->isSelected())
            above = above->parent();
        return item == fileItem() || above;
    });
    if (chosen.isEmpty())
        return;
    clearSelection(); // the view would part it again for every item that goes
    changes.beginMacro({});
    std::ranges::reverse(chosen); // so that none moves those behind it
    ConfigTree *shows = this;     // of many, to show each would take minutes
    for (QTreeWidgetItem *const item : std::as_const(chosen))
        changes.push(new PresenceChange(std::exchange(shows, nullptr), item, item->parent(),
                                        item->parent()->indexOfChild(item)));
    changes.endMacro();
}

void ConfigTree::setValue(QTreeWidgetItem *item, const QString &value, int session)
{
    const auto [key, present] = libconfig::settingOf(item->text(0));
    if (value != present)
        changes.push(new TextChange(this, item, libconfig::settingText(key, value), session));
}

void ConfigTree::give(QTreeWidgetItem *group, const QString &key, const QString &value)
{
    QTreeWidgetItem *const present = settingIn(*group, key);
    if (!present)
        changes.push(new PresenceChange(nullptr, libconfig::newSettingItem(key, value), group, 0));
    else if (libconfig::settingOf(present->text(0)).second != value)
        changes.push(new TextChange(nullptr, present, libconfig::settingText(key, value)));
}

void ConfigTree::setEverywhere()
{
    QTreeWidgetItem *const item = currentItem();
    const Setting *const setting = settingOf(item);
    if (!setting || !setting->group.isEmpty())
        return;
    const auto [key, value] = libconfig::settingOf(item->text(0));
    const QTreeWidgetItem *const product = item->parent()->parent();
    changes.beginMacro({});
    for (int i = 0; i < product->childCount(); ++i) {
        QTreeWidgetItem *const group = product->child(i);
        if (!libconfig::isGroupItem(*group) || !tools::isDocumentGroup(group->text(0))
            || !tools::findSetting(group->text(0), key))
            continue;
        give(group, key, value);
    }
    changes.endMacro();
}

void ConfigTree::toggleSwitch()
{
    QTreeWidgetItem *const item = currentItem();
    const Setting *const setting = settingOf(item);
    if (setting && setting->kind == SettingKind::Switch)
        setValue(item,
                 libconfig::settingOf(item->text(0)).second == "true"_L1 ? u"false"_s : u"true"_s);
}

} // namespace configtool
