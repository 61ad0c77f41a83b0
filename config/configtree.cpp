// SPDX-License-Identifier: MIT
#include "config/configtree.h"

#include <QFile>
#include <QMap>
#include <QSet>
#include <QXmlStreamReader>

namespace libconfig {

using namespace Qt::StringLiterals;

namespace {

/// What handles of the same node share.
struct Identity : QDomNode
{
    static const void *of(const QDomNode &node) { return node.*&Identity::impl; }
};

/// The names of the attributes of each element, in document order; nothing for a text that nests
/// too deep. The tree, which does not keep the order of attributes, is read from the same text.
std::vector<QStringList> attributeNames(const QByteArray &content)
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
            return {};
        QStringList &element = names.emplace_back();
        for (const QXmlStreamAttribute &attribute : reader.attributes())
            element.append(attribute.qualifiedName().toString());
    }
    return names;
}

} // namespace

/// Takes the tree apart from the top: the toolkit deletes nested nodes by recursion, and a file may
/// nest its groups deeper than the stack reaches.
ConfigTree::~ConfigTree()
{
    std::vector<QDomNode> loose{document};
    while (!loose.empty()) {
        QDomNode node = loose.back();
        loose.pop_back();
        for (QDomNode child = node.firstChild(); !child.isNull(); child = node.firstChild())
            loose.push_back(node.removeChild(child));
    }
}

/// Elements join the tree when they are complete: the toolkit walks up to the root of the tree for
/// every node that joins it.
void ConfigTree::append(const CfgContent &body, const QString &name, QDomNode &parent)
{
    std::vector<QDomElement> open{newElement(document, name)};
    const auto closeTo = [&open](size_t depth) {
        for (; open.size() > depth + 1; open.pop_back())
            open[open.size() - 2].appendChild(open.back());
    };
    for (const CfgContent::Entry &entry : body.members()) {
        closeTo(entry.depth);
        if (entry.isGroup)
            open.push_back(newElement(document, latin1(entry.name)));
        else
            set(open.back(), latin1(entry.name), CfgScanner::withoutQuotes(entry.value));
    }
    closeTo(0);
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
    note(element, {name});
}

void ConfigTree::note(const QDomElement &element, const QStringList &attributes)
{
    names[Identity::of(element)] += attributes;
}

std::vector<ConfigTree::Attribute> ConfigTree::attributesOf(const QDomElement &element) const
{
    const QDomNamedNodeMap attributes = element.attributes();
    std::vector<Attribute> result;
    QSet<QString> listed;
    for (const QString &name : names.value(Identity::of(element))) {
        if (element.hasAttribute(name) && !listed.contains(name))
            result.emplace_back(*listed.insert(name), element.attribute(name));
    }
    QMap<QString, QString> others;
    // The toolkit counts its way to an attribute by index.
    const qsizetype count = attributes.length();
    for (int i = 0; i < count && listed.size() + others.size() < count; ++i) {
        if (const QDomNode other = attributes.item(i); !listed.contains(other.nodeName()))
            others.insert(other.nodeName(), other.nodeValue());
    }
    result.insert(result.end(), others.constKeyValueBegin(), others.constKeyValueEnd());
    return result;
}

QString ConfigTree::lookup(const QDomNode &node, const KeyPath &path)
{
    const QString setting = path.setting.toString();
    QString value;
    qsizetype depth = 0; // below the node
    walkElements(
        node,
        [&](const QDomElement &group) {
            if (group.tagName() != path.groups[depth])
                return Walk::Over;
            if (++depth < path.groups.size())
                return Walk::Into;
            value = group.attribute(setting);
            --depth;
            return value.isEmpty() ? Walk::Over : Walk::End;
        },
        [&](const QDomElement &) { --depth; });
    return value.isEmpty() ? u""_s : value;
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
    return tree ? static_cast<ConfigTree &>(*tree) : newTree();
}

ConfigTree &Config::newTree()
{
    files.clear();
    tree = std::make_unique<ConfigTree>();
    return static_cast<ConfigTree &>(*tree);
}

Config::Document::operator QDomDocument *() const
{
    return owner.files.empty() && !owner.tree ? nullptr : &owner.takenTree().document;
}

QString Config::lookup(QDomNode node, QString const &key) const
{
    return ConfigTree::lookup(node, KeyPath(key));
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
    newTree();
    if (type == "cfg"_L1)
        tree.reset(); // until it is wanted
    fileName = name;
    fileType = type;
}

void Config::loadFile(QString const &name, QDomNode parent)
{
    if (!stream)
        return;
    const std::streamoff start = stream->tellg();
    QByteArray rest(CfgScanner::MaxBytes, Qt::Uninitialized); // what is not read costs no memory
    rest.truncate(stream->read(rest.data(), rest.size()).gcount());
    const CfgContent body(rest);
    if (body.isClosed()) {
        stream->clear();
        stream->seekg(start + body.size());
    }
    takenTree().append(body, name, parent);
}

void Config::loadXmlFile()
{
    if (QFile file(fileName); file.open(QIODevice::ReadOnly))
        loadXml(limitedContent(file));
}

void Config::loadXml(const QByteArray &content)
{
    ConfigTree &loaded = newTree();
    if (content.size() > CfgScanner::MaxBytes)
        return;
    const std::vector<QStringList> names = attributeNames(content);
    QDomDocument read;
    if (names.empty() || !read.setContent(content, false))
        return; // without what was read before a fault
    // The root element moves under a file element, the shape of a "cfg" tree. A declaration or a
    // comment before it stays where it is.
    loaded.document = read;
    QDomElement file = ConfigTree::newElement(read, fileName);
    file.appendChild(read.documentElement());
    read.appendChild(file);
    // The elements of the tree stand in the order of their start tags.
    auto next = names.begin();
    walkElements(file.firstChild(), [&](const QDomElement &element) {
        if (next == names.end())
            return Walk::End;
        loaded.note(element, *next++);
        return Walk::Into;
    });
}

} // namespace libconfig
