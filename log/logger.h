// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>
#include <QTextStream>

#include <memory>

/// Writes levelled, time-stamped lines to the log file of the configuration (the settings `level`,
/// `basedir`, `filename` and `type` of "zentaro.logger"), in the encoding of the user's locale.
/// Lines that cannot be written, because the file is not open or the disk is full, are lost without
/// a word.
///
///     SyncSingleton<HLogManager>::instance()->set(u"till"_s, {});
///     SyncSingleton<HLogManager>::instance()->getLog({})->warning(u"the drawer is open"_s);
///
/// A Logger locks nothing: callers on several threads serialise their calls themselves.
class Logger
{
public:
    /// In the order of their weight. A value outside of these is compared by its number and has an
    /// empty name.
    enum Level : int { DEBUG, INFO, WARNING, ERROR, FATAL };

    /// Opens the configured file and writes the DEBUG line "Start Logger". The name is not used:
    /// every Logger writes to the one configured file, through a file handle of its own.
    explicit Logger(QString const &name);
    Logger(const Logger &) = delete;
    Logger &operator=(const Logger &) = delete;

    /// Sets the threshold, below which lines are dropped, by its name in any letter case ("DEBUG"
    /// to "FATAL"). Any other text gives DEBUG.
    void setLevel(QString const &levelName);

    /// Opens the file, in any letter case: "APPEND" keeps what it holds, "OVERWRITE" empties it; an
    /// open file is closed first. Any other text changes nothing. A file that cannot be opened is
    /// told in one line on standard output.
    void setType(QString const &type);

    /// Writes `[MM-dd-yyyy hh:mm:ss:zzz] LEVEL: text` and a line feed, in local time, if `lvl`
    /// reaches the threshold; the line is in the file when the call returns. Line feeds inside the
    /// text pass as they are.
    void write(Logger::Level lvl, QString const &text);

    void fatal(QString const &text) { write(FATAL, text); }
    void error(QString const &text) { write(ERROR, text); }
    void warning(QString const &text) { write(WARNING, text); }
    void info(QString const &text) { write(INFO, text); }
    void debug(QString const &text) { write(DEBUG, text); }

private:
    std::unique_ptr<QFile> file;
    std::unique_ptr<QTextStream> stream; // over file, and so declared after it
    Level level = DEBUG;
    QString fileName; // base directory, "/" and file name as configured
};
