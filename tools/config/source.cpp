// SPDX-License-Identifier: MIT
#include "tools/config/source.h"

#include "app/ztconfiguration.h"

#include <QFile>
#include <QFileInfo>

namespace configtool {

using namespace Qt::StringLiterals;

QList<QCommandLineOption> sourceOptions()
{
    return {
        {{u"f"_s, u"file"_s},
         u"Works on FILE instead of ~/.zentaro/conf/zentaro.conf."_s,
         u"FILE"_s},
        {u"format"_s,
         u"The format of the file, cfg or xml; xml for a name that ends in .xml, otherwise cfg, "
         u"unless given."_s,
         u"FORMAT"_s}};
}

void addSourceOptions(tools::CommandLine &line)
{
    for (const QCommandLineOption &option : sourceOptions())
        line.addOption(option);
}

std::optional<Source> sourceOf(const tools::CommandLine &line)
{
    const QString path =
        line.isSet(u"file"_s) ? line.value(u"file"_s) : ZTConfiguration::userFile();
    const QString format = line.isSet(u"format"_s) ? line.value(u"format"_s) : formatOf(path);
    if (format != "cfg"_L1 && format != "xml"_L1) {
        line.wrongUsage("unknown format `"_L1 + format + "`, it is cfg or xml"_L1);
        return std::nullopt;
    }
    return Source{path, format};
}

QString formatOf(const QString &path)
{
    return path.endsWith(".xml"_L1, Qt::CaseInsensitive) ? u"xml"_s : u"cfg"_s;
}

bool isReadable(const tools::Call &call, const Source &source)
{
    const QFileInfo info(source.path);
    const bool isStream = info.exists() && !info.isFile() && !info.isDir();
    QFile file(source.path);
    if (isStream || file.open(QIODevice::ReadOnly))
        return true;
    tools::tellTrouble(call, source.path, file.errorString());
    return false;
}

std::optional<QByteArray> contentOf(const tools::Call &call, const Source &source)
{
    constexpr qint64 Portion = 65'536; // bytes read at once
    QFile file(source.path);
    QByteArray content;
    if (file.open(QIODevice::ReadOnly)) {
        for (QByteArray read = file.read(Portion);
             !read.isEmpty() && content.size() <= MaxContentBytes; read = file.read(Portion))
            content += read;
    }
    if (file.error() != QFile::NoError)
        tools::tellTrouble(call, source.path, file.errorString());
    else if (content.size() > MaxContentBytes)
        tools::tellTrouble(call, source.path, u"more than 64 MiB, which nothing reads"_s);
    else
        return content;
    return std::nullopt;
}

} // namespace configtool
