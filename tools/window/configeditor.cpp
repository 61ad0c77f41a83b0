// SPDX-License-Identifier: MIT
#include "tools/window/configeditor.h"

#include "config/configviews.h"
#include "tools/config/losses.h"
#include "tools/config/settingcheck.h"
#include "tools/knownkeys.h"
#include "tools/window/itemdelegate.h"
#include "tools/window/treechanges.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

constexpr int SubjectRole = Qt::UserRole; // of a finding's row: the entry it is about

QTreeWidgetItem *topMost(QTreeWidgetItem *item, const QTreeWidgetItem *file)
{
    QTreeWidgetItem *top = item;
    for (; item && item != file; item = item->parent()) {
        if (item->isSelected())
            top = item;
    }
    return top;
}

} // namespace

void ConfigEditor::addSetting()
{
    QTreeWidgetItem *const group = currentGroup();
    QTreeWidgetItem *const current = tree->currentItem();
    int index = 0; // behind the current setting, or the last one; groups come after settings
    if (current && current->parent() == group && !libconfig::isGroupItem(*current)) {
        index = group->indexOfChild(current) + 1;
    } else {
        while (index < group->childCount() && !libconfig::isGroupItem(*group->child(index)))
            ++index;
    }
    addAndEdit(u"add setting"_s,
               std::unique_ptr<QTreeWidgetItem>(libconfig::newSettingItem({}, {})), index);
}

void ConfigEditor::addGroup()
{
    addAndEdit(u"add group"_s, std::unique_ptr<QTreeWidgetItem>(libconfig::newGroupItem({})),
               currentGroup()->childCount());
}

void ConfigEditor::addAndEdit(const QString &what, std::unique_ptr<QTreeWidgetItem> item, int index)
{
    tree->setFocus(); // what is being edited is entered
    searchLine->clear();
    QTreeWidgetItem *const added = item.get();
    undoStack.beginMacro(what);
    isAdding = true;
    isEntered = false;
    undoStack.push(new PresenceChange(what, std::move(item), currentGroup(), index,
                                      [this](QTreeWidgetItem *shown) { showItem(shown); }));
    tree->editItem(added);
}

/// A text has been entered for an item.
void ConfigEditor::enter(QTreeWidgetItem *item, const QString &text)
{
    typing = {};
    isEntered = true;
    if (text != item->text(0))
        undoStack.push(
            new TextChange(item, text, [this](QTreeWidgetItem *shown) { showItem(shown); }));
}

/// The line in which an item was edited has closed; an item that was to be added and got no text
/// goes again.
void ConfigEditor::endEditing()
{
    typing = {};
    treeChanged();
    if (!isAdding)
        return;
    isAdding = false;
    undoStack.endMacro();
    if (!isEntered)
        undoStack.undo();
}

void ConfigEditor::removeSelected()
{
    tree->setFocus();
    QList<QTreeWidgetItem *> chosen; // without what lies below another chosen one
    for (QTreeWidgetItem *const item : tree->selectedItems()) {
        if (item != fileItem() && topMost(item, fileItem()) == item)
            chosen.append(item);
    }
    if (chosen.isEmpty())
        return;
    tree->clearSelection(); // the view would part it again for every item that goes
    undoStack.beginMacro(u"remove"_s);
    // From the last one, so that none moves those behind it; to show each would take minutes.
    ShowItem show = [this](QTreeWidgetItem *shown) { showItem(shown); };
    std::ranges::reverse(chosen);
    for (QTreeWidgetItem *const item : std::as_const(chosen))
        undoStack.push(new PresenceChange({}, item, std::exchange(show, {})));
    undoStack.endMacro();
}

void ConfigEditor::toggleSwitch()
{
    QTreeWidgetItem *const item = tree->currentItem();
    if (!item || !item->parent() || libconfig::isGroupItem(*item))
        return;
    const auto [key, value] = libconfig::settingOf(item->text(0));
    if (const Setting *const setting = tools::findSetting(item->parent()->text(0), key);
        setting && setting->kind == SettingKind::Switch)
        enter(item, libconfig::settingText(key, value == "true"_L1 ? u"false"_s : u"true"_s));
}

QTreeWidgetItem *ConfigEditor::fileItem() const
{
    return tree->topLevelItem(0);
}

/// The group that new items join.
QTreeWidgetItem *ConfigEditor::currentGroup() const
{
    QTreeWidgetItem *const current = tree->currentItem();
    if (!current)
        return fileItem();
    return libconfig::isGroupItem(*current) ? current : current->parent();
}

void ConfigEditor::showItem(QTreeWidgetItem *item)
{
    for (QTreeWidgetItem *above = item->parent(); above; above = above->parent())
        above->setExpanded(true);
    tree->setCurrentItem(item);
    tree->scrollToItem(item);
}

/// The tree is not what the findings are about any more.
void ConfigEditor::treeChanged()
{
    listed = {};
    pause.start();
    updateHint();
}

void ConfigEditor::listFindings()
{
    pause.stop();
    listed = outlineOf(*tree, source.format, typing);
    std::vector<Finding> found = checkSettings(listed.outline);
    for (Finding &loss : lossesInFormat(listed.outline, source.format)) {
        if (loss.code == "lost-group"_L1 || loss.code == "lost-duplicate"_L1)
            continue; // found above
        loss.text.prepend(u"saving loses "_s);
        found.push_back(std::move(loss));
    }
    QHash<const QTreeWidgetItem *, tools::Severity> marks;
    for (const Finding &finding : found) {
        tools::Severity &mark = marks[listed.items[size_t(finding.subject)]];
        mark = std::max(mark, finding.severity);
    }
    delegate->setMarks(marks);

    const size_t count = fileFaults.size() + found.size();
    const QSignalBlocker silence(findings);
    findings->clear();
    const auto list = [this](const QString &text, const Finding &finding) {
        const auto icon = finding.severity == tools::Severity::Error ? QStyle::SP_MessageBoxCritical
                                                                     : QStyle::SP_MessageBoxWarning;
        auto *const row = new QListWidgetItem(style()->standardIcon(icon), text, findings);
        row->setData(SubjectRole, finding.subject);
    };
    for (const Finding &fault : fileFaults)
        list("In the file, line "_L1 + QString::number(fault.at.line) + ": "_L1 + fault.text,
             fault);
    for (const Finding &finding : tools::abridged(std::move(found)))
        list(finding.text, finding);
    findingsTitle->setText(count == 0   ? u"Nothing wrong"_s
                           : count == 1 ? u"1 finding"_s
                                        : QString::number(count) + " findings"_L1);
    applySearch();
}

/// Goes to the item that a finding is about.
void ConfigEditor::showFinding(int row)
{
    if (listed.items.empty())
        listFindings();
    const QListWidgetItem *const finding = findings->item(row);
    const qsizetype subject = finding ? finding->data(SubjectRole).toLongLong() : -1;
    if (subject >= 0 && subject < qsizetype(listed.items.size()))
        showItem(listed.items[size_t(subject)]);
}

void ConfigEditor::search(const QString &text)
{
    searchLine->setText(text);
    if (listed.items.empty())
        listFindings();
    else
        applySearch();
}

void ConfigEditor::applySearch()
{
    const QString text = searchLine->text();
    const std::vector<bool> shown = matching(listed.outline, text);
    for (size_t i = 0; i < shown.size(); ++i) {
        QTreeWidgetItem *const item = listed.items[i];
        if (item->isHidden() == shown[i])
            item->setHidden(!shown[i]);
        if (shown[i] && !text.isEmpty() && item->childCount() > 0)
            item->setExpanded(true);
    }
}

} // namespace configtool
