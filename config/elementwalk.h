// SPDX-License-Identifier: MIT
#pragma once

#include <QDomElement>

namespace libconfig {

/// Visits `node` and the elements below it in document order: `enter(element)` before its children,
/// `leave(element)` after them. Ends at once when `enter` answers false. Nodes that are not
/// elements are passed over. No recursion: groups nest to any depth.
template <typename Enter, typename Leave>
void walkElements(QDomNode node, Enter enter, Leave leave)
{
    const QDomNode first = node;
    while (node.isElement()) {
        if (!enter(node.toElement()))
            return;
        QDomNode next = node.firstChildElement();
        while (next.isNull()) {
            leave(node.toElement());
            if (node == first)
                return;
            next = node.nextSiblingElement();
            if (next.isNull())
                node = node.parentNode();
        }
        node = next;
    }
}

} // namespace libconfig
