// SPDX-License-Identifier: MIT
#include "tools/command.h"

#include "app/ztconfiguration.h"
#include "tools/terminal.h"

#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <array>

#include <unistd.h>

namespace queuetool {

using namespace Qt::StringLiterals;
using namespace tools;

namespace {

/// A word as a shell would take it.
QString inShell(QString word)
{
    return word.contains(QRegularExpression(u"[^\\w@%+=:,./-]|^$"_s))
               ? u'\'' + word.replace(u'\'', "'\\''"_L1) + u'\''
               : word;
}

/// The options and arguments of a command about queues, and the scheduler's commands that do it,
/// which get names and addresses as arguments.
struct QueueCommand : CommandLine
{
    QueueCommand(const Call &call, const QString &description)
        : CommandLine(call, description)
    {
        addOption({{u"v"_s, u"verbose"_s}, u"Shows the scheduler's commands that it runs."_s});
    }

    /// As read(), and the first argument is the name of a queue, which is answered.
    QString readQueue(int arguments)
    {
        read(arguments, arguments);
        QString name = positionalArguments().first();
        if (!ZTConfiguration::isQueueName(name))
            wrongUsage(u'`' + name + "` cannot be the name of a queue"_L1);
        return name;
    }

    /// What one of the scheduler's commands writes. Where it fails, which is told in its own words,
    /// the command ends.
    QString ran(const QString &name, const QStringList &words, const QByteArray &input = {}) const
    {
        if (isSet(u"verbose"_s)) {
            QString shown = name;
            for (const QString &word : words)
                shown += u' ' + inShell(word);
            printError(shown + u'\n');
        }
        QString program = QStandardPaths::findExecutable(name);
        if (program.isEmpty()) // few people have the administrator's commands in their path
            program = QStandardPaths::findExecutable(name, {u"/usr/sbin"_s});
        if (program.isEmpty())
            throw Ended{tellTrouble(call, name, u"the package cups-client is needed for this"_s)};
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s); // the words that are looked for here
        process.setProcessEnvironment(environment);
        // Without a terminal it asks nobody for a password, of which nobody would know.
        process.setChildProcessModifier([] { setsid(); });
        process.start(program, words);
        process.write(input);
        process.closeWriteChannel();
        process.waitForFinished(-1);
        const QString errors = QString::fromUtf8(process.readAllStandardError()).trimmed();
        if ((process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
            || errors.endsWith("No destinations added."_L1)) // which is no trouble in a list
            return QString::fromUtf8(process.readAllStandardOutput());
        throw Ended{refuse(call, inOneLine(errors.section(u'\n', -1)))};
    }
};

int add(const Call &call)
{
    QueueCommand line(call, u"Makes a queue of the receipt printer at the device URI, as "
                            "socket://192.0.2.7:9100 or serial:/dev/ttyS0?baud=9600, or changes "
                            "one."_s);
    line.addPositionalArgument(u"QUEUE"_s, u"The queue's name."_s);
    line.addPositionalArgument(u"URI"_s, u"The printer's; `lpinfo -v` lists some."_s);
    line.addOption({u"encoding"_s, u"The print files' encoding; UTF-8 unless given."_s, u"NAME"_s});
    line.addOption({u"hold-faulty"_s, u"Keeps a request that breaks off instead of printing its "
                                      "beginning."_s});
    line.addOption({u"shared"_s, u"Lets other machines print to it."_s});
    const QString name = line.readQueue(2);
    const QString uri = line.positionalArguments().at(1);
    if (!uri.contains(QRegularExpression(u"^[a-z][a-z0-9+.-]*:."_s)))
        line.wrongUsage(u'`' + uri + "` is no device URI"_L1);
    QFile description(programFolder()
                      + "/" ZENTARO_DATA_FROM_BIN "/ppd/zentaro/zentaro-receipt.ppd"_L1);
    if (!description.open(QIODevice::ReadOnly))
        return tellTrouble(call, description.fileName(),
                           u"the package zentaro-cups is needed for this"_s);
    const QString encoding = line.isSet(u"encoding"_s) ? line.value(u"encoding"_s) : u"UTF-8"_s;
    if (!description.readAll().contains("\n*Encoding " + encoding.toUtf8() + '/'))
        line.wrongUsage("no queue has the encoding `"_L1 + encoding + u'`');
    QStringList words = {u"-p"_s, name, u"-E"_s, u"-v"_s, uri, u"-P"_s, description.fileName()};
    for (const QString &option :
         {"Encoding="_L1 + encoding,
          "Faulty="_L1 + (line.isSet(u"hold-faulty"_s) ? "hold"_L1 : "print"_L1),
          "printer-is-shared="_L1 + (line.isSet(u"shared"_s) ? "true"_L1 : "false"_L1),
          // A printer that breaks off prints the ticket again; the scheduler would stop the queue.
          u"printer-error-policy=retry-current-job"_s})
        words += {u"-o"_s, option};
    line.ran(u"lpadmin"_s, words);
    return Fine;
}

int remove(const Call &call)
{
    QueueCommand line(call, u"Removes a queue and its jobs. Its settings stay."_s);
    line.addPositionalArgument(u"QUEUE"_s, u"The queue's name."_s);
    line.ran(u"lpadmin"_s, {u"-x"_s, line.readQueue(1)});
    return Fine;
}

/// The pattern, in which `QUEUE` stands for the name of a queue, for the lines of a list.
QRegularExpression inLines(QString pattern, const QString &queue = {})
{
    pattern.replace("QUEUE"_L1, QRegularExpression::escape(queue));
    return QRegularExpression(pattern, QRegularExpression::MultilineOption);
}

int list(const Call &call)
{
    QueueCommand line(call,
                      u"Lists the queues with their state, the jobs that wait, their printers "
                      "and what is told of them. The status is 1 when a printer or a job is "
                      "stopped."_s);
    line.read(0, 0);
    const QString lists = line.ran(u"lpstat"_s, {u"-v"_s, u"-p"_s, u"-l"_s, u"-o"_s});
    bool stopped = false;
    QString text;
    for (const auto &device : inLines(u"^device for (\\S+): (.*)$"_s).globalMatch(lists)) {
        const QString name = device.captured(1);
        const QRegularExpressionMatch printer =
            inLines(u"^printer QUEUE (?:is )?(idle|now printing|disabled|holding new jobs).*\\n"
                    "(?:\\t(.+)\\n)?"_s,
                    name)
                .match(lists);
        const QString state = printer.captured(1);
        stopped |= state == "disabled"_L1;
        QString told = printer.hasCaptured(2) ? "  "_L1 + printer.captured(2) + u'\n' : QString();
        int count = 0;
        for (const auto &job :
             inLines(u"^(QUEUE-\\d+) .*\\n(?:\\tStatus: (.*)\\n)?(?:\\tAlerts: (.*)\\n)?"_s, name)
                 .globalMatch(lists)) {
            ++count;
            stopped |= job.captured(3).contains("errors"_L1);
            if (!job.captured(2).isEmpty())
                told += "  "_L1 + job.captured(1) + ": "_L1 + job.captured(2) + u'\n';
        }
        text += name + ": "_L1 + state + ", "_L1 + QString::number(count) + " waiting, "_L1
                + device.captured(2) + u'\n' + told;
    }
    printOut(text);
    return stopped ? Findings : Fine;
}

/// Characters of European print files; what an encoding lacks comes out as `?`.
constexpr std::array characters = {
    u"àâäáãåæçèéêëìíîï", u"ñòóôöõøœùúûüýÿß",  u"ÀÂÄÁÃÅÆÇÈÉÊËÌÍÎÏ",
    u"ÑÒÓÔÖÕØŒÙÚÛÜÝŸ",   u"€£¥¢§°ªº«»¿¡±½¼µ", u"ąćęłńśźżčďěňřšťůž",
};

/// A request whose items show the columns of a ticket and a receipt of the queue, what its encoding
/// has and what its settings are.
QByteArray testPage(const QString &queue, const QString &encoding)
{
    const QString path = ZTConfiguration::queueFileInUse(queue);
    const bool isReadable = QFileInfo(path).isReadable();
    const ZTConfiguration settings(isReadable ? path : u"/dev/null"_s);
    const auto item = [](const QString &number, const QString &name) {
        return uR"(<receipe number="%1" name="%2" price="1.50" totalPrice="12.00"/>)"_s.arg(
            number.toHtmlEscaped(), name.toHtmlEscaped());
    };
    const auto method = [&](const QString &name, const QString &prefix) {
        QString text = uR"(<method name="%1"/>)"_s.arg(name);
        text += item(u"8"_s, u"1234567890"_s.repeated(10));
        for (const QString &word : {u"paperWidth"_s, u"quantityFieldWidth"_s, u"priceFieldWidth"_s,
                                    u"totalPriceFieldWidth"_s})
            text += item(settings.getStrValue(prefix + word), word);
        return text;
    };
    QString request = "<print>"_L1 + method(u"printPartialOrder"_s, u"zentaro.doc."_s);
    for (const QString &text : {queue, isReadable ? path : u"no settings"_s,
                                encoding.isEmpty() ? u"encoding unknown"_s : encoding})
        request += item({}, text);
    for (const char16_t *const row : characters)
        request += item({}, QString::fromUtf16(row));
    request += method(u"printFullOrderReceipt"_s, u"zentaro.receiptdoc."_s) + "</print>"_L1;
    return request.toUtf8();
}

int test(const Call &call)
{
    QueueCommand line(call, u"Prints a page with the columns, the settings and the characters of a "
                            "queue."_s);
    line.addPositionalArgument(u"QUEUE"_s, u"The queue's name."_s);
    const QString name = line.readQueue(1);
    const QString options = line.ran(u"lpoptions"_s, {u"-p"_s, name, u"-l"_s});
    const QString encoding = inLines(u"^Encoding/.*\\*(\\S+)"_s).match(options).captured(1);
    return printOut(line.ran(u"lp"_s,
                             {u"-d"_s, name, u"-t"_s, u"test page"_s, u"-o"_s,
                              u"document-format=application/vnd.zentaro.print-request"_s},
                             testPage(name, encoding)));
}

constexpr std::array<Command, 4> commands = {{
    {"add"_L1, "makes a queue of a printer"_L1, add},
    {"list"_L1, "tells of the queues and their jobs"_L1, list},
    {"remove"_L1, "removes a queue"_L1, remove},
    {"test"_L1, "prints a page that shows what a queue prints like"_L1, test},
}};

} // namespace

int run(const Call &call) { return dispatch(call, u"The queues of receipt printers."_s, commands); }

} // namespace queuetool
