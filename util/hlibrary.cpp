// SPDX-License-Identifier: MIT
#include "util/hlibrary.h"

#include "app/syncsingleton.h"
#include "app/ztconfiguration.h"
#include "db/databasemanager.h"
#include "text/localeencoding.h"
#include "text/system.h"
#include "util/sleepthread.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <functional>
#include <limits>
#include <system_error>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// The types of documents that have a number of copies.
constexpr std::array documentTypes = {"order"_L1,   "prefiscal"_L1, "fiscal"_L1, "receipt"_L1,
                                      "invoice"_L1, "delivery"_L1,  "report"_L1};

/// Copies a file line by line, after the first `skipped` lines, as long as `goesOn()` answers true
/// behind a line; a line longer than the buffer goes in pieces. False as HLibrary::copy() has it.
bool copyLines(const QString &src, const QString &dst, quint64 skipped,
               const std::function<bool()> &goesOn)
{
    QFile source(text::nameOfFile(QFile::encodeName(src)));
    QFile destination(text::nameOfNewFile(QFile::encodeName(dst)));
    const QFileInfo from(source);
    std::error_code differs; // set where one of them does not exist
    const bool onItself =
        from.isFile()
        && std::filesystem::equivalent(from.filesystemFilePath(),
                                       QFileInfo(destination).filesystemFilePath(), differs);
    if (source.fileName().isEmpty() || destination.fileName().isEmpty() || onItself
        || !source.open(QIODevice::ReadOnly) || !destination.open(QIODevice::WriteOnly))
        return false;
    std::array<char, 128> line = {}; // with the zero that closes it
    // Looks for a byte, since pipes and devices do not know beforehand.
    const auto atEnd = [&source] {
        char next = 0;
        return source.peek(&next, 1) < 1;
    };
    for (; skipped > 0; --skipped) {
        source.readLine(line.data(), line.size());
        if (atEnd())
            return false;
    }
    for (bool wanted = true; wanted && !atEnd(); wanted = goesOn()) {
        const qint64 length = source.readLine(line.data(), line.size());
        if (length <= 0 || destination.write(line.data(), length) != length || !destination.flush())
            return false;
    }
    destination.close();
    return source.error() == QFile::NoError && destination.error() == QFile::NoError;
}

void pauseFor(unsigned milliseconds)
{
    if (milliseconds != 0)
        const SleepThread pause(milliseconds);
}

/// Shows a line to the person at standard input's terminal, also where standard output leads
/// elsewhere.
void showOnTerminal(const QByteArray &line)
{
    QFile terminal(u"/dev/tty"_s);
    if (isatty(STDOUT_FILENO) == 0 && terminal.open(QIODevice::WriteOnly | QIODevice::ExistingOnly))
        terminal.write(line + '\n');
    else
        text::printLine(line);
}

} // namespace

QString HLibrary::setting(const QString &key)
{
    return SyncSingleton<ZTConfiguration>::instance()->getStrValue(key);
}

QString HLibrary::dataPath() { return QFile::decodeName(text::homeFolder()); }

void HLibrary::touch(const QString &path)
{
    if (!path.isEmpty()) // of which the toolkit complains on standard error
        QFile(text::nameOfNewFile(QFile::encodeName(path))).open(QIODevice::WriteOnly);
}

QString HLibrary::getNewRand()
{
    std::srand(unsigned(std::time(nullptr)));
    return QString::number(std::rand());
}

int HLibrary::comboBoxIndexOf(QComboBox *box, const QString &text)
{
    // The toolkit's own search compares values, not texts: a number equals several texts, and a
    // separator none.
    for (int index = 0; index < box->count(); ++index) {
        if (box->itemText(index) == text)
            return index;
    }
    return -1;
}

QString HLibrary::copyNumber(const QString &documentType)
{
    QString type = documentType.toLower();
    if (std::ranges::find(documentTypes, type) == documentTypes.end()) {
        text::printLine("Error into HLibrary::copyNumber::documentPath: " + text::toLocale(type));
        type = u"prefiscal"_s;
    }
    const QString group = type == documentTypes.front() ? u"doc"_s : type + "doc"_L1;
    return setting("zentaro."_L1 + group + ".copyNumber"_L1);
}

QString HLibrary::truncateDecimal(double value)
{
    constexpr double Lowest = std::numeric_limits<qint32>::min();
    constexpr double Highest = std::numeric_limits<qint32>::max();
    const double product = value * 1000;
    const int thousandths = std::isnan(product) ? 0 : int(std::clamp(product, Lowest, Highest));
    const int hundredths = thousandths / 10 + (thousandths % 10 >= 5 ? 1 : 0);
    const auto [units, decimals] = std::div(std::abs(hundredths), 100);
    return (hundredths < 0 ? "-"_L1 : ""_L1) + QString::number(units) + u'.'
           + QString::number(decimals).rightJustified(2, u'0');
}

QSqlDatabase *HLibrary::newDBConnection(const QString &connectionName)
{
    return SyncSingleton<DatabaseManager>::instance()->createConnection(
        u"QPSQL7"_s, dbname(), username(), password(), hostname(), connectionName);
}

QString HLibrary::pathWithBinaryFile(const QString &file)
{
    return setting(u"zentaro.bin.path"_s) + u'/' + file;
}

QString HLibrary::getCoreFile()
{
    return QDir::current()
        .entryList({u"core*"_s}, QDir::Files | QDir::CaseSensitive)
        .value(0, u""_s);
}

void HLibrary::askForSheet()
{
    const QString caption = tr("PaperWindow");
    const QString request = tr("Insert a new sheet");
    if (auto *const application = qobject_cast<QApplication *>(QCoreApplication::instance())) {
        const auto ask = [&] { QMessageBox::information(nullptr, caption, request); };
        if (QThread::currentThread() == application->thread())
            ask();
        else // windows belong to the application's thread
            QMetaObject::invokeMethod(application, ask, Qt::BlockingQueuedConnection);
        return;
    }
    const QByteArray line = text::toLocale(caption + ": "_L1 + request);
    if (isatty(STDIN_FILENO) == 0) {
        text::printLine(line);
        return;
    }
    showOnTerminal(line);
    std::clearerr(stdin); // an end of input typed at an earlier request
    for (int c = 0; c != '\n' && c != EOF;)
        c = std::getchar();
}

bool HLibrary::copy(const QString &src, const QString &dst, unsigned linesPerSheet,
                    unsigned pauseMs)
{
    return copyLines(src, dst, 0, [=, lines = 0U]() mutable {
        // Tested before the line is counted: the first sheet takes one line more.
        if (linesPerSheet != 0 && lines >= linesPerSheet) {
            askForSheet();
            lines = 0;
        }
        pauseFor(pauseMs);
        ++lines;
        return true;
    });
}

bool HLibrary::copy(const QString &src, const QString &dst, const QString &linesPerSheet,
                    const QString &pauseMs)
{
    return copy(src, dst, linesPerSheet.toUInt(), pauseMs.toUInt());
}

bool HLibrary::copy(const QString &src, const QString &dst, unsigned linesPerPage, unsigned pauseMs,
                    unsigned page)
{
    return copyLines(src, dst, quint64(linesPerPage) * page, [=, lines = 0U]() mutable {
        if (++lines == linesPerPage)
            return false;
        pauseFor(pauseMs);
        return true;
    });
}
