// SPDX-License-Identifier: MIT
// The filter of the queues of receipt printers: the print scheduler starts it for every request, as
//     QUEUE JOB USER TITLE COPIES OPTIONS [FILE]
// and sends what it writes to the printer. It tells what is wrong as such filters do, in lines with
// a level on standard error. A status other than 0 stops the job, which waits for a person.
#include "app/syncsingleton.h"
#include "app/translation.h"
#include "app/ztconfiguration.h"
#include "render/companyprinterdriver.h"
#include "render/requestreader.h"
#include "text/localeencoding.h"
#include "text/system.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextCodec>
#include <QTranslator>

#include <cstdio>
#include <cstdlib>
#include <exception>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A document of more is a mistake; it is in memory until it is whole.
constexpr qint64 MaxDocumentBytes = qint64(64) * 1'024 * 1'024;

/// What the printer's state shows from a faulty request to the next one in order.
constexpr char FaultyReason[] = "zentaro.request-faulty-warning";

/// Tells the scheduler something, in one line of what it keeps and shows; "ERROR", "WARNING"...
void tell(const char *level, QString message)
{
    for (QChar &c : message)
        c = c.isPrint() ? c : u' ';
    std::fprintf(stderr, "%s: %s\n", level, message.left(500).toUtf8().constData());
}

/// Waits, a second at most, until the scheduler has read what it was told: it shows "Filter failed"
/// instead when it sees the end of the filter first.
void waitUntilHeard()
{
    int unread = 0;
    for (int i = 0; i < 200 && ioctl(STDERR_FILENO, FIONREAD, &unread) == 0 && unread > 0; ++i)
        usleep(5'000);
}

[[noreturn]] void endWithoutMemory()
{
    std::fputs("ERROR: There is not enough memory to print the request\n", stderr);
    waitUntilHeard();
    std::_Exit(EXIT_FAILURE);
}

/// An option of the job, of which the last counts, from the words of a line in which blanks, quotes
/// and backslashes are escaped; empty when it is not there.
QByteArray jobOption(const char *line, QByteArrayView name)
{
    QByteArray word;
    QByteArray value;
    const auto endWord = [&] {
        if (qstrnicmp(word, name.data(), name.size()) == 0 && word.mid(name.size(), 1) == "=")
            value = word.sliced(name.size() + 1);
        word.clear();
    };
    char quote = '\0';
    for (const char *c = line; *c != '\0'; ++c) {
        if (*c == '\\' && c[1] != '\0')
            word += *++c;
        else if (quote != '\0' ? *c == quote : *c == '"' || *c == '\'')
            quote = quote == '\0' ? *c : '\0';
        else if (quote == '\0' && *c == ' ')
            endWord();
        else
            word += *c;
    }
    endWord();
    return value;
}

/// An option as the queue has it in its printer description; empty when it has none.
QByteArray queueOption(const QByteArray &name)
{
    QFile description(qEnvironmentVariable("PPD", u"/dev/null"_s));
    if (!description.open(QIODevice::ReadOnly))
        return {};
    while (!description.atEnd()) {
        const QByteArray line = description.readLine();
        if (line.startsWith("*Default" + name + ':'))
            return line.sliced(line.indexOf(':') + 1).trimmed();
    }
    return {};
}

QByteArray option(const char *line, const QByteArray &name)
{
    const QByteArray ofJob = jobOption(line, name);
    return ofJob.isEmpty() ? queueOption(name) : ofJob;
}

/// The codec of the print file; null, for UTF-8, where nothing else is wanted or known.
QTextCodec *codecOf(const QByteArray &encoding)
{
    if (encoding.isEmpty() || encoding == "UTF-8")
        return nullptr;
    QTextCodec *const codec = QTextCodec::codecForName(encoding);
    if (!codec)
        tell("WARNING", "The encoding %1 is not known; the print file is in UTF-8"_L1.arg(
                            QString::fromUtf8(encoding)));
    return codec;
}

/// The file with the settings of the queue.
QString settingsFile(const QString &queue)
{
    QString file = ZTConfiguration::queueFileInUse(queue);
    if (!QFileInfo(file).isReadable())
        tell("WARNING", "The settings in %1 cannot be read; it prints with none"_L1.arg(file));
    return file;
}

/// The printer, which learns what of a request is not printed, where and why.
class ReceiptPrinter : public CompanyPrinterDriver, public requestreader::Observer
{
public:
    using CompanyPrinterDriver::CompanyPrinterDriver;

    bool startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
                      const QXmlAttributes &atts) override
    {
        const bool goesOn =
            CompanyPrinterDriver::startElement(namespaceURI, localName, qName, atts);
        if (!goesOn)
            fault = u"the method `%1` is not known"_s.arg(atts.value(u"name"_s));
        return goesOn;
    }
    void startSection() override
    {
        hasSection = true;
        CompanyPrinterDriver::startSection();
    }
    void taken(QStringView text, bool utf8) override
    {
        for (const QChar c : text) {
            lastLine = nextLine;
            lastColumn = nextColumn;
            requestreader::pass(nextLine, nextColumn, c, utf8);
        }
    }
    void stopped(requestreader::Stop why, const QString &word) override
    {
        const QString limit = requestreader::exceededLimit(why);
        if (fault.isEmpty())
            fault = limit.isEmpty() ? word : limit;
    }

    /// Writes what is on its way to the print file; answers what is wrong with the request, with
    /// the last character that was read, or empty text.
    QString end()
    {
        if (stream)
            stream->flush();
        if (!stream || stream->status() != QTextStream::Ok)
            fault = "its print file cannot be written: "_L1 + file->errorString();
        if (lastLine == 0)
            return u"the request is empty"_s;
        if (!fault.isEmpty())
            return u"line %1, column %2: %3"_s.arg(lastLine).arg(lastColumn).arg(fault);
        return hasSection ? QString() : u"the request names no method"_s;
    }

    bool hasSection = false; ///< without one there is nothing to print

private:
    QString fault;
    qint64 nextLine = 1;
    qint64 nextColumn = 1;
    qint64 lastLine = 0;
    qint64 lastColumn = 0;
};

