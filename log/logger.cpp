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

QLatin1StringView nameOf(Logger::Level level)
{
    return size_t(level) < levelNames.size() ? levelNames[size_t(level)] : QLatin1StringView();
}

constexpr auto DefaultKey = "default"_L1;

bool isWord(const QString &text, QLatin1StringView word)
{
    return text.compare(word, Qt::CaseInsensitive) == 0;
}

} // namespace

Logger::Logger(QString const &)
{
    const ZTConfiguration &config = *SyncSingleton<ZTConfiguration>::instance();
    setLevel(config.getStrValue(u"zentaro.logger.level"_s));
    fileName = config.getStrValue(u"zentaro.logger.basedir"_s) + u'/'
               + config.getStrValue(u"zentaro.logger.filename"_s);
    file = std::make_unique<text::LocaleFile>(text::nameOfNewFile(text::bytesOf(fileName)));
    setType(config.getStrValue(u"zentaro.logger.type"_s));
    stream = std::make_unique<QTextStream>(file.get());
    debug(u"Start Logger"_s);
}

void Logger::setLevel(QString const &levelName)
{
    level = DEBUG;
    for (size_t i = 0; i < levelNames.size(); ++i) {
        if (isWord(levelName, levelNames[i]))
            level = Level(i);
    }
}

void Logger::setType(QString const &type)
{
    const bool append = isWord(type, "APPEND"_L1);
    if (!append && !isWord(type, "OVERWRITE"_L1))
        return;
    file->close();
    // A device or a pipe has no end to go on from: the toolkit complains of one on standard error.
    const QFileInfo target(*file);
    const bool hasEnd = target.isFile() || !target.exists();
    if (!file->open(append && hasEnd ? QIODevice::Append : QIODevice::WriteOnly))
        text::printLine("Error in the method Logger::setType(" + type.toLatin1() + ")");
}

void Logger::write(Logger::Level lvl, QString const &text)
{
    if (level > lvl || !file->isOpen())
        return;
    const QString time = QDateTime::currentDateTime().toString(u"MM-dd-yyyy hh:mm:ss:zzz");
    stream->resetStatus(); // a stream that failed once, on a full disk, would write no more
    *stream << u'[' + time + "] "_L1 + nameOf(lvl) + ": "_L1 + text + u'\n';
    stream->flush();
    while (file->bytesToWrite() > 0 && file->flush()) {
        // What a full disk has held up goes out in pieces.
    }
}

void HLogManager::set(QString const &name, QString const &key)
{
    loggers[key.isEmpty() ? QString(DefaultKey) : key] =
        owned.emplace_back(std::make_unique<Logger>(name)).get();
}

Logger *HLogManager::getLog(QString const &key)
{
    // The empty key leaves its entry behind, also where that holds nothing yet.
    return key.isEmpty() ? loggers[DefaultKey] : loggers.value(key);
}
