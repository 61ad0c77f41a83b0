// SPDX-License-Identifier: MIT
#include "config/config.h"

#include "config/cfgcontent.h"

#include <vector>

namespace libconfig {

using namespace Qt::StringLiterals;

Config::Config() = default;

Config::Config(QString const &fileName, QString const &fileType)
{
    constructor(fileName, fileType);
}

Config::~Config()
{
    closeFile();
    deleteDocument();
}

void Config::readFile(QString const &fileName, QString const &fileType)
{
    constructor(fileName, fileType);
}

void Config::constructor(QString const &name, QString const &type)
{
    fileName = name;
    fileType = type;
    newDocument();
    if (fileType == "cfg"_L1)
        loadFile();
    else if (fileType == "xml"_L1)
        loadXmlFile();
}

void Config::newDocument()
{
    deleteDocument();
    treeSoFar = std::make_unique<QDomDocument>();
}

/// Takes the tree apart from the top: the toolkit deletes nested nodes by recursion, and a file may
/// nest its groups deeper than the stack reaches.
void Config::deleteDocument()
{
    content.reset();
    attributeOrder.clear();
    if (!treeSoFar)
        return;
    std::vector<QDomNode> loose;
    const auto loosen = [&loose](QDomNode &parent, const QDomNode &child) {
        loose.push_back(parent.removeChild(child));
    };
    for (QDomNode top = treeSoFar->firstChildElement(); !top.isNull();
         top = treeSoFar->firstChildElement()) // a file that was loaded again has a second
        loosen(*treeSoFar, top);
    while (!loose.empty()) {
        QDomNode node = loose.back();
        loose.pop_back();
        for (QDomNode child = node.firstChild(); !child.isNull(); child = node.firstChild())
            loosen(node, child);
    }
    treeSoFar.reset();
}

QString Config::lookup(QString const &key) const
{
    if (content)
        return content->lookup(KeyPath(key));
    return lookup(treeSoFar ? treeSoFar->firstChildElement().firstChild() : QDomNode(), key);
}

QString Config::lookup(QDomNode node, QString const &key) const
{
    const KeyPath path(key);
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

} // namespace libconfig
