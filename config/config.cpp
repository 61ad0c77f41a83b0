// SPDX-License-Identifier: MIT
#include "config/config.h"

#include <QStringList>

#include <vector>

namespace libconfig {

using namespace Qt::StringLiterals;

namespace {

/// The settings of one dotted key, split once: the group names from the top down and the name of
/// the setting in the last of them.
struct KeyPath
{
    explicit KeyPath(const QString &key)
        : groups(key.split(u'.'))
    {
        // An empty field after a setting's name ends the key there.
        qsizetype last = 2;
        while (last < groups.size() && !groups[last].isEmpty())
            ++last;
        if (groups.size() > 1)
            setting = groups[last - 1];
        groups.resize(qMax(last - 1, qsizetype(1)));
    }

    QStringList groups;
    QString setting;
};

QString attributeOf(const QDomNode &node, const QString &name)
{
    return node.attributes().namedItem(name).nodeValue();
}

} // namespace

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
    document = new QDomDocument;
}

/// Takes the tree apart from the top: the toolkit deletes nested nodes by recursion, and a file may
/// nest its groups deeper than the stack reaches.
void Config::deleteDocument()
{
    if (!document)
        return;
    std::vector<QDomNode> loose;
    const auto loosen = [&loose](QDomNode &parent, const QDomNode &child) {
        loose.push_back(parent.removeChild(child));
    };
    if (const QDomElement top = document->firstChildElement(); !top.isNull())
        loosen(*document, top);
    while (!loose.empty()) {
        QDomNode node = loose.back();
        loose.pop_back();
        for (QDomNode child = node.firstChild(); !child.isNull(); child = node.firstChild())
            loosen(node, child);
    }
    delete document;
    document = nullptr;
}

QString Config::lookup(QString const &key) const
{
    return lookup(document ? document->firstChildElement().firstChild() : QDomNode(), key);
}

QString Config::lookup(QDomNode node, QString const &key) const
{
    const KeyPath path(key);
    const QDomNode top = node;
    qsizetype depth = 0; // of `node` below `top`
    while (!node.isNull()) {
        QDomNode next;
        if (node.isElement() && node.nodeName() == path.groups[depth]) {
            if (depth + 1 < path.groups.size()) {
                next = node.firstChild();
                depth += next.isNull() ? 0 : 1;
            } else if (QString value = attributeOf(node, path.setting); !value.isEmpty()) {
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
