// SPDX-License-Identifier: MIT
#include "config/config.h"

#include "config/cfgscanner.h"
#include "text/standardoutput.h"

#include <QFile>

#include <vector>

namespace libconfig {
namespace {

/// A group whose body is being read. It joins the tree when the body ends, if it has a member: the
/// toolkit walks up to the root of the tree for every node that joins it.
struct OpenGroup
{
    QDomElement element;
    bool hasMember = false;
};

} // namespace

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
    const QDomElement fileElement = newElement(*document, fileName);
    if (!loadBody(fileElement, *document))
        closeFile();
}

void Config::loadFile(QString const &name, QDomNode parent)
{
    if (!document)
        newDocument();
    loadBody(newElement(*document, name), parent);
}

/// Reads the body of `element`'s group, which joins `parent`. Answers true at the `}` that closes
/// the body, false at the end of the file. Groups nest to any depth: those that are open stand in a
/// list of their own, not on the call stack.
bool Config::loadBody(const QDomElement &element, QDomNode &parent)
{
    std::vector<OpenGroup> open{{element}};
    const auto closeGroup = [&] {
        const OpenGroup group = open.back();
        open.pop_back();
        if (group.hasMember)
            (open.empty() ? parent : open.back().element).appendChild(group.element);
    };
    using Statement = CfgScanner::Statement;
    CfgScanner scanner(stream);
    for (Statement read = scanner.next(); read != Statement::EndOfFile; read = scanner.next()) {
        if (read == Statement::GroupEnd) {
            closeGroup();
            if (open.empty())
                return true;
            continue;
        }
        open.back().hasMember = true; // also where the nested group turns out empty
        if (read == Statement::GroupBegin)
            open.push_back({newElement(*document, scanner.name())});
        else
            addSetting(open.back().element, scanner.name(), scanner.value());
    }
    while (!open.empty())
        closeGroup();
    return false;
}

/// An element of any name: the toolkit creates none without a name, but holds one. A new document
/// comes to life with its first element, and is a null node before.
QDomElement Config::newElement(QDomDocument &document, const QString &name)
{
    QDomElement element = document.createElement(QStringLiteral("group"));
    element.setTagName(name);
    return element;
}

void Config::addSetting(QDomElement &element, const QString &name, const QString &value)
{
    element.setAttribute(name, value);
    attributeOrder.append(element, name);
}

} // namespace libconfig
