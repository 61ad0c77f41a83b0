// SPDX-License-Identifier: MIT
#include "config/config.h"

#include <QStringTokenizer>
#include <QVarLengthArray>

#include <vector>

namespace libconfig {

using namespace Qt::StringLiterals;

namespace {

/// A dotted key, split once: the group names from the top down and the name of the setting in the
/// last of them. The names are views of the key.
struct KeyPath
{
    explicit KeyPath(QStringView key)
    {
        for (const QStringView field : qTokenize(key, u'.'))
            groups.append(field);
        // An empty field after a setting's name ends the key there.
        qsizetype last = 2;
        while (last < groups.size() && !groups[last].isEmpty())
            ++last;
        if (groups.size() > 1)
            setting = groups[last - 1].toString();
        groups.resize(qMax(last - 1, qsizetype(1)));
    }

    QVarLengthArray<QStringView, 8> groups;
    QString setting;
};

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
    attributeOrder.clear();
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
            } else if (QString value = node.toElement().attribute(path.setting); !value.isEmpty()) {
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
