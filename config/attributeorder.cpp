// SPDX-License-Identifier: MIT
#include "config/attributeorder.h"

#include <QSet>

#include <algorithm>

namespace libconfig {
namespace {

/// What handles of the same node share.
const void *identity(const QDomNode &node)
{
    struct Node : QDomNode
    {
        explicit Node(const QDomNode &node)
            : QDomNode(node)
        {
        }
        const void *shared() const { return impl; }
    };
    return Node(node).shared();
}

} // namespace

void AttributeOrder::append(const QDomElement &element, const QString &name)
{
    names[identity(element)].push_back(name);
}

std::vector<AttributeOrder::Attribute>
AttributeOrder::attributesOf(const QDomElement &element) const
{
    const QDomNamedNodeMap present = element.attributes();
    std::vector<Attribute> result;
    QSet<QString> listed;
    const auto list = [&](const QDomNode &attribute) {
        if (attribute.isNull() || listed.contains(attribute.nodeName()))
            return;
        listed.insert(attribute.nodeName());
        result.push_back({attribute.nodeName(), attribute.nodeValue()});
    };
    if (const auto noted = names.find(identity(element)); noted != names.end()) {
        for (const QString &name : noted->second)
            list(present.namedItem(name));
    }
    if (const auto inOrder = std::ptrdiff_t(result.size()); inOrder < present.length()) {
        for (int i = 0; i < present.length(); ++i)
            list(present.item(i));
        std::sort(result.begin() + inOrder, result.end(),
                  [](const Attribute &a, const Attribute &b) { return a.name < b.name; });
    }
    return result;
}

} // namespace libconfig
