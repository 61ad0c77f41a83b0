// SPDX-License-Identifier: MIT
#include "bench/inputs.h"
#include "bench/measure.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <cstdio>

using measure::Command;
using namespace Qt::StringLiterals;

namespace {

/// The goals, and how the present measurement stands to them.
class Table
{
public:
    Table() { std::printf("%-44s %22s %8s %8s\n", "measured", "", "goal", ""); }

    /// A ratio of medians, with the quartiles of the first command over the second's median.
    void ratio(const char *what, const Command &measured, const Command &against, double goal)
    {
        const measure::Spread spread = measure::spreadOf(measured.milliseconds);
        const double base = measure::spreadOf(against.milliseconds).median;
        const QByteArray text = QByteArray::number(spread.median / base, 'f', 3) + " ("
                                + QByteArray::number(spread.lower / base, 'f', 3) + " to "
                                + QByteArray::number(spread.upper / base, 'f', 3) + ")";
        row(what, text, spread.median / base, goal);
    }

    void count(const char *what, double value, double goal)
    {
        row(what, QByteArray::number(value, 'f', 0), value, goal);
    }

    void row(const char *what, const QByteArray &text, double value, double goal)
    {
        row(what, text, value, goal, value <= goal);
    }

    void row(const char *what, const QByteArray &text, double value, double goal, bool reached)
    {
        const char *verdict = reached ? "PASS" : "SHORT";
        std::printf("%-44s %22s %8.2f %8s\n", what, text.constData(), goal, verdict);
        rows += QJsonObject{{u"measured"_s, QString::fromUtf8(what)},
                            {u"value"_s, value},
                            {u"text"_s, QString::fromUtf8(text)},
                            {u"goal"_s, goal},
                            {u"verdict"_s, QString::fromUtf8(verdict)}};
    }

