// SPDX-License-Identifier: MIT
#include "tools/window/treechanges.h"

#include <QTreeWidgetItem>

#include <utility>

namespace configtool {

using namespace Qt::StringLiterals;

TextChange::TextChange(QTreeWidgetItem *item, const QString &text, ShowItem show)
    : QUndoCommand(u"change"_s)
    , item(item)
    , other(text)
    , show(std::move(show))
{
}

void TextChange::exchange()
{
    const QString present = item->text(0);
    item->setText(0, std::exchange(other, present));
    show(item);
}

PresenceChange::PresenceChange(const QString &text, std::unique_ptr<QTreeWidgetItem> item,
                               QTreeWidgetItem *parent, int index, ShowItem show)
    : QUndoCommand(text)
    , item(item.get())
    , outside(std::move(item))
    , parent(parent)
    , index(index)
    , show(std::move(show))
{
}

PresenceChange::PresenceChange(const QString &text, QTreeWidgetItem *item, ShowItem show)
    : QUndoCommand(text)
    , item(item)
    , parent(item->parent())
    , index(parent->indexOfChild(item))
    , show(std::move(show))
{
}

PresenceChange::~PresenceChange() = default;

void PresenceChange::exchange()
{
    if (outside) {
        parent->insertChild(index, outside.release());
        if (show)
            show(item);
    } else {
        outside.reset(parent->takeChild(index));
        if (show)
            show(parent);
    }
}

} // namespace configtool
