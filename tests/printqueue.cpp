// SPDX-License-Identifier: MIT
#include "tests/printqueue.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace support {

using namespace std::chrono_literals;

Printer::Printer() { open(); }

Printer::~Printer()
{
    switchOff();
    close(listener);
}

void Printer::open()
{
    listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int on = 1;
    setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    // As on a small network: little is on the way, so that the sender notices what the printer
    // does.
    const int window = 4'096;
    const int segment = 536;
    setsockopt(listener, SOL_SOCKET, SO_RCVBUF, &window, sizeof window);
    setsockopt(listener, IPPROTO_TCP, TCP_MAXSEG, &segment, sizeof segment);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(uint16_t(port));
    ASSERT_EQ(bind(listener, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    socklen_t size = sizeof address;
    getsockname(listener, reinterpret_cast<sockaddr *>(&address), &size);
    port = ntohs(address.sin_port);
}

QString Printer::uri() const { return u"socket://127.0.0.1:%1"_s.arg(port); }

void Printer::switchOn()
{
    ASSERT_EQ(listen(listener, 16), 0);
    worker = std::jthread([this](const std::stop_token &stop) { work(stop); });
}

void Printer::switchOff()
{
    if (!worker.joinable())
        return;
    worker.request_stop();
    worker.join();
    close(listener);
    open();
}

void Printer::work(const std::stop_token &stop)
{
    while (!stop.stop_requested()) {
        pollfd ready{listener, POLLIN, 0};
        if (poll(&ready, 1, 20) <= 0)
            continue;
        const int connection = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
        isConnected = true;
        const QByteArray document = take(connection, stop);
        close(connection);
        isConnected = false;
        const std::scoped_lock lock(mutex);
        if (!document.isNull())
            taken += document;
    }
}

/// A document; a null one where the printer breaks down.
QByteArray Printer::take(int connection, const std::stop_token &stop)
{
    QByteArray document("");
    char piece[4096];
    while (!stop.stop_requested()) {
        pollfd ready{connection, POLLIN, 0};
        if (poll(&ready, 1, 20) <= 0)
            continue;
        const ssize_t size = recv(connection, piece, sizeof piece, 0);
        if (size <= 0)
            return document;
        document.append(piece, size);
        if (isSlow)
            std::this_thread::sleep_for(10us * size);
        if (isBreaking.exchange(false)) {
            const linger reset{1, 0};
            setsockopt(connection, SOL_SOCKET, SO_LINGER, &reset, sizeof reset);
            return {};
        }
    }
    return {};
}

QList<QByteArray> Printer::documents() const
{
    const std::scoped_lock lock(mutex);
    return taken;
}

QList<QByteArray> Printer::documents(qsizetype count) const
{
    QElapsedTimer timer;
    timer.start();
    while (documents().size() < count && timer.elapsed() < 120'000)
        std::this_thread::sleep_for(10ms);
    EXPECT_EQ(documents().size(), count);
    return documents();
}

Scheduler::Scheduler()
{
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(sourceDir() + "/tests/print-scheduler"_L1, {QStringLiteral(ZENTARO_FILTER)});
    EXPECT_TRUE(process.waitForReadyRead(30'000));
    folder = QString::fromUtf8(process.readLine()).trimmed();
}

Scheduler::~Scheduler()
{
    if (testing::Test::HasFailure())
        std::cerr << readFile(path(u"error_log"_s)).right(20'000).toStdString();
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(30'000));
}

void Scheduler::restart()
{
    process.write("\n");
    EXPECT_TRUE(process.waitForReadyRead(30'000));
    process.readLine();
}

QByteArray Scheduler::run(const QString &program, const QStringList &words, int status) const
{
    const Outcome outcome = support::run(
        program, words, Home(),
        {"CUPS_SERVER="_L1 + path(u"socket"_s), "ZENTARO_CONFIG_FOLDER="_L1 + path(u"zentaro"_s)});
    EXPECT_EQ(outcome.exitStatus, status)
        << words.join(u' ').toStdString() << outcome.errors.toStdString();
    return status == 2 ? outcome.errors : outcome.output;
}

void Scheduler::addQueue(const QString &name, const Printer &printer,
                         const QStringList &options) const
{
    run(zentaroProgram(), QStringList{u"queue"_s, u"add"_s, name, printer.uri()} + options);
}

QString Scheduler::print(const QString &queue, const QByteArray &request,
                         const QStringList &options) const
{
    const Folder files;
    writeFile(files.path(u"request"_s), request);
    const QByteArray answer =
        run(u"lp"_s, QStringList{u"-d"_s, queue} + options + QStringList(files.path(u"request"_s)));
    return QString::fromUtf8(answer).section(u' ', 3, 3);
}

} // namespace support