    QJsonArray json() const { return rows; }

private:
    QJsonArray rows;
};

QByteArray contentOf(const QByteArray &path)
{
    QFile file(QString::fromLocal8Bit(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray megabytes(double kib) { return QByteArray::number(kib / 1024, 'f', 2) + " MiB"; }

QJsonObject commandsAsJson(const std::vector<Command *> &commands)
{
    QJsonObject all;
    for (const Command *command : commands) {
        const measure::Spread spread = measure::spreadOf(command->milliseconds);
        std::printf("  %-22s %8.3f ms (%.3f to %.3f), %s\n", command->name.constData(),
                    spread.median, spread.lower, spread.upper,
                    megabytes(double(command->peakKiB)).constData());
        all[QString::fromUtf8(command->name)] =
            QJsonObject{{u"medianMs"_s, spread.median},
                        {u"lowerQuartileMs"_s, spread.lower},
                        {u"upperQuartileMs"_s, spread.upper},
                        {u"runs"_s, qint64(command->milliseconds.size())},
                        {u"peakKiB"_s, qint64(command->peakKiB)}};
    }
    return all;
}

void writeSmallInputs(const QString &folder)
{
    inputs::writeConfiguration(folder);
    inputs::writeReceipt(folder + u"/3k.xml"_s, 25);
    inputs::writeReceipt(folder + u"/10k.xml"_s, 100);
}

const QByteArray bin = ZENTARO_BIN_DIR "/";
const QByteArray source = ZENTARO_SOURCE_DIR "/";

/// What is run, with its files in the folder `in`.
struct Commands
{
    explicit Commands(const QByteArray &in)
        : in(in)
    {
        // The script makes the locale where the system has none.
        QList<QByteArray> italian{"LC_ALL=it_IT.UTF-8"};
        if (qEnvironmentVariableIsSet("BENCH_LOCPATH"))
            italian += "LOCPATH=" + qgetenv("BENCH_LOCPATH");
        coreItalian.variables = ticketItalian.variables = italian;
    }

    const QByteArray in;
    const QByteArray out = in + "out";
    const QByteArray sample = source + "samples/printFullOrderReceipt.xml";
    const QByteArray printer = bin + "zentaro-print";
    const QByteArray companion = bin + "zentaro";

    Command copy{"copy, static", {bin + "bench-copy", in + "3k.xml", out}};
    Command core{"empty, Core", {bin + "bench-empty-core"}};
    Command coreItalian{"empty, Core, it_IT", {bin + "bench-empty-core"}};
    Command all{"empty, all libraries", {bin + "bench-empty-all"}};
    Command ticket{"3 KB ticket", {printer, in + "3k.xml", out}};
    Command ticketItalian{"3 KB ticket, it_IT", {printer, in + "3k.xml", out}};
    Command longTicket{"10 KB ticket", {printer, in + "10k.xml", out}};
    Command sold{"2,000 items", {printer, in + "sold.xml", in + "sold.out"}};
    Command xslt{
        "2,000 items, xsltproc",
        {"/usr/bin/xsltproc", "-o", in + "sold.xslt", source + "bench/sold.xsl", in + "sold.xml"}};
    Command get{"config get", {companion, "config", "get", "zentaro.doc.paperWidth"}};
    Command check{"check", {companion, "check", sample}};
    Command preview{"preview", {companion, "preview", sample}};
    Command large{"40 MB request", {printer, in + "40m.xml", out}};
    Command reader{"40 MB, reader alone", {bin + "bench-reader", in + "40m.xml"}};
    Command png{"PNG of 900 lines", {companion, "preview", "-o", in + "900.png", in + "900.xml"}};

    const std::vector<Command *> small{&copy,   &core,          &coreItalian, &all,
                                       &ticket, &ticketItalian, &longTicket,  &sold,
                                       &xslt,   &get,           &check,       &preview};
    const std::vector<Command *> slow{&large, &reader, &png};
};

/// The rows of what was measured, beside the goals.
QJsonArray goals(const Commands &run)
{
    Table table;
    table.ratio("3 KB ticket / empty, all libraries", run.ticket, run.all, 1.08);
    table.ratio("3 KB ticket / empty, Core", run.ticket, run.core, 1.12);
    table.ratio("10 KB ticket / empty, Core", run.longTicket, run.core, 1.16);
    table.ratio("3 KB ticket, it_IT / empty, Core, it_IT", run.ticketItalian, run.coreItalian,
                1.15);
    table.ratio("40 MB request / reader alone", run.large, run.reader, 0.97);
    table.ratio("2,000 items / xsltproc", run.sold, run.xslt, 0.70);
    table.ratio("config get / empty, Core", run.get, run.core, 1.20);
    table.ratio("check of a sample / empty, Core", run.check, run.core, 1.40);
    table.ratio("preview of a sample / empty, Core", run.preview, run.core, 1.70);
    table.ratio("PNG of 900 lines / empty, Core", run.png, run.core, 50);
    const double grown = double(run.large.peakKiB - run.ticket.peakKiB);
    const double peak = double(qMax(run.large.peakKiB, run.ticket.peakKiB));
    table.row("peak memory, MiB", megabytes(peak), peak / 1024, 9.5);
    table.row("40 MB over 3 KB, MiB", megabytes(grown), grown / 1024, 1);
    const double drawn = double(run.png.peakKiB);
    table.row("PNG of 900 lines, MiB", megabytes(drawn), drawn / 1024, 48);
    table.count("system calls of the 3 KB ticket", measure::systemCalls(run.ticket), 235);
    table.count(
        "pages of the 3 KB ticket beyond empty, Core",
        measure::spreadOf(run.ticket.pages).median - measure::spreadOf(run.core.pages).median, 30);
    const QList<QByteArray> libraries = measure::neededToolkitLibraries(run.printer);
    table.row("needed toolkit libraries", libraries.join(' '), double(libraries.size()), 2,
              libraries == QList<QByteArray>{"Core", "Core5Compat"});
    return table.json();
}

/// Runs everything in `folder` and writes the figures to `jsonName`.
void measureAll(const QString &folder, const QString &jsonName, int smallRounds, int largeRounds)
{
    writeSmallInputs(folder);
    inputs::writeReceipt(folder + u"/40m.xml"_s, 380'000);
    inputs::writeSoldList(folder + u"/sold.xml"_s, 2'000);
    inputs::writeSoldList(folder + u"/900.xml"_s, 896); // with the marks of the section
    qputenv("HOME", folder.toLocal8Bit());
    qputenv("LC_ALL", "C.UTF-8");

    Commands run(folder.toLocal8Bit() + '/');
    measure::interleave(run.small, smallRounds);
    measure::interleave(run.slow, largeRounds);
    if (contentOf(run.in + "sold.out") != contentOf(run.in + "sold.xslt")) {
        std::fprintf(stderr, "bench: the stylesheet prints other lines\n");
        std::exit(2);
    }
    const QJsonArray rows = goals(run);
    std::printf("\n");
    std::vector<Command *> commands = run.small;
    commands.insert(commands.end(), run.slow.begin(), run.slow.end());
    const QJsonObject report{{u"goals"_s, rows}, {u"commands"_s, commandsAsJson(commands)}};
    QFile json(jsonName);
    inputs::openFor(json, QIODevice::WriteOnly);
    json.write(QJsonDocument(report).toJson());
}

} // namespace

/// bench-run JSON [SMALL-ROUNDS LARGE-ROUNDS] measures; bench-run --inputs FOLDER only writes the
/// configuration and the small requests.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() == 3 && words[1] == "--inputs"_L1) {
        writeSmallInputs(words[2]);
        return 0;
    }
    const int smallRounds = words.value(2, u"150"_s).toInt();
    const int largeRounds = words.value(3, u"15"_s).toInt();
    if (words.size() < 2 || words.size() > 4 || smallRounds < 1 || largeRounds < 1) {
        std::fprintf(stderr, "usage: bench-run JSON [SMALL-ROUNDS LARGE-ROUNDS]\n");
        return 2;
    }
    const QTemporaryDir folder(u"/dev/shm/zentaro-bench-XXXXXX"_s);
    if (!folder.isValid()) { // a disk would be measured as well
        std::fprintf(stderr, "bench: no folder can be made on the memory file system /dev/shm\n");
        return 2;
    }
    measureAll(folder.path(), words[1], smallRounds, largeRounds);
    return 0;
}
