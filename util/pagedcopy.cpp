// SPDX-License-Identifier: MIT
#include "text/filename.h"
#include "text/localeencoding.h"
#include "text/standardoutput.h"
#include "util/hlibrary.h"
#include "util/sleepthread.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>

#include <array>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A copy on its way, line by line; a line longer than the buffer goes in pieces.
class LineCopy
{
public:
    LineCopy(const QString &src, const QString &dst)
        : source(text::nameOfFile(QFile::encodeName(src)))
        , destination(text::nameOfNewFile(QFile::encodeName(dst)))
    {
    }

    bool open()
    {
        const QFileInfo from(source);
        const bool named = !source.fileName().isEmpty() && !destination.fileName().isEmpty();
        std::error_code differs; // set where one of them does not exist
        const bool onItself =
            from.isFile()
            && std::filesystem::equivalent(from.filesystemFilePath(),
                                           QFileInfo(destination).filesystemFilePath(), differs);
        return named && !onItself && source.open(QIODevice::ReadOnly)
               && destination.open(QIODevice::WriteOnly);
    }

    /// Whether the source has no more. Looks for a byte, since pipes and devices do not know
    /// beforehand.
    bool atEnd()
    {
        char next = 0;
        return source.peek(&next, 1) < 1;
    }

    qint64 readLine() { return source.readLine(line.data(), line.size()); }

    bool copyLine()
    {
        const qint64 length = readLine();
        return length > 0 && destination.write(line.data(), length) == length
               && destination.flush();
    }

    /// Closes both files; whether all went well with them.
    bool finish()
    {
        destination.close();
        return source.error() == QFile::NoError && destination.error() == QFile::NoError;
    }

private:
    QFile source;
    QFile destination;
    std::array<char, 128> line = {}; // with the zero that closes it
};

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

void waitForEnter()
{
    std::clearerr(stdin); // an end of input typed at an earlier request
    for (int c = 0; c != '\n' && c != EOF;)
        c = std::getchar();
}

} // namespace

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
    waitForEnter();
}

bool HLibrary::copy(const QString &src, const QString &dst, unsigned linesPerSheet,
                    unsigned pauseMs)
{
    LineCopy copy(src, dst);
    if (!copy.open())
        return false;
    unsigned lines = 0;
    while (!copy.atEnd()) {
        if (!copy.copyLine())
            return false;
        // Tested before the line is counted: the first sheet takes one line more.
        if (linesPerSheet != 0 && lines >= linesPerSheet) {
            askForSheet();
            lines = 0;
        }
        pauseFor(pauseMs);
        ++lines;
    }
    return copy.finish();
}

bool HLibrary::copy(const QString &src, const QString &dst, const QString &linesPerSheet,
                    const QString &pauseMs)
{
    return copy(src, dst, linesPerSheet.toUInt(), pauseMs.toUInt());
}

bool HLibrary::copy(const QString &src, const QString &dst, unsigned linesPerPage, unsigned pauseMs,
                    unsigned page)
{
    LineCopy copy(src, dst);
    if (!copy.open())
        return false;
    const quint64 skipped = quint64(linesPerPage) * page;
    for (quint64 i = 0; i < skipped; ++i) {
        copy.readLine();
        if (copy.atEnd())
            return false;
    }
    for (unsigned lines = 0; (linesPerPage == 0 || lines < linesPerPage) && !copy.atEnd();) {
        if (!copy.copyLine())
            return false;
        if (++lines != linesPerPage)
            pauseFor(pauseMs);
    }
    return copy.finish();
}
