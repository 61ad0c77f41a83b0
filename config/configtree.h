// SPDX-License-Identifier: MIT
#pragma once

#include "config/cfgscanner.h"
#include "config/config.h"

#include <QDomDocument>
#include <QHash>

#include <utility>
#include <vector>

namespace libconfig {

/// What comes after an element on a walk: what is in it, what is behind it, nothing.
enum class Walk { Into, Over, End };

/// Visits `node` and the elements below it in document order: `enter(element)` tells how to go on,
/// and `leave(element)` follows the walk into it. Nodes that are not elements are passed over. No
/// recursion: groups nest to any depth.
template <typename Enter, typename Leave = decltype([](const QDomElement &) {})>
void walkElements(QDomNode node, Enter enter, Leave leave = {})
{
    const QDomNode first = node;
    while (node.isElement()) {
        Walk walk = enter(node.toElement());
        if (walk == Walk::End)
            return;
        QDomNode next = walk == Walk::Into ? node.firstChildElement() : QDomElement();
        while (next.isNull()) {
            if (std::exchange(walk, Walk::Into) == Walk::Into)
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

/// The tree of a configuration. The toolkit keeps the attributes of its elements in a hash and
/// lists them differently in every run: the order in which they came is kept beside it.
class ConfigTree : public Config::Tree
{
public:
    using Attribute = std::pair<QString, QString>; ///< name and value

    ConfigTree() = default;
    Q_DISABLE_COPY_MOVE(ConfigTree)
    ~ConfigTree() override;

    QString lookup(const KeyPath &path) const override
    {
        return lookup(document.firstChildElement().firstChild(), path);
    }
    void append(const CfgContent &file, const QString &name) override
    {
        append(file, name, document);
    }

    /// The setting of a key whose first field is the tag name of `node`, as Config::lookup.
    static QString lookup(const QDomNode &node, const KeyPath &path);
    /// Adds a group element to `parent`, if the body of the group has a member.
    void append(const CfgContent &body, const QString &name, QDomNode &parent);
    /// Sets an attribute, which came after those that the element has. One that is set twice keeps
    /// its first place.
    void set(QDomElement &element, const QString &name, const QString &value);
    /// Notes the order alone.
    void note(const QDomElement &element, const QStringList &attributes);
    /// The attributes of `element` in their order; those never noted follow by name.
    std::vector<Attribute> attributesOf(const QDomElement &element) const;

    /// An element of any name: the toolkit creates none without a name, but holds one. A new
    /// document comes to life with its first element, and is a null node before.
    static QDomElement newElement(QDomDocument &document, const QString &name);

    QDomDocument document;

private:
    QHash<const void *, QStringList> names; // by identity of the element
};

} // namespace libconfig
