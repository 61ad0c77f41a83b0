// SPDX-License-Identifier: MIT
#include "tools/config/source.h"

#include "app/ztconfiguration.h"
#include "config/config.h"

#include <QFile>

#include <filesystem>

namespace configtool {

using namespace Qt::StringLiterals;

QList<QCommandLineOption> sourceOptions()
{
    return {
        {{u"f"_s, u"file"_s},
         u"Works on FILE instead of ~/.zentaro/conf/zentaro.conf."_s,
         u"FILE"_s},
        {u"queue"_s, u"Works on the settings of the print queue QUEUE."_s, u"QUEUE"_s},
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
    const QString queue = line.value(u"queue"_s);
    QString path = ZTConfiguration::userFile();
    QString mistake;
    if (line.isSet(u"file"_s))
        path = line.value(u"file"_s);
    else if (line.isSet(u"queue"_s))
        path = ZTConfiguration::queueFile(queue);
    const QString format = line.isSet(u"format"_s) ? line.value(u"format"_s) : formatOf(path);
    if (line.isSet(u"queue"_s) && !ZTConfiguration::isQueueName(queue))
        mistake = u'`' + queue + "` is no name of a print queue"_L1;
    else if (line.isSet(u"queue"_s) && line.isSet(u"file"_s))
        mistake = u"--file and --queue name one file each"_s;
    else if (format != "cfg"_L1 && format != "xml"_L1)
        mistake = "unknown format `"_L1 + format + "`, it is cfg or xml"_L1;
    else
        return Source{path, format};
    line.wrongUsage(mistake);
    return std::nullopt;
}

QString formatOf(const QString &path)
{
    return path.endsWith(".xml"_L1, Qt::CaseInsensitive) ? u"xml"_s : u"cfg"_s;
}

bool isMissing(const QString &path)
{
    std::error_code error;
    return std::filesystem::status(QFile::encodeName(path).constData(), error).type()
           == std::filesystem::file_type::not_found;
}

std::optional<QByteArray> contentOf(const tools::Call &call, const Source &source)
{
    QFile file(source.path);
    const QByteArray content =
        file.open(QIODevice::ReadOnly) ? libconfig::limitedContent(file) : QByteArray();
    if (isMissing(source.path))
        tools::tellTrouble(call, source.path,
                           file.errorString() + "; `zentaro config init` writes one"_L1);
    else if (file.error() != QFile::NoError)
        tools::tellTrouble(call, source.path, file.errorString());
    else if (content.size() > MaxContentBytes)
        tools::tellTrouble(call, source.path, u"more than 64 MiB, which nothing reads"_s);
    else
        return content;
    return std::nullopt;
}

int writeContent(const tools::Call &call, const QString &path, const QByteArray &content)
{
    const QString fault = libconfig::replaceFile(path, content);
    return fault.isEmpty() ? int(tools::Fine) : tools::tellTrouble(call, path, fault);
}

} // namespace configtool
