// SPDX-License-Identifier: MIT
#include "log/hlogmanager.h"

#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "text/localeencoding.h"
#include "text/system.h"

#include <QDateTime>
#include <QFileInfo>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The printed names, by level.
constexpr std::array levelNames = {"DEBUG"_L1, "INFO"_L1, "WARNING"_L1, "ERROR"_L1, "FATAL"_L1};

} // namespace

Logger::Logger(QString const &)
{
    const ZTConfiguration &config = *SyncSingleton<ZTConfiguration>::instance();
    setLevel(config.getStrValue(u"zentaro.logger.level"_s));
    fileName = config.getStrValue(u"zentaro.logger.basedir"_s) + u'/'
               + config.getStrValue(u"zentaro.logger.filename"_s);
    file = std::make_unique<text::LocaleFile>();
    setType(config.getStrValue(u"zentaro.logger.type"_s));
    stream = std::make_unique<QTextStream>(file.get());
    debug(u"Start Logger"_s);
}

void Logger::setLevel(QString const &levelName)
{
    level = DEBUG;
    for (size_t i = 0; i < levelNames.size(); ++i) {
        if (levelName.compare(levelNames[i], Qt::CaseInsensitive) == 0)
            level = Level(i);
    }
}

void Logger::setType(QString const &type)
{
    const bool append = type.compare("APPEND"_L1, Qt::CaseInsensitive) == 0;
    if (!append && type.compare("OVERWRITE"_L1, Qt::CaseInsensitive) != 0)
        return;
    file->close();
    file->setFileName(text::nameOfNewFile(text::bytesOf(fileName)));
    // A device or a pipe has no end to go on from: the toolkit complains of one on standard error.
    const QFileInfo target(*file);
    const bool hasEnd = target.isFile() || !target.exists();
    if (file->fileName().isEmpty()
        || !file->open(append && hasEnd ? QIODevice::Append : QIODevice::WriteOnly))
        text::printLine("Error in the method Logger::setType(" + type.toLatin1() + ")");
}

void Logger::write(Logger::Level lvl, QString const &text)
{
    if (level > lvl || !file->isOpen())
        return;
    const auto name = size_t(lvl) < levelNames.size() ? levelNames[size_t(lvl)] : ""_L1;
    const QString time = QDateTime::currentDateTime().toString(u"MM-dd-yyyy hh:mm:ss:zzz");
    stream->resetStatus(); // a stream that failed once, on a full disk, would write no more
    *stream << u'[' + time + "] "_L1 + name + ": "_L1 + text + u'\n';
    stream->flush();
    while (file->bytesToWrite() > 0 && file->flush()) {
        // What a full disk has held up goes out in pieces.
    }
}

void HLogManager::set(QString const &name, QString const &key)
{
    loggers[key.isEmpty() ? u"default"_s : key] =
        owned.emplace_back(std::make_unique<Logger>(name)).get();
}

Logger *HLogManager::getLog(QString const &key)
{
    // The empty key leaves its entry behind, also where that holds nothing yet.
    return key.isEmpty() ? loggers[u"default"_s] : loggers.value(key);
}
