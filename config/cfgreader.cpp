// SPDX-License-Identifier: MIT
#include "config/config.h"

#include "config/cfgcontent.h"
#include "config/cfgscanner.h"
#include "text/standardoutput.h"

#include <QFile>

#include <vector>

namespace libconfig {

bool Config::openFile()
{
    return openFile(fileName);
}

bool Config::openFile(QString const &name)
{
    closeFile();
    const QByteArray path = QFile::encodeName(name);
    stream.open(path.constData(), std::ios::in | std::ios::binary);
    if (stream.is_open()) {
        stream.peek(); // a folder opens, but gives no character
        if (!stream.bad()) {
            stream.clear();
            return true;
        }
        closeFile();
    }
    stream.setstate(std::ios::failbit);
    text::printLine("Error in the method FileReader::open( " + path + " ): File Not Found");
    return false;
}

void Config::closeFile()
{
    if (stream.is_open())
        stream.close();
    stream.clear();
}

bool Config::jump(char c)
{
    return CfgScanner::skipPast(stream, c);
}

void Config::loadFile()
{
    if (!document)
        newDocument();
    openFile();
    content = std::make_unique<CfgContent>();
    isGrown = false;
    if (!content->read(stream))
        closeFile();
    if (!treeSoFar->firstChildElement().isNull())
        tree(); // lookups are answered from the file that was read first
}

void Config::loadFile(QString const &name, QDomNode parent)
{
    if (!document)
        newDocument();
    CfgContent body;
    body.read(stream);
    appendGroup(body, name, parent);
}

/// The tree, for whoever may change it: lookups are answered from it from now on.
QDomDocument *Config::tree()
{
    grownTree();
    content.reset();
    return treeSoFar.get();
}

const QDomDocument *Config::grownTree() const
{
    const QMutexLocker lock(&growing);
    if (content && !isGrown)
        appendGroup(*content, fileName, *treeSoFar);
    isGrown = true;
    return treeSoFar.get();
}

/// Adds a group element to `parent`, if the group has a member. Elements join the tree when they
/// are complete: the toolkit walks up to the root of the tree for every node that joins it.
void Config::appendGroup(const CfgContent &body, const QString &name, QDomNode &parent) const
{
    std::vector<QDomElement> open{newElement(*treeSoFar, name)};
    body.visit(
        [&](const QString &group) { open.push_back(newElement(*treeSoFar, group)); },
        [&](const QString &key, const QString &value) { addSetting(open.back(), key, value); },
        [&] {
            const QDomElement complete = open.back();
            open.pop_back();
            open.back().appendChild(complete);
        });
    if (body.hasMember())
        parent.appendChild(open.front());
}

/// An element of any name: the toolkit creates none without a name, but holds one. A new document
/// comes to life with its first element, and is a null node before.
QDomElement Config::newElement(QDomDocument &document, const QString &name)
{
    QDomElement element = document.createElement(QStringLiteral("group"));
    element.setTagName(name);
    return element;
}

void Config::addSetting(QDomElement &element, const QString &name, const QString &value) const
{
    element.setAttribute(name, value);
    attributeOrder.append(element, name);
}

} // namespace libconfig
