// SPDX-License-Identifier: MIT
#include "config/config.h"

#include "config/cfgscanner.h"
#include "config/configtree.h"

#include <QFile>
#include <QXmlStreamReader>

#include <array>
#include <limits>

namespace libconfig {

using namespace Qt::StringLiterals;

namespace {

/// The names of the attributes of each element, in document order; none of a text that nests too
/// deep. The tree, which does not keep the order of attributes, is read from the same text.
std::optional<std::vector<QStringList>> attributeNames(const QByteArray &content)
{
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    std::vector<QStringList> names;
    int depth = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        depth -= token == QXmlStreamReader::EndElement ? 1 : 0;
        if (token != QXmlStreamReader::StartElement)
            continue;
        if (++depth > Config::MaxXmlDepth)
            return std::nullopt;
        QStringList &element = names.emplace_back();
        for (const QXmlStreamAttribute &attribute : reader.attributes())
            element.append(attribute.qualifiedName().toString());
    }
    return names;
}

/// What is left of the stream, but no more than is read of a file.
QByteArray restOf(std::ifstream &stream)
{
    std::array<char, 8'192> piece;
    QByteArray rest;
    while (rest.size() < CfgScanner::MaxBytes
           && stream.read(piece.data(), piece.size()).gcount() > 0)
        rest.append(piece.data(), qsizetype(stream.gcount()));
    return rest;
}

} // namespace

Config::Config(QString const &fileName, QString const &fileType)
{
    constructor(fileName, fileType);
}

void Config::readFile(QString const &fileName, QString const &fileType)
{
    constructor(fileName, fileType);
}

void Config::constructor(QString const &name, QString const &type)
{
    startAnew(name, type);
    if (fileType == "cfg"_L1)
        loadFile();
    else if (fileType == "xml"_L1)
        loadXmlFile();
}

void Config::readContent(const QByteArray &content, QString const &name, QString const &type)
{
    startAnew(name, type);
    if (fileType == "cfg"_L1)
        addFile(CfgContent(content));
    else if (fileType == "xml"_L1)
        loadXml(content);
}

void Config::startAnew(QString const &name, QString const &type)
{
    fileName = name;
    fileType = type;
    files.clear();
    tree.reset();
    if (fileType != "cfg"_L1)
        newDocument();
}

bool Config::openFile()
{
    return openFile(fileName);
}

bool Config::openFile(QString const &name)
{
    const QByteArray path = QFile::encodeName(name);
    closeFile();
    stream->open(path.constData(), std::ios::in | std::ios::binary);
    if (stream->is_open()) {
        stream->peek(); // a folder opens, but gives no character
        if (!stream->bad()) {
            stream->clear();
            return true;
        }
        closeFile();
    }
    stream->setstate(std::ios::failbit);
    tellUnreadable(name);
    return false;
}

void Config::closeFile()
{
    stream.place({}, 0);
}

bool Config::jump(char c)
{
    // Of a byte above 0x7f the plain character would be a negative number, which no stream gives.
    stream->ignore(std::numeric_limits<std::streamsize>::max(),
                   std::ifstream::traits_type::to_int_type(c));
    return stream->good();
}

void Config::loadFile(QString const &name, QDomNode parent)
{
    const std::streamoff start = stream->tellg();
    const CfgContent body(restOf(*stream));
    if (body.isClosed()) {
        stream->clear();
        stream->seekg(start + body.size());
    }
    takenTree().append(body, name, parent);
}

void Config::loadXmlFile()
{
    if (!document)
        newDocument();
    if (QFile file(fileName); file.open(QIODevice::ReadOnly))
        loadXml(limitedContent(file));
}

void Config::loadXml(const QByteArray &content)
{
    const auto names =
        content.size() <= CfgScanner::MaxBytes ? attributeNames(content) : std::nullopt;
    newDocument();
    QDomDocument read;
    if (!names || !read.setContent(content, false))
        return; // without what was read before a fault
    // The root element moves under a file element, the shape of a "cfg" tree. A declaration or a
    // comment before it stays where it is.
    ConfigTree &loaded = takenTree();
    loaded.document = read;
    QDomElement file = ConfigTree::newElement(read, fileName);
    file.appendChild(read.documentElement());
    read.appendChild(file);
    // The elements of the tree stand in the order of their start tags.
    auto next = names->begin();
    walkElements(
        file.firstChild(),
        [&](const QDomElement &element) {
            if (next == names->end())
                return false;
            for (const QString &name : *next++)
                loaded.note(element, name);
            return true;
        },
        [](const QDomElement &) {});
}

} // namespace libconfig
