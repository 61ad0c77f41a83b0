// SPDX-License-Identifier: MIT
#include "config/configtree.h"
#include "text/localeencoding.h"
#include "text/system.h"

#include <QBuffer>
#include <QFile>
#include <QSaveFile>
#include <QTextStream>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

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

/// Writes one group and everything below it, as long as the stream takes it.
void writeGroup(const ConfigTree &tree, const QDomNode &node, bool isXml, QTextStream &ts)
{
    QString indentation;
    walkElements(
        node,
        [&](const QDomElement &group) {
            // The blank after the colon and the empty line after a group belong to the form.
            if (isXml)
                ts << '\n' << indentation << '<' << group.tagName();
            else
                ts << indentation << group.tagName() << ": \n" << indentation << "{\n";
            indentation.resize(indentation.size() + Indent, u' ');
            for (const auto &[name, value] : tree.attributesOf(group))
                ts << (isXml ? "\n" : "") << indentation << name << " = \"" << value
                   << (isXml ? "\"" : "\";\n");
            ts << (isXml ? ">\n" : "");
            return ts.status() == QTextStream::Ok ? Walk::Into : Walk::End;
        },
        [&](const QDomElement &group) {
            indentation.chop(Indent);
            ts << indentation;
            isXml ? ts << "</" << group.tagName() << ">\n" : ts << "};\n\n";
        });
}

void printText(const QString &text)
{
    const QByteArray bytes = text.toLatin1();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    std::fflush(stdout);
}

/// Writes a file that is there where it stands, after its room is made sure of; what hinders it.
QString writeInPlace(const QByteArray &name, const QByteArray &content)
{
    const int descriptor = open(name.constData(), O_WRONLY | O_CLOEXEC);
    if (descriptor < 0)
        return text::systemMessage(errno);
    QFile file;
    file.open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered,
              QFileDevice::AutoCloseHandle);
    struct stat now = {};
    const bool isFile = fstat(descriptor, &now) == 0 && S_ISREG(now.st_mode);
    if (const int reason = isFile && now.st_size < content.size()
                               ? posix_fallocate(descriptor, 0, content.size())
                               : 0) {
        file.resize(now.st_size); // part of the room may have been found
        return text::systemMessage(reason);
    }
    if (file.write(content) != content.size() || (isFile && !file.resize(content.size())))
        return text::reasonOf(file);
    return isFile && fsync(descriptor) != 0 ? text::systemMessage(errno) : QString();
}

} // namespace

QString replaceFile(const QString &path, const QByteArray &content)
{
    if (path.isEmpty())
        return text::systemMessage(ENOENT);
    const QByteArray name = QFile::encodeName(path);
    struct stat now = {};
    const bool exists = stat(name.constData(), &now) == 0;
    if (!exists
        || (S_ISREG(now.st_mode) && now.st_nlink == 1
            && getxattr(name.constData(), "system.posix_acl_access", nullptr, 0) < 0)) {
        QSaveFile file(path);
        if (file.open(QIODevice::WriteOnly)
            && (!exists
                || (fgetxattr(file.handle(), "system.posix_acl_access", nullptr, 0) < 0
                    && fchown(file.handle(), now.st_uid, now.st_gid) == 0
                    && fchmod(file.handle(), now.st_mode & 07777) == 0))
            && file.write(content) == content.size() && file.flush() && file.commit())
            return {};
        if (!exists)
            return text::reasonOf(file);
    }
    return writeInPlace(name, content); // also one that is mounted alone, which cannot be replaced
}

// By value, by contract. NOLINTBEGIN(performance-unnecessary-value-param)
bool Config::buildConfigFile(QString name) { return save(name, u"cfg"_s, "buildConfigFile"); }

bool Config::buildConfigXmlFile(QString name) { return save(name, u"xml"_s, "buildConfigXmlFile"); }
// NOLINTEND(performance-unnecessary-value-param)

bool Config::save(const QString &name, const QString &format, const char *operation) const
{
    const QString &path = name.isEmpty() ? fileName : name;
    const std::optional<QByteArray> content = writtenAs(format);
    const QString fault = content ? replaceFile(path, *content) : text::systemMessage(EFBIG);
    if (!fault.isEmpty())
        text::printLine(QByteArray("Error in the method Config::") + operation + "( "
                        + text::bytesOfName(path) + " ): " + text::toLocale(fault));
    return fault.isEmpty();
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
    for (const auto &[name, value] : tree.attributesOf(file))
        ts << name << " = \"" << value << "\";\n";
    writeGroup(tree, file.firstChildElement(), isXml, ts);
    ts.flush();
    return ts.status() == QTextStream::Ok ? std::optional(buffer.data()) : std::nullopt;
}

void Config::buildConfigFile(QDomNode node, QTextStream &ts) const
{
    writeGroup(grownTree(), node, false, ts);
}

void Config::buildConfigXmlFile(QDomNode node, QTextStream &ts) const
{
    writeGroup(grownTree(), node, true, ts);
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
            prefix.chop(group.tagName().size() + 1); // of the file's own there is none
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
    walkElements(node, [&](const QDomElement &group) {
        text += group.tagName() + u'\n';
        for (const auto &[name, value] : tree.attributesOf(group))
            text += name + " = "_L1 + value + u'\n';
        return Walk::Into;
    });
    return text;
}

void Config::printConfigTree() const { printText(configTreeText()); }

void Config::printConfigTree(QDomNode node) const { printText(configTreeText(node)); }

} // namespace libconfig
