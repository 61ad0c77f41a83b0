// SPDX-License-Identifier: MIT
#pragma once

#include "tools/config/outline.h"

#include <QString>

#include <vector>

class QTreeWidget;
class QTreeWidgetItem;

namespace configtool {

/// The outline of a tree view, and the item of each of its entries.
struct TreeOutline
{
    Outline outline;
    std::vector<QTreeWidgetItem *> items; ///< borrowed from the view
};

/// A text that is being typed and not yet the item's.
struct Typing
{
    const QTreeWidgetItem *item = nullptr;
    QString text;
};

/// The outline of the view's first top-level item, the file, as it would be saved in `format`.
TreeOutline outlineOf(const QTreeWidget &view, const QString &format, const Typing &typing);

/// The entries to show for a search: those whose dotted key contains the text, in any letter case,
/// with everything below them and the groups above them; every entry for an empty text.
std::vector<bool> matching(const Outline &outline, const QString &text);

} // namespace configtool
