// SPDX-License-Identifier: MIT
#include "tests/receiptprinter.h"

#include <QDir>
#include <QMap>
#include <QProcess>
#include <QTextCodec>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using support::Home;
using support::Printer;

namespace {

QByteArray sample(const QString &name)
{
    return support::readFile(support::sourceDir() + u"/samples/"_s + name);
}

/// A ticket of many lines, each of which bears the word.
QByteArray ticket(const QByteArray &word, int lines = 30)
{
    const QByteArray item = "<receipe number='1' name='" + word + "'/>\n";
    return "<print><method name='printPartialOrder'/>\n" + item.repeated(lines) + "</print>";
}

/// Tests with a scheduler that they share, and queues of their own.
class Queue : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        scheduler = std::make_unique<QProcess>();
        scheduler->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        scheduler->start(support::sourceDir() + "/tests/print-scheduler"_L1,
                         {QStringLiteral(ZENTARO_FILTER)});
        ASSERT_TRUE(scheduler->waitForReadyRead(30'000));
        folder = QString::fromUtf8(scheduler->readLine()).trimmed();
    }
    static void TearDownTestSuite()
    {
        scheduler->closeWriteChannel();
        EXPECT_TRUE(scheduler->waitForFinished(30'000));
        scheduler.reset();
    }
    ~Queue() override
    {
        if (HasFailure())
            std::cerr << support::readFile(folder + "/error_log"_L1).right(9'000).data();
        run(u"sh"_s,
            {u"-c"_s,
             u"cancel -a -x; lpstat -e | while read -r name; do lpadmin -x $name; done"_s});
    }

    /// Runs a command as the scheduler's client.
    static support::Outcome outcomeOf(const QString &program, const QStringList &words)
    {
        return support::run(program, words, Home(),
                            {"CUPS_SERVER="_L1 + folder + "/socket"_L1,
                             "ZENTARO_CONFIG_FOLDER="_L1 + folder + "/zentaro"_L1});
    }
    /// Fails the test unless the status is as expected.
    static QByteArray run(const QString &program, const QStringList &words, int status = 0)
    {
        const support::Outcome outcome = outcomeOf(program, words);
        EXPECT_EQ(outcome.exitStatus, status)
            << words.join(u' ').toStdString() << outcome.errors.toStdString();
        return status == 2 ? outcome.errors : outcome.output;
    }
    /// Runs `zentaro queue`.
    static QByteArray queue(const QStringList &words, int status = 0)
    {
        return run(support::zentaroProgram(), QStringList(u"queue"_s) + words, status);
    }
    static void addQueue(const QString &name, const Printer &printer,
                         const QStringList &options = {})
    {
        queue(QStringList{u"add"_s, name, printer.uri} + options);
    }
    /// Sends a request with `lp -d` and answers the job's name.
    static QString print(const QString &queue, const QByteArray &request,
                         const QStringList &options = {})
    {
        const support::Folder files;
        const QString file = files.path(u"request"_s);
        support::writeFile(file, request);
        const QStringList words = QStringList{u"-d"_s, queue} + options + QStringList(file);
        return QString::fromUtf8(run(u"lp"_s, words)).section(u' ', 3, 3);
    }
    /// What the scheduler says of a job: its reason and, behind a colon, the filter's word.
    static QString told(const QString &job)
    {
        for (const QString &which : {u"not-completed"_s, u"completed"_s}) {
            const QString jobs =
                QString::fromUtf8(run(u"lpstat"_s, {u"-W"_s, which, u"-l"_s, u"-o"_s}));
            const QString lines =
                (u'\n' + jobs).section(u'\n' + job + u' ', 1, 1).section(u"queued"_s, 0, 0);
            if (!lines.isEmpty())
                return which + ": "_L1 + lines.section(u"Status: "_s, 1).section(u'\n', 0, 0);
        }
        return {};
    }

    static inline std::unique_ptr<QProcess> scheduler; // as tests/print-scheduler runs it
    static inline QString folder;
};

TEST_F(Queue, PrintsRequestsAsThePrintRunDoes)
{
    Printer printer;
    printer.switchOn();
    addQueue(u"kitchen"_s, printer);
    addQueue(u"wide"_s, printer, {u"--encoding"_s, u"CP858"_s});
    const Home narrow(sample(u"zentaro-32.conf"_s));
    const Home wide(sample(u"zentaro-40.conf"_s));
    QList<QByteArray> expected;
    const auto send = [&](const QString &queue, const QByteArray &request, const QByteArray &file,
                          const QStringList &options = {}) {
        print(queue, request, options);
        expected += file;
    };
    const QDir samples(support::sourceDir() + u"/samples"_s);
    for (const QString &name : samples.entryList({u"*.xml"_s}))
        send(u"kitchen"_s, sample(name), support::printed(sample(name), narrow));
    const QByteArray letters = ticket("Caff\u00e8 5 \u20ac \u4e00", 1);
    const QString text = QString::fromUtf8(support::printed(letters, wide));
    const auto in = [&text](const char *encoding) {
        return QTextCodec::codecForName(encoding)->fromUnicode(text);
    };
    send(u"wide"_s, letters, in("IBM00858"));
    send(u"wide"_s, letters, in("ISO-8859-15"), {u"-o"_s, u"Encoding=ISO-8859-15"_s});
    send(u"wide"_s, letters, text.toUtf8(),
         {u"-o"_s, u"note='a Encoding=CP437 b'"_s, u"-o"_s, u"encoding=nosuch"_s});
    send(u"kitchen"_s, letters, support::printed(letters, narrow).repeated(3),
         {u"-n"_s, u"3"_s, u"-t"_s, u"\u00fc \"x\" 'y' $(z) \\ -o raw"_s});
    send(u"kitchen"_s, "\x1b@ a print file", "\x1b@ a print file", {u"-o"_s, u"raw"_s});
    QList<QByteArray> found = printer.documents(expected.size());
    std::ranges::sort(found); // the two queues take turns
    std::ranges::sort(expected);
    EXPECT_EQ(found, expected);
}

TEST_F(Queue, TellsWhatIsWrongWithARequest)
{
    struct Row
    {
        const char *request;
        const char *options;
        const char *told;
        const char *printed;
    };
    const Row rows[] = {
        {"<print><method name='nosuch'/></print>", "Faulty=print",
         "not-completed: Not printed: line 1, column 29: the method `nosuch` is not known", ""},
        {"<print>\n<order/>\n</print>", "Faulty=print",
         "not-completed: Not printed: the request names no method", ""},
        {"<print><method name='printAbstractOrder'/>\n<receipe></print>", "Faulty=print",
         "completed: Printed as far as the request goes: line 2, column 17: tag mismatch", "\nj\n"},
        {"<print><method name='printAbstractOrder'/>\n<receipe></print>", "Faulty=hold",
         "not-completed: Not printed: line 2, column 17: tag mismatch", ""},
        {"<print><method name='printSold'/><method name='nosuch'/></print>", "Faulty=print",
         "completed: Printed as far as the request goes: line 1, column 55: the method `nosuch` is "
         "not known",
         "\nj\n"},
        {"<print><method name='printSold'/></print>", "Faulty=hold", "completed: ", "\nj\nJ\n"},
    };
    Printer printer;
    printer.switchOn();
    addQueue(u"kitchen"_s, printer);
    QStringList jobs;
    QList<QByteArray> expected;
    for (const Row &row : rows) {
        jobs += print(u"kitchen"_s, row.request, {u"-o"_s, QString::fromLatin1(row.options)});
        if (*row.printed)
            expected += row.printed;
    }
    EXPECT_EQ(printer.documents(expected.size()), expected);
    for (size_t i = 0; i < std::size(rows); ++i)
        EXPECT_EQ(told(jobs[qsizetype(i)]), QString::fromUtf8(rows[i].told)) << i;
    EXPECT_TRUE(queue({u"list"_s}, 1).contains("tag mismatch"));
    // A person has looked, and wants it printed as it is.
    run(u"lp"_s, {u"-i"_s, jobs[3], u"-o"_s, u"Faulty=print"_s});
    run(u"lp"_s, {u"-i"_s, jobs[3], u"-H"_s, u"restart"_s});
    EXPECT_EQ(printer.documents(expected.size() + 1).last(), "\nj\n");
}

TEST_F(Queue, LosesNoJob)
{
    Printer off;
    Printer breaking;
    breaking.switchOn();
    breaking.isBreaking = true;
    addQueue(u"kitchen"_s, off);
    addQueue(u"bar"_s, breaking);
    const Home home(sample(u"zentaro-32.conf"_s));
    QList<QByteArray> expected;
    for (int i = 0; i < 4; ++i) {
        const QByteArray request = ticket("T" + QByteArray::number(i), 10'000);
        expected += support::printed(request, home);
        print(u"kitchen"_s, request);
        print(u"bar"_s, request);
    }
    EXPECT_EQ(breaking.documents(4), expected); // the first one at the second try
    const QByteArray list = queue({u"list"_s});
    EXPECT_TRUE(list.contains("kitchen: now printing, 4 waiting, socket://127.0.0.1:"))
        << list.data();
    EXPECT_TRUE(list.contains("\n  The printer may not exist or is unavailable at this time.\n"));
    scheduler->write("\n"); // is killed and starts again
    EXPECT_TRUE(scheduler->waitForReadyRead(30'000));
    off.switchOn();
    EXPECT_EQ(off.documents(4), expected);
}

TEST_F(Queue, TakesTheJobsOfManyClients)
{
    Printer printers[3];
    for (int i = 0; i < 3; ++i) {
        printers[i].switchOn();
        addQueue(u"q%1"_s.arg(i), printers[i]);
    }
    const support::Folder files;
    support::writeFile(files.path(u"ticket"_s), ticket("CLIENT"));
    const int each = qEnvironmentVariable("ZENTARO_JOBS_OF_A_CLIENT", u"6"_s).toInt();
    run(u"bash"_s, {u"-c"_s,
                    u"for c in {10..19}; do for j in $(seq 10 $((9 + $1))); do"
                    " sed s/CLIENT/c$c.$j/ \"$0\" | lp -d q$((j % 3)); done & done; wait"_s,
                    files.path(u"ticket"_s), QString::number(each)});
    const Home home(sample(u"zentaro-32.conf"_s));
    const QByteArray pattern = support::printed(ticket("c00.00"), home);
    for (int i = 0; i < 3; ++i) {
        QMap<QByteArray, QByteArray> last; // of each client
        for (const QByteArray &document : printers[i].documents(10 * each / 3)) {
            const QByteArray word = document.mid(document.indexOf('c'), 6);
            EXPECT_EQ(document, QByteArray(pattern).replace("c00.00", word));
            EXPECT_GT(word, last[word.first(3)]); // as they were sent, and only once
            last[word.first(3)] = word;
        }
    }
}

TEST_F(Queue, StopsALongDocumentThatIsCancelled)
{
    Printer printer;
    printer.isSlow = true;
    printer.switchOn();
    addQueue(u"kitchen"_s, printer);
    const QString job = print(u"kitchen"_s, ticket("x", 60'000));
    while (!printer.isConnected)
        std::this_thread::yield();
    run(u"cancel"_s, {job});
    EXPECT_LT(printer.documents(1).first().size(), 1'000'000); // of two million
    print(u"kitchen"_s, ticket("next", 1));
    EXPECT_TRUE(printer.documents(2).last().contains("next"));
}

TEST_F(Queue, IsSetUpByOneCommand)
{
    Printer printer;
    printer.switchOn();
    const QString uri = printer.uri + u"/?a=$(reboot)'b"_s;
    EXPECT_EQ(queue({u"list"_s}), "");
    queue({u"add"_s, u"k\u00fcche;x"_s, uri, u"--encoding"_s, u"CP850"_s});
    EXPECT_EQ(queue({u"list"_s}), (u"k\u00fcche;x: idle, 0 waiting, "_s + uri + u'\n').toUtf8());
    queue({u"test"_s, u"k\u00fcche;x"_s});
    const QByteArray page = printer.documents(1).first();
    EXPECT_TRUE(page.contains("\"  8 12345678901234567890123456\"@\n"
                              "\" 32 paperWidth"))
        << page.data();
    EXPECT_TRUE(page.contains("\x85\x83\x84\xa0\xc6\x86\x91\x87\x8a\x82\x88\x89\x8d\xa1\x8c\x8b"));
    EXPECT_TRUE(page.contains("encoding unknown")) << page.data();
    queue({u"remove"_s, u"k\u00fcche;x"_s});
    const std::pair<QStringList, QByteArray> rows[] = {
        {{u"add"_s, u"a/b"_s, uri}, "`a/b` cannot be the name of a queue"},
        {{u"add"_s, u"a"_s, u"192.0.2.7"_s}, "`192.0.2.7` is no device URI"},
        {{u"add"_s, u"a"_s, uri, u"--encoding"_s, u"UTF-7"_s}, "no queue has the encoding `UTF-7`"},
        {{u"add"_s, u"a"_s, u"nosuch:x"_s}, "Bad device-uri scheme \"nosuch\"."},
        {{u"remove"_s, u"a"_s}, "The printer or class does not exist."},
        {{u"test"_s, u"a"_s}, "The printer or class does not exist."},
        {{u"remove"_s, u"-v"_s, u"it's"_s}, "`it's` cannot be"},
    };
    for (const auto &[words, trouble] : rows)
        EXPECT_TRUE(queue(words, 2).contains(trouble)) << trouble.data();
}

TEST_F(Queue, KnowsRequestsByTheirContent)
{
    const Printer off;
    addQueue(u"kitchen"_s, off);
    const support::Folder files;
    const auto isRequest = [&](const QString &name, const QByteArray &content) {
        support::writeFile(files.path(name), content);
        const support::Outcome outcome =
            outcomeOf(u"lp"_s, {u"-d"_s, u"kitchen"_s, files.path(name)});
        EXPECT_TRUE(outcome.exitStatus == 0
                    || outcome.errors.contains("Unsupported document-format"));
        return outcome.exitStatus == 0;
    };
    const QByteArray space(4'000, ' ');
    const QByteArray yes[] = {
        sample(u"printReport.xml"_s),
        "\xef\xbb\xbf<print><method name='printSold'/></print>",
        "<!-- > caff\xe8 - --><?x?><!DOCTYPE print [<!ENTITY a 'b'>]>\n<print><order/></print>",
        "\n<r\xe9><method id='1'\n name = \"printAbstractOrderFiscal\" /></r\xe9>",
        "<r>" + space + "<method name='printPartialOrder'/></r>",
        "<r>" + space + space + space + "<method name='printStatementOfAccount'/></r>",
        "<print><method name='nosuch'/></print>",
    };
    for (const QByteArray &content : yes)
        EXPECT_TRUE(isRequest(u"x.xml"_s, content)) << content.left(100).data();
    for (const char *const encoding :
         {"UTF-16", "UTF-16LE", "UTF-16BE", "UTF-32", "UTF-32LE", "UTF-32BE"}) {
        const auto in = [encoding](const QString &text) {
            return QTextCodec::codecForName(encoding)->fromUnicode(text);
        };
        EXPECT_TRUE(isRequest(u"x"_s, in(u"<r><method name='printSold'/></r>"_s))) << encoding;
        EXPECT_TRUE(isRequest(u"x"_s, in(u"<print><method name='nosuch'/></print>"_s))) << encoding;
        EXPECT_FALSE(isRequest(u"x"_s, in(u"<r><method name='GET'/></r>"_s))) << encoding;
    }
    const QByteArray no[] = {
        "<?xml version='1.0'?><svg xmlns='http://www.w3.org/2000/svg'><text>print</text></svg>",
        "<methodCall><methodName>printSold</methodName></methodCall>",
        "<japi><method name='printStackTrace'/></japi>",
        "<printer/>",
        "<a><!-- <print> --></a>",
        "Please read: <method name='printSold'/>",
        "\nj\n\"a\"@\nJ\n",
    };
    for (const QByteArray &content : no)
        EXPECT_FALSE(isRequest(u"x.xml"_s, content)) << content.left(100).data();
}

TEST(Filter, StandsHostileRequests)
{
    const support::Folder folder;
    const Home home;
    const auto filter = [&](const QString &request) {
        return support::run(QStringLiteral(ZENTARO_FILTER),
                            {u"1"_s, u"till"_s, u"x"_s, u"1"_s, u""_s, request}, home,
                            {u"ZENTARO_CONFIG_FOLDER="_s + folder.path()});
    };
    const QDir corpus(support::sourceDir() + u"/fuzz/corpus/request"_s);
    const QStringList names = corpus.entryList(QDir::Files);
    EXPECT_GT(names.size(), 10);
    for (const QString &name : names) {
        const support::Outcome outcome = filter(corpus.filePath(name));
        const bool isPrinted = !outcome.output.isEmpty();
        EXPECT_EQ(outcome.exitStatus, isPrinted ? 0 : 1) << name.toStdString();
        EXPECT_EQ(outcome.errors.contains("ERROR: Not printed: "), !isPrinted)
            << name.toStdString();
    }
    // Whoever opened the pipe would wait for a writer.
    const QString pipe = folder.path(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    support::writeFile(folder.path(u"x"_s),
                       "<!DOCTYPE print SYSTEM '" + pipe.toUtf8() + "' [<!ENTITY a SYSTEM 'file://"
                           + pipe.toUtf8() + "'>]>\n<print>&a;<method name='printSold'/></print>");
    EXPECT_EQ(filter(folder.path(u"x"_s)).output, "\nj\nJ\n");
}

} // namespace
