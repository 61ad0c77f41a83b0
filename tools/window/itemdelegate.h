// SPDX-License-Identifier: MIT
#pragma once

#include "tools/finding.h"

#include <QHash>
#include <QStyledItemDelegate>

#include <functional>

class QTreeWidget;
class QTreeWidgetItem;

namespace configtool {

/// Shows the items of a configuration's tree and edits them in place, with the key words of their
/// group to choose from. What is entered goes to whoever listens, not into the item.
class ItemDelegate : public QStyledItemDelegate
{
public:
    explicit ItemDelegate(QTreeWidget *view);

    /// Told when a text has been entered, and while it is typed.
    std::function<void(QTreeWidgetItem *item, const QString &text)> entered;
    std::function<void(QTreeWidgetItem *item, const QString &text)> typed;

    /// The items to mark as having something wrong with them.
    void setMarks(const QHash<const QTreeWidgetItem *, tools::Severity> &marks);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    QTreeWidget *const view;
    QHash<const QTreeWidgetItem *, tools::Severity> marked;
};

} // namespace configtool
