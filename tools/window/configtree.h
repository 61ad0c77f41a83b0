// SPDX-License-Identifier: MIT
#pragma once

#include "render/settings.h"
#include "tools/config/outline.h"

#include <QTreeWidget>
#include <QUndoStack>

#include <functional>
#include <memory>

namespace configtool {

/// The outline of the tree, and the item of each of its entries.
struct TreeOutline
{
    Outline outline;
    std::vector<QTreeWidgetItem *> items; ///< borrowed from the tree
};

/// The tree of a configuration, in which every change can be undone. An item's text is what is
/// being typed for it, too, and becomes its old one again where that is not entered.
class ConfigTree : public QTreeWidget
{
public:
    ConfigTree();

    /// Shows another file; what was done before cannot be undone any more.
    void take(std::unique_ptr<QTreeWidgetItem> file);
    QTreeWidgetItem *fileItem() const { return topLevelItem(0); }
    /// The outline as it would be saved in "cfg" or "xml".
    TreeOutline outlineIn(const QString &format) const;
    /// The setting that the item is; null for a group, and for a key that nothing reads.
    const Setting *settingOf(const QTreeWidgetItem *item) const;
    /// The first setting of the name in a group; null where there is none.
    static QTreeWidgetItem *settingIn(const QTreeWidgetItem &group, const QString &key);
    /// The first group `zentaro.NAME`; null where there is none.
    QTreeWidgetItem *groupOf(const QString &name) const;

    /// Enters what is being typed; the other edits do so first.
    void finishTyping();
    /// Adds a setting or a group to the current group, and begins to type its text.
    void addSetting();
    void addGroup();
    void removeSelected();
    /// Gives a setting another value. Changes of one `session` other than 0 are undone as one.
    void setValue(QTreeWidgetItem *item, const QString &value, int session = 0);
    /// Gives a group's setting a value, and the group the setting where it has none; shows neither.
    void give(QTreeWidgetItem *group, const QString &key, const QString &value);
    /// Gives the current setting's value to every document of the file, and the setting to those
    /// that miss it.
    void setEverywhere();
    /// Turns the current setting from true to false or the other way.
    void toggleSwitch();

    /// Makes the item the current one, and visible.
    void showItem(QTreeWidgetItem *item);
    /// Shows only the items whose dotted key contains the text, in any letter case, with everything
    /// below them and the groups above them; all for an empty text.
    void showMatching(const TreeOutline &outline, const QString &text);
    /// Marks what has something wrong with it.
    void mark(const TreeOutline &outline, const std::vector<Finding> &findings);
    /// Shades these items, and no others.
    void shade(const QList<QTreeWidgetItem *> &items);

    /// Told of every change, also while it is typed.
    std::function<void()> changed = [] {};
    QUndoStack changes;

protected:
    void commitData(QWidget *editor) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    class Delegate;

    QTreeWidgetItem *currentGroup() const;
    void addAndEdit(QTreeWidgetItem *item, int index);

    QTreeWidgetItem *typed = nullptr; ///< the item whose text is being typed
    QString before;                   ///< its text
    bool isNew = false;               ///< it goes again where nothing is entered
    QList<QTreeWidgetItem *> shaded;
};

} // namespace configtool
