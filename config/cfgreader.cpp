// SPDX-License-Identifier: MIT
#include "config/config.h"

#include "text/standardoutput.h"

#include <QFile>

#include <string>
#include <string_view>
#include <vector>

namespace libconfig {
namespace {

/// A name or a value as it is kept: up to the first NUL, without the white space at its ends. The
/// white space is that of ISO 8859-1; the toolkit's own trimming would also take other characters.
QString trimmed(std::string_view text)
{
    constexpr std::string_view whiteSpace = " \t\n\v\f\r\xA0";
    text = text.substr(0, text.find('\0'));
    const size_t first = text.find_first_not_of(whiteSpace);
    if (first == text.npos)
        return QLatin1String("");
    const size_t end = text.find_last_not_of(whiteSpace) + 1;
    return QString::fromLatin1(QByteArrayView(text.substr(first, end - first)));
}

/// An element of any name: the toolkit creates none without a name, but holds one. A new document
/// comes to life with its first element, and is a null node before.
QDomElement newElement(QDomDocument &document, const QString &name)
{
    QDomElement element = document.createElement(QStringLiteral("group"));
    element.setTagName(name);
    return element;
}

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
    for (char read; stream.get(read);) {
        if (read == c)
            return true;
    }
    return false;
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
    std::string text; // read since the last structural character
    for (char read; stream.get(read);) {
        switch (read) {
        case ':':
            open.back().hasMember = true; // also where the nested group turns out empty
            jump('{');
            open.push_back({newElement(*document, trimmed(text))});
            break;
        case '=':
            open.back().hasMember = true;
            open.back().element.setAttribute(trimmed(text), readValue());
            break;
        case '}':
            jump(';');
            closeGroup();
            if (open.empty())
                return true;
            break;
        default:
            text += read;
            continue;
        }
        text.clear();
    }
    while (!open.empty())
        closeGroup();
    return false;
}

/// A value: all up to the next `;`, which is consumed, or the end of the file; without its double
/// quotes, wherever they stand.
QString Config::readValue()
{
    std::string text;
    std::getline(stream, text, ';');
    return trimmed(text).remove(u'"');
}

} // namespace libconfig
