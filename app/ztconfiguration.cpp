// SPDX-License-Identifier: MIT
#include "app/ztconfiguration.h"

#include "text/system.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The text without the characters that ISO 8859-1 lacks. Few texts hold one; the others are not
/// copied.
QString inLatin1(const QString &text)
{
    const auto isLatin1 = [](QChar c) { return c.unicode() <= 0xFF; };
    return std::ranges::all_of(text, isLatin1) ? text : QString::fromLatin1(text.toLatin1());
}

QString fileOfQueues(const QByteArray &name)
{
    const QByteArray folder = qgetenv("ZENTARO_CONFIG_FOLDER");
    return text::nameInFolder((folder.isEmpty() ? "/etc/zentaro" : folder) + '/' + name);
}

} // namespace

ZTConfiguration::ZTConfiguration()
    : ZTConfiguration(userFile())
{
}

ZTConfiguration::ZTConfiguration(const QString &cfgFile)
{
    // What readFile() does for this format, but without the floor that knows the other.
    fileName = cfgFile;
    fileType = u"cfg"_s;
    loadFile();
}

QString ZTConfiguration::userFile()
{
    return text::nameInFolder(text::homeFolder() + "/.zentaro/conf/zentaro.conf");
}

QString ZTConfiguration::queueFile(const QString &queue)
{
    return fileOfQueues("queues/" + queue.toUtf8() + ".conf");
}

QString ZTConfiguration::queueFileInUse(const QString &queue)
{
    QString own = queueFile(queue);
    return QFile::exists(own) ? own : fileOfQueues("zentaro.conf");
}

bool ZTConfiguration::isQueueName(const QString &name)
{
    constexpr QStringView reserved = u"/\\?#,@'\"";
    const qsizetype size = name.toUtf8().size();
    return size > 0 && size <= 127 && !name.startsWith(u'-')
           && std::ranges::all_of(name, [&](QChar c) {
                  return c > u' ' && c != QChar(0x7F) && !reserved.contains(c);
              });
}

QString ZTConfiguration::getStrValue(const QString &key) const
{
    return inLatin1(lookup(inLatin1(key)));
}
