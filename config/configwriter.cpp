// SPDX-License-Identifier: MIT
#include "config/config.h"

#include "config/cfgscanner.h"
#include "config/configtree.h"
#include "config/newfile.h"
#include "text/standardoutput.h"

#include <QBuffer>
#include <QFile>
#include <QTextStream>

#include <cstdio>
#include <utility>

namespace libconfig {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype Indent = 4; // blanks for each group that is open

/// Takes no more than is read of a file: the blanks of groups that nest deep would fill any disk.
class LimitedBuffer : public QBuffer
{
protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        return pos() + size > CfgScanner::MaxBytes ? -1 : QBuffer::writeData(data, size);
    }
};

void writeCfgSettings(const std::vector<ConfigTree::Attribute> &settings,
                      const QString &indentation, QTextStream &ts)
{
    for (const auto &[name, value] : settings)
        ts << indentation << name << " = \"" << value << "\";\n";
}

void printText(const QString &text)
{
    const QByteArray bytes = text.toLatin1();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    std::fflush(stdout);
}

} // namespace

bool Config::buildConfigFile(QString name)
{
    return replaceFile(std::move(name), "buildConfigFile", u"cfg"_s);
}

bool Config::buildConfigXmlFile(QString name)
{
    return replaceFile(std::move(name), "buildConfigXmlFile", u"xml"_s);
}

bool Config::replaceFile(QString path, const char *operation, const QString &format) const
{
    if (path.isEmpty())
        path = fileName;
    const auto fails = [&](const char *fault) {
        text::printLine(QByteArray("Error in the method Config::") + operation + "( "
                        + QFile::encodeName(path) + " ): " + fault);
        return false;
    };
    NewFile file(path);
    if (!file.open())
        return fails("Unable To Open File");
    const std::optional<QByteArray> content = writtenAs(format);
    return (content && file.write(*content)) || fails("Unable To Write File");
}

std::optional<QByteArray> Config::writtenAs(const QString &format) const
{
    const bool isXml = format == "xml"_L1;
    LimitedBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QTextStream ts(&buffer);
    ts.setEncoding(isXml ? QStringConverter::Utf8 : QStringConverter::Latin1);
    const ConfigTree &tree = grownTree();
    const QDomElement file = tree.document.firstChildElement();
    // Also before XML, which it is not; a tree read from an XML file has none.
    writeCfgSettings(tree.attributesOf(file), {}, ts);
    if (isXml)
        buildConfigXmlFile(file.firstChildElement(), ts);
    else
        buildConfigFile(file.firstChildElement(), ts);
    ts.flush();
    return ts.status() == QTextStream::Ok ? std::optional(buffer.data()) : std::nullopt;
}

void Config::buildConfigFile(QDomNode node, QTextStream &ts) const
{
    const ConfigTree &tree = grownTree();
    QString indentation;
    walkElements(
        node,
        [&](const QDomElement &group) {
            // The blank after the colon and the empty line after a group belong to the form.
            ts << indentation << group.tagName() << ": \n" << indentation << "{\n";
            indentation.resize(indentation.size() + Indent, u' ');
            writeCfgSettings(tree.attributesOf(group), indentation, ts);
            return ts.status() == QTextStream::Ok ? Walk::Into : Walk::End;
        },
        [&](const QDomElement &) {
            indentation.chop(Indent);
            ts << indentation << "};\n\n";
        });
}

void Config::buildConfigXmlFile(QDomNode node, QTextStream &ts) const
{
    const ConfigTree &tree = grownTree();
    QString indentation;
    walkElements(
        node,
        [&](const QDomElement &group) {
            ts << '\n' << indentation << '<' << group.tagName();
            indentation.resize(indentation.size() + Indent, u' ');
            for (const auto &[name, value] : tree.attributesOf(group))
                ts << '\n' << indentation << name << " = \"" << value << '"';
            ts << ">\n";
            return ts.status() == QTextStream::Ok ? Walk::Into : Walk::End;
        },
        [&](const QDomElement &group) {
            indentation.chop(Indent);
            ts << indentation << "</" << group.tagName() << ">\n";
        });
}

void Config::forEachSetting(
    const std::function<void(const QString &key, const QString &value)> &visit) const
{
    const ConfigTree &tree = grownTree();
    const QDomElement file = tree.document.firstChildElement();
    QString prefix; // of the keys in the group that is visited
    walkElements(
        file,
        [&](const QDomElement &group) {
            if (group != file)
                prefix += group.tagName() + u'.';
            for (const auto &[key, value] : tree.attributesOf(group))
                visit(prefix + key, value);
            return Walk::Into;
        },
        [&](const QDomElement &group) {
            if (group != file)
                prefix.chop(group.tagName().size() + 1);
        });
}

QString Config::configTreeText() const
{
    return "Tree \n"_L1 + configTreeText(grownTree().document.firstChildElement());
}

QString Config::configTreeText(QDomNode node) const
{
    const ConfigTree &tree = grownTree();
    QString text;
    walkElements(
        node,
        [&](const QDomElement &group) {
            text += group.tagName() + u'\n';
            for (const auto &[name, value] : tree.attributesOf(group))
                text += name + " = "_L1 + value + u'\n';
            return Walk::Into;
        },
        [](const QDomElement &) {});
    return text;
}

void Config::printConfigTree() const { printText(configTreeText()); }

void Config::printConfigTree(QDomNode node) const { printText(configTreeText(node)); }

} // namespace libconfig
