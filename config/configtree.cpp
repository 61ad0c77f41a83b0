// SPDX-License-Identifier: MIT
#include "config/configtree.h"

#include <QSet>

#include <algorithm>

namespace libconfig {

using namespace Qt::StringLiterals;

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

/// Takes the tree apart from the top: the toolkit deletes nested nodes by recursion, and a file may
/// nest its groups deeper than the stack reaches.
ConfigTree::~ConfigTree()
{
    std::vector<QDomNode> loose;
    const auto loosen = [&loose](QDomNode &parent, const QDomNode &child) {
        loose.push_back(parent.removeChild(child));
    };
    for (QDomNode top = document.firstChildElement(); !top.isNull();
         top = document.firstChildElement()) // a file that was loaded again has a second
        loosen(document, top);
    while (!loose.empty()) {
        QDomNode node = loose.back();
        loose.pop_back();
        for (QDomNode child = node.firstChild(); !child.isNull(); child = node.firstChild())
            loosen(node, child);
    }
}

void ConfigTree::append(const CfgContent &file, const QString &name)
{
    append(file, name, document);
}

/// Elements join the tree when they are complete: the toolkit walks up to the root of the tree for
/// every node that joins it.
void ConfigTree::append(const CfgContent &body, const QString &name, QDomNode &parent)
{
    std::vector<QDomElement> open{newElement(document, name)};
    body.visit([&](const QString &group) { open.push_back(newElement(document, group)); },
               [&](const QString &key, const QString &value) { set(open.back(), key, value); },
               [&] {
                   const QDomElement complete = open.back();
                   open.pop_back();
                   open.back().appendChild(complete);
               });
    if (body.hasMember())
        parent.appendChild(open.front());
}

QDomElement ConfigTree::newElement(QDomDocument &document, const QString &name)
{
    QDomElement element = document.createElement(u"group"_s);
    element.setTagName(name);
    return element;
}

void ConfigTree::set(QDomElement &element, const QString &name, const QString &value)
{
    element.setAttribute(name, value);
    note(element, name);
}

void ConfigTree::note(const QDomElement &element, const QString &name)
{
    names[identity(element)].push_back(name);
}

std::vector<ConfigTree::Attribute> ConfigTree::attributesOf(const QDomElement &element) const
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

QString ConfigTree::lookup(const KeyPath &path) const
{
    return lookup(document.firstChildElement().firstChild(), path);
}

QString ConfigTree::lookup(QDomNode node, const KeyPath &path)
{
    const QString setting = path.setting.toString();
    const QDomNode top = node;
    qsizetype depth = 0; // of `node` below `top`
    while (!node.isNull()) {
        QDomNode next;
        if (node.isElement() && node.nodeName() == path.groups[depth]) {
            if (depth + 1 < path.groups.size()) {
                next = node.firstChild();
                depth += next.isNull() ? 0 : 1;
            } else if (QString value = node.toElement().attribute(setting); !value.isEmpty()) {
                return value;
            }
        }
        // On to the next group in file order, back out of those that are done with.
        while (next.isNull() && node != top) {
            next = node.nextSibling();
            if (next.isNull()) {
                node = node.parentNode();
                --depth;
            }
        }
        node = next;
    }
    return u""_s;
}

const ConfigTree &Config::grownTree() const
{
    static const ConfigTree none;
    const QMutexLocker lock(&growing);
    if (!tree && !files.empty()) {
        tree = std::make_unique<ConfigTree>();
        for (const CfgContent &file : files)
            tree->append(file, fileName);
    }
    return tree ? static_cast<const ConfigTree &>(*tree) : none;
}

/// The tree, for whoever may change it: lookups are answered from it from now on.
ConfigTree &Config::takenTree()
{
    grownTree();
    files.clear();
    if (!tree)
        tree = std::make_unique<ConfigTree>();
    return static_cast<ConfigTree &>(*tree);
}

QDomDocument *Config::takenDocument()
{
    return files.empty() && !tree ? nullptr : &takenTree().document;
}

void Config::newDocument()
{
    files.clear();
    tree = std::make_unique<ConfigTree>();
}

QString Config::lookup(QDomNode node, QString const &key) const
{
    return ConfigTree::lookup(node, KeyPath(key));
}

} // namespace libconfig
