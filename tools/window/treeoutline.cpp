// SPDX-License-Identifier: MIT
#include "tools/window/treeoutline.h"

#include "config/configviews.h"

#include <QTreeWidget>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

struct Pending
{
    QTreeWidgetItem *item;
    qsizetype parent;
};

Entry entryOf(const QTreeWidgetItem &item, qsizetype parent, const Typing &typing)
{
    const QString text = &item == typing.item ? typing.text : item.text(0);
    if (libconfig::isGroupItem(item))
        return {Entry::Kind::Group, parent, text, {}, {}, {}, item.childCount() > 0, false};
    const auto [key, value] = libconfig::settingOf(text);
    return {Entry::Kind::Setting, parent, key, value, {}, {}, false, false};
}

} // namespace

TreeOutline outlineOf(const QTreeWidget &view, const QString &format, const Typing &typing)
{
    TreeOutline result;
    result.outline.keepsEmptyGroups = format == "xml"_L1;
    std::vector<Pending> pending; // the next one is the last
    if (QTreeWidgetItem *const file = view.topLevelItem(0))
        pending.push_back({file, -1});
    while (!pending.empty()) {
        const auto [item, parent] = pending.back();
        pending.pop_back();
        const auto index = qsizetype(result.items.size());
        result.outline.entries.push_back(entryOf(*item, parent, typing));
        result.items.push_back(item);
        for (int i = item->childCount() - 1; i >= 0; --i)
            pending.push_back({item->child(i), index});
    }
    return result;
}

std::vector<bool> matching(const Outline &outline, const QString &text)
{
    const size_t count = outline.entries.size();
    std::vector<bool> within(count); // it or a group above it matches
    std::vector<bool> shown(count);
    for (size_t i = 0; i < count; ++i) {
        const qsizetype parent = outline.entries[i].parent;
        within[i] = text.isEmpty() || (parent >= 0 && within[size_t(parent)])
                    || outline.pathOf(qsizetype(i)).contains(text, Qt::CaseInsensitive);
    }
    for (size_t i = count; i-- > 0;) {
        shown[i] = shown[i] || within[i];
        if (const qsizetype parent = outline.entries[i].parent; shown[i] && parent >= 0)
            shown[size_t(parent)] = true;
    }
    if (count > 0)
        shown[0] = true;
    return shown;
}

} // namespace configtool
