// SPDX-License-Identifier: MIT
// What a ticket costs on its way through a queue: the filter beside the print run, `lp` to the last
// byte at the printer, and many jobs on several queues, on a scheduler and printers of its own.
#include "bench/inputs.h"
#include "bench/measure.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <cstdlib>

using measure::Command;
using namespace Qt::StringLiterals;

namespace {

constexpr int JobsPerQueue = 60;

/// Starts a program; ends this one when that fails.
void start(QProcess &process, const QString &program, const QStringList &words)
{
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, words);
    if (!process.waitForStarted()) {
        std::fprintf(stderr, "bench: %s does not start\n", qPrintable(program));
        std::exit(2);
    }
}

/// Printers that take all that they are sent and keep count of the documents.
class Printers
{
public:
    Printers()
    {
        for (QTcpServer &server : servers) {
            server.listen(QHostAddress::LocalHost);
            QObject::connect(&server, &QTcpServer::newConnection, [this, &server] {
                QTcpSocket *const socket = server.nextPendingConnection();
                QObject::connect(socket, &QTcpSocket::readyRead, [socket] { socket->readAll(); });
                QObject::connect(socket, &QTcpSocket::disconnected, [this, socket] {
                    ++documents;
                    socket->deleteLater();
                });
            });
        }
    }

    /// Waits until there were so many documents in all.
    void waitFor(int count) const
    {
        while (documents < count)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QString uri(size_t number) const
    {
        return u"socket://127.0.0.1:%1"_s.arg(servers[number].serverPort());
    }
    int count() const { return documents; }
    size_t size() const { return servers.size(); }

private:
    std::array<QTcpServer, 3> servers;
    int documents = 0;
};

void tell(const char *what, double value, double goal)
{
    std::printf("%-44s %22.3f %8.2f %8s\n", what, value, goal, value <= goal ? "PASS" : "SHORT");
}

void measureFilter(const QString &folder)
{
    const QByteArray in = folder.toLocal8Bit();
    qputenv("HOME", in);
    qputenv("ZENTARO_CONFIG_FOLDER", in + "/.zentaro/conf");
    qputenv("PPD", ZENTARO_SOURCE_DIR "/cups/zentaro-receipt.ppd");
    const auto command = [](const char *name, const QByteArray &line) { // both through a shell
        return Command{
            name, {"/bin/sh", "-c", "exec " ZENTARO_BIN_DIR "/" + line + " 2>&1"}, {}, 0};
    };
    Command print = command("3 KB ticket", "zentaro-print " + in + "/3k.xml " + in + "/out");
    Command filter = command("the same through the filter",
                             "zentarotoreceipt 1 till x 1 '' " + in + "/3k.xml >" + in + "/out");
    measure::interleave({&print, &filter}, 150);
    tell("filter / zentaro-print",
         measure::spreadOf(filter.milliseconds).median
             / measure::spreadOf(print.milliseconds).median,
         1.15);
}

void measureQueues(const QString &folder)
{
    QProcess scheduler;
    start(scheduler, ZENTARO_SOURCE_DIR "/tests/print-scheduler"_L1,
          {ZENTARO_BIN_DIR "/zentarotoreceipt"_L1});
    scheduler.waitForReadyRead(-1);
    qputenv("CUPS_SERVER", scheduler.readLine().trimmed() + "/socket");
    Printers printers;
    for (size_t i = 0; i < printers.size(); ++i)
        QProcess::execute(ZENTARO_BIN_DIR "/zentaro"_L1,
                          {u"queue"_s, u"add"_s, u"q%1"_s.arg(i), printers.uri(i)});

    const QString request = folder + "/3k.xml"_L1;
    std::vector<double> seconds;
    QElapsedTimer timer;
    for (int i = 0; i < 30; ++i) {
        timer.start();
        QProcess lp;
        start(lp, u"lp"_s, {u"-d"_s, u"q0"_s, request});
        printers.waitFor(printers.count() + 1);
        seconds.push_back(double(timer.elapsed()) / 1000);
        lp.waitForFinished();
    }
    tell("lp to the last byte at the printer, s, median", measure::spreadOf(seconds).median, 0.5);

    timer.start();
    const int before = printers.count();
    std::array<QProcess, 3> tills;
    for (size_t i = 0; i < tills.size(); ++i)
        start(tills[i], u"sh"_s,
              {u"-c"_s, u"for i in $(seq %1); do lp -d q%2 \"$0\"; done"_s.arg(JobsPerQueue).arg(i),
               request});
    printers.waitFor(before + JobsPerQueue * int(tills.size()));
    tell("60 jobs on each of 3 queues, s", double(timer.elapsed()) / 1000, 15);
    for (QProcess &till : tills)
        till.waitForFinished();
    scheduler.closeWriteChannel();
    scheduler.waitForFinished(-1);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder(u"/dev/shm/zentaro-bench-XXXXXX"_s);
    inputs::writeConfiguration(folder.path());
    inputs::writeReceipt(folder.path() + "/3k.xml"_L1, 25);
    std::printf("%-44s %22s %8s\n", "measured", "", "goal");
    measureFilter(folder.path());
    measureQueues(folder.path());
    return 0;
}
