// SPDX-License-Identifier: MIT
#pragma once

#include <QUndoCommand>

#include <functional>
#include <memory>

class QTreeWidgetItem;

/// The changes of a configuration's tree that can be undone. Each shows the item that it changed to
/// `show`; a PresenceChange may have none.
namespace configtool {

using ShowItem = std::function<void(QTreeWidgetItem *item)>;

/// Another text for an item.
class TextChange : public QUndoCommand
{
public:
    TextChange(QTreeWidgetItem *item, const QString &text, ShowItem show);
    void redo() override { exchange(); }
    void undo() override { exchange(); }

private:
    void exchange();

    QTreeWidgetItem *const item;
    QString other; // the text that the item does not have now
    const ShowItem show;
};

/// An item that joins the tree or leaves it; the change owns it while it is outside.
class PresenceChange : public QUndoCommand
{
public:
    /// Adds `item` as the child `index` of `parent`.
    PresenceChange(const QString &text, std::unique_ptr<QTreeWidgetItem> item,
                   QTreeWidgetItem *parent, int index, ShowItem show);
    /// Removes `item`, which has a parent.
    PresenceChange(const QString &text, QTreeWidgetItem *item, ShowItem show);
    ~PresenceChange() override;
    void redo() override { exchange(); }
    void undo() override { exchange(); }

private:
    void exchange();

    QTreeWidgetItem *const item;
    std::unique_ptr<QTreeWidgetItem> outside; // `item`, while no tree has it
    QTreeWidgetItem *const parent;
    const int index;
    const ShowItem show;
};

} // namespace configtool
