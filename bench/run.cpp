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

QByteArray megabytes(double kib)
{
    return QByteArray::number(kib / 1024, 'f', 2) + " MiB";
}

QJsonObject commandsAsJson(std::initializer_list<const Command *> commands)
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

/// Runs everything in `folder` and writes the figures to `jsonName`.
void measureAll(const QString &folder, const QString &jsonName, int smallRounds, int largeRounds)
{
    const QByteArray in = folder.toLocal8Bit() + '/';
    const QByteArray bin = ZENTARO_BIN_DIR "/";
    const QByteArray out = in + "out";
    const QByteArray printer = bin + "zentaro-print";
    writeSmallInputs(folder);
    inputs::writeReceipt(folder + u"/40m.xml"_s, 380'000);
    inputs::writeSoldList(folder + u"/sold.xml"_s, 2'000);
    qputenv("HOME", folder.toLocal8Bit());
    qputenv("LC_ALL", "C.UTF-8");

    Command copy{"copy, static", {bin + "bench-copy", in + "3k.xml", out}, {}, 0};
    Command core{"empty, Core", {bin + "bench-empty-core"}, {}, 0};
    Command all{"empty, all libraries", {bin + "bench-empty-all"}, {}, 0};
    Command ticket{"3 KB ticket", {printer, in + "3k.xml", out}, {}, 0};
    Command longTicket{"10 KB ticket", {printer, in + "10k.xml", out}, {}, 0};
    Command sold{"2,000 items", {printer, in + "sold.xml", in + "sold.out"}, {}, 0};
    Command xslt{"2,000 items, xsltproc",
                 {"/usr/bin/xsltproc", "-o", in + "sold.xslt", ZENTARO_SOURCE_DIR "/bench/sold.xsl",
                  in + "sold.xml"},
                 {},
                 0};
    Command large{"40 MB request", {printer, in + "40m.xml", out}, {}, 0};
    Command reader{"40 MB, reader alone", {bin + "bench-reader", in + "40m.xml"}, {}, 0};
    measure::interleave({&copy, &core, &all, &ticket, &longTicket, &sold, &xslt}, smallRounds);
    measure::interleave({&large, &reader}, largeRounds);
    if (contentOf(in + "sold.out") != contentOf(in + "sold.xslt")) {
        std::fprintf(stderr, "bench: the stylesheet prints other lines\n");
        std::exit(2);
    }

    Table table;
    table.ratio("3 KB ticket / empty, all libraries", ticket, all, 1.08);
    table.ratio("3 KB ticket / empty, Core", ticket, core, 1.15);
    table.ratio("10 KB ticket / empty, Core", longTicket, core, 1.22);
    table.ratio("40 MB request / reader alone", large, reader, 1.00);
    table.ratio("2,000 items / xsltproc", sold, xslt, 0.70);
    const double grown = double(large.peakKiB - ticket.peakKiB);
    const double peak = double(qMax(large.peakKiB, ticket.peakKiB));
    table.row("peak memory, MiB", megabytes(peak), peak / 1024, 12);
    table.row("40 MB over 3 KB, MiB", megabytes(grown), grown / 1024, 1);
    const QList<QByteArray> libraries = measure::neededToolkitLibraries(printer);
    table.row("needed toolkit libraries", libraries.join(' '), double(libraries.size()), 3,
              libraries == QList<QByteArray>{"Core", "Core5Compat", "Xml"});
    std::printf("\n");
    const QJsonObject report{
        {u"goals"_s, table.json()},
        {u"commands"_s, commandsAsJson({&copy, &core, &all, &ticket, &longTicket, &sold, &xslt,
                                        &large, &reader})}};
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