/// The print file, open on a descriptor that stays the caller's.
std::unique_ptr<QFile> printFile(int descriptor, QTextCodec *codec)
{
    auto file = std::make_unique<text::LocaleFile>(QString(), codec);
    file->limitTo(MaxDocumentBytes);
    file->open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered);
    return file;
}

/// Sends the print file to the printer as often as there are copies; false when nobody takes it.
bool send(int descriptor, int copies)
{
    // What a pipe holds is printed even when the job is cancelled: no more than a page of memory.
    fcntl(STDOUT_FILENO, F_SETPIPE_SZ, 4'096);
    QFile file;
    file.open(descriptor, QIODevice::ReadOnly);
    const qint64 size = file.size();
    const uchar *const bytes = file.map(0, size);
    for (int i = 0; bytes && i < copies; ++i) {
        for (qint64 at = 0; at < size;) {
            const ssize_t taken = write(STDOUT_FILENO, bytes + at, size_t(size - at));
            if (taken <= 0)
                return false;
            at += taken;
        }
    }
    return bytes != nullptr;
}

/// Prints the job of these arguments; answers the exit status.
int printJob(int argc, char **argv)
{
    QFile request(argc > 6 ? QFile::decodeName(argv[6]) : QString());
    if (argc > 6 ? !request.open(QIODevice::ReadOnly) : !request.open(0, QIODevice::ReadOnly)) {
        tell("ERROR", "Not printed: the request cannot be read: "_L1 + request.errorString());
        return EXIT_FAILURE;
    }
    const int descriptor = memfd_create("print file", MFD_CLOEXEC);
    ReceiptPrinter printer(printFile(descriptor, codecOf(option(argv[5], "Encoding"))));
    requestreader::read(request, printer, &printer);
    const QString fault = printer.end();
    // The state of the printer shows whether its last request was faulty.
    if (!fault.isEmpty() || qgetenv("PRINTER_STATE_REASONS").contains(FaultyReason))
        std::fprintf(stderr, "STATE: %c%s\n", fault.isEmpty() ? '-' : '+', FaultyReason);
    if (!printer.hasSection || (!fault.isEmpty() && option(argv[5], "Faulty") == "hold")) {
        tell("ERROR", "Not printed: "_L1 + fault);
        return EXIT_FAILURE;
    }
    if (!fault.isEmpty())
        tell("ERROR", "Printed as far as the request goes: "_L1 + fault);
    const int copies = qMax(1, atoi(argv[4]));
    if (!send(descriptor, copies)) {
        tell("ERROR", "The printer takes no more: "_L1 + qt_error_string());
        return EXIT_FAILURE;
    }
    std::fprintf(stderr, "PAGE: 1 %d\n", copies);
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 6 && argc != 7) {
        std::fputs("Usage: zentarotoreceipt job user title copies options [file]\n", stderr);
        return EXIT_FAILURE;
    }
    std::set_terminate(endWithoutMemory);
    // Standard output is the printer: what the print run has to say goes to the scheduler's log.
    const QScopedValueRollback<std::FILE *> toLog(text::diagnostics, stderr);
    int words = 1; // the others are not the toolkit's
    const QCoreApplication application(words, argv);
    const QString queue = qEnvironmentVariable("PRINTER", QFile::decodeName(argv[0]));
    ZTConfiguration settings(settingsFile(queue));
    SyncSingleton<ZTConfiguration>::instance_pointer = &settings;
    QTranslator translator; // without a translation the texts stay as they are
    loadTranslation(translator, settings);
    QCoreApplication::installTranslator(&translator);
    const int status = printJob(argc, argv);
    if (status != EXIT_SUCCESS)
        waitUntilHeard();
    return status;
}
