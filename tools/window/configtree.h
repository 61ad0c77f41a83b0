// SPDX-License-Identifier: MIT
#pragma once

#include "render/settings.h"
#include "tools/config/outline.h"

#include <QTreeWidget>
#include <QUndoStack>

#include <memory>

namespace configtool {

/// The outline of the tree, and the item of each of its entries.
struct TreeOutline
{
    Outline outline;
    std::vector<QTreeWidgetItem *> items; ///< borrowed from the tree
};

/// The tree of a configuration, in which every change can be undone, and is one as soon as it is
/// typed.
class ConfigTree : public QTreeWidget
{
public:
    /// What a group's setting is to be.
    struct Value
    {
        QTreeWidgetItem *group;
        QString key;
        QString value;
    };

    ConfigTree();
    Q_DISABLE_COPY_MOVE(ConfigTree)
    /// Nobody hears of the changes that end with it.
    ~ConfigTree() override { changes.blockSignals(true); }

    /// Shows another file; what was done before cannot be undone any more.
    void take(std::unique_ptr<QTreeWidgetItem> file);
    QTreeWidgetItem *fileItem() const { return topLevelItem(0); }
    /// The outline as it would be saved in "cfg" or "xml".
    TreeOutline outlineIn(const QString &format) const;
    /// The setting that the item is; null for a group, and for a key that nothing reads.
    const Setting *settingOf(const QTreeWidgetItem *item) const;
    /// The dotted key of a group or a setting.
    QString keyOf(const QTreeWidgetItem *item) const;
    /// The item of a name in a group: the first group, or of settings the last, which counts. Null
    /// where there is none, and in no group.
    static QTreeWidgetItem *childOf(const QTreeWidgetItem *group, bool isGroup,
                                    const QString &name);
    /// The groups `zentaro.NAME`.
    QList<QTreeWidgetItem *> groups() const;

    /// Closes the line in which an item is typed.
    void finishTyping();
    /// Adds a new setting or group, which it owns then, to the current group, and begins to type
    /// its text. It goes again where nothing is entered.
    void add(QTreeWidgetItem *item);
    void removeSelected();
    /// Gives a setting another value; undone as one with the others that it gets while it is the
    /// current one.
    void setValue(QTreeWidgetItem *item, const QString &value);
    /// Gives groups' settings values, and groups the settings that they miss.
    void setValues(const std::vector<Value> &values);
    /// Gives the current setting's value to every document of the file, and the setting to those
    /// that miss it.
    void setEverywhere();

    /// Makes the item the current one, and visible.
    void showItem(QTreeWidgetItem *item);
    /// Shows only the items whose dotted key contains the text, in any letter case, with everything
    /// below them and the groups above them; all for an empty text.
    void showMatching(const QString &text) { showWhere(fileItem(), {}, text, false); }
    /// Shades these items, and no others, until the next change.
    void shade(const QList<QTreeWidgetItem *> &items);

    QUndoStack changes;

protected:
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    class Change;
    class Delegate;

    void setText(QTreeWidgetItem *item, const QString &text);
    bool showWhere(QTreeWidgetItem *item, const QString &key, const QString &text, bool isWithin);

    QTreeWidgetItem *typed = nullptr; ///< the item whose text is being typed
    QString before;                   ///< its text
    int session = 0;                  ///< of changes that are undone as one
    bool isForgetting = false;        ///< what is undone cannot be done again
    QList<QTreeWidgetItem *> shaded;
};

} // namespace configtool
