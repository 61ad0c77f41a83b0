// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QThread>

class QComboBox;
class QSqlDatabase;

/// What the programs of the suite share: names and paths, paged copies to a line printer, amounts,
/// and the settings of the database. All functions are static:
///
///     if (!HLibrary::copy(u"labels.txt"_s, u"/dev/usb/lp0"_s, 60U, 20U))
///         ...
///     const QString price = HLibrary::truncateDecimal(12.5); // "12.50"
///
/// Any thread may call those that only answer a text or copy; getNewRand() shares the C library's
/// generator, comboBoxIndexOf() a widget, newDBConnection() the DatabaseManager, each of one
/// thread.
class HLibrary
{
    Q_DECLARE_TR_FUNCTIONS(HLibrary)

public:
    HLibrary() = delete;

    /// Both empty: there is no such folder on this system.
    static QString appData() { return QStringLiteral(""); }
    static QString programFiles() { return QStringLiteral(""); }
    /// The user's home folder.
    static QString dataPath();

    /// The names of the database's own programs, to be found on the search path.
    static QString psql() { return QStringLiteral("psql"); }
    static QString dropdb() { return QStringLiteral("dropdb"); }
    static QString pg_dump() { return QStringLiteral("pg_dump"); }
    static QString pg_restore() { return QStringLiteral("pg_restore"); }

    /// Both answer their argument unchanged.
    static QString toWindowsFormat(QString path) { return path; }
    static QString fromUtf8(const QString &text) { return text; }

    /// Copies a file line by line to a file or device, which is emptied first, each line flushed
    /// and followed by a pause. A line is at most 127 bytes: a longer one counts as several. With
    /// `linesPerSheet` not 0 the first sheet takes one line more than that, and every later sheet
    /// that many; after each the user is asked for paper.
    ///
    /// Asking is a message box in a program with windows, which the application's thread shows: a
    /// copy on another thread waits for that, so the application's thread must not wait for the
    /// copy, or both stand still. Elsewhere, if standard input is a terminal, a line on it and a
    /// wait for Enter; otherwise a line on standard output.
    ///
    /// Answers false when a file does not open, when reading or writing fails, and for a file on
    /// itself, which stays as it is.
    static bool copy(const QString &src, const QString &dst, unsigned linesPerSheet,
                     unsigned pauseMs);
    /// The same with both numbers in decimal; what is no such number counts as 0.
    static bool copy(const QString &src, const QString &dst, const QString &linesPerSheet,
                     const QString &pauseMs);
    /// Copies one page of `linesPerPage` lines, the pages counted from 0; 0 lines per page copy
    /// everything. Nobody is asked for paper, and no pause follows the last line of a full page.
    /// Answers false as above, and when the source ends before the page begins; the destination is
    /// empty then.
    static bool copy(const QString &src, const QString &dst, unsigned linesPerPage,
                     unsigned pauseMs, unsigned page);

    /// Creates the file or empties it; a failure is not told.
    static void touch(const QString &path);

    /// A number drawn after seeding the C library's generator with the time in seconds: the same
    /// all through a second, and nothing to keep a secret with.
    static QString getNewRand();

    /// The index, from 0, of the first entry with exactly this text; -1 when there is none.
    static int comboBoxIndexOf(QComboBox *box, const QString &text);

    /// Blocks the calling thread.
    static void hsleep(unsigned seconds) { QThread::sleep(seconds); }

    /// The configured number of copies of a document type, as text: "order", "prefiscal", "fiscal",
    /// "receipt", "invoice", "delivery" or "report", in any letter case. Any other type is told on
    /// standard output and gets the number of "prefiscal". Empty when it is not configured.
    static QString copyNumber(const QString &documentType);

    /// An amount with two decimals: the third decimal rounds positive amounts half up, negative
    /// ones are cut; digits beyond the third never count. Amounts that reach 2147483.648 in
    /// magnitude, and infinities, give the outermost texts "2147483.65" and "-2147483.64";
    /// not-a-number gives "0.00".
    static QString truncateDecimal(double value);

    /// The database settings of the configuration; empty when not set. Each byte of the file is one
    /// character, as in ISO 8859-1: a password beyond ASCII has to be written so.
    static QString dbname() { return setting(QStringLiteral("zentaro.db.dbname")); }
    static QString username() { return setting(QStringLiteral("zentaro.db.username")); }
    static QString password() { return setting(QStringLiteral("zentaro.db.password")); }
    static QString hostname() { return setting(QStringLiteral("zentaro.db.hostname")); }
    /// Opens the configured database under a connection name; **null where that fails**, see
    /// DatabaseManager::createConnection.
    static QSqlDatabase *newDBConnection(const QString &connectionName);

    /// The configured program folder, "/" and the file name.
    static QString pathWithBinaryFile(const QString &file);
    /// The first file of the current folder whose name begins with "core"; empty without one.
    static QString getCoreFile();

private:
    static QString setting(const QString &key);
    static void askForSheet();
};
