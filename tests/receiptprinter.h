// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <atomic>
#include <mutex>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace support {

/// A receipt printer on a port of its own: keeps what each connection sends until its end.
class Printer
{
public:
    /// Takes a free port, on which nobody answers before switchOn().
    Printer()
    {
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
        auto *const place = reinterpret_cast<sockaddr *>(&address);
        EXPECT_EQ(bind(listener, place, sizeof address), 0);
        socklen_t size = sizeof address;
        getsockname(listener, place, &size);
        uri = QStringLiteral("socket://127.0.0.1:%1").arg(ntohs(address.sin_port));
    }
    ~Printer()
    {
        worker = {}; // is told to stop, and waited for
        close(listener);
    }

    void switchOn()
    {
        EXPECT_EQ(listen(listener, 16), 0);
        worker = std::jthread([this](const std::stop_token &stop) { work(stop); });
    }

    /// Waits, two minutes at most, until there are so many.
    QList<QByteArray> documents(qsizetype count) const
    {
        const auto all = [this] {
            const std::scoped_lock lock(mutex);
            return taken;
        };
        QElapsedTimer timer;
        timer.start();
        while (all().size() < count && timer.elapsed() < 120'000)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        EXPECT_EQ(all().size(), count);
        return all();
    }

    QString uri;
    // What befalls it.
    std::atomic<bool> isSlow = false;      ///< reads 100 KB a second
    std::atomic<bool> isBreaking = false;  ///< breaks down once in the middle of a document
    std::atomic<bool> isConnected = false; ///< a document is being sent

private:
    /// Whether there is something to take; false when nothing came for a moment.
    static bool isReady(int descriptor)
    {
        pollfd ready{descriptor, POLLIN, 0};
        return poll(&ready, 1, 20) > 0;
    }

    void work(const std::stop_token &stop)
    {
        while (!stop.stop_requested()) {
            if (!isReady(listener))
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
    QByteArray take(int connection, const std::stop_token &stop)
    {
        QByteArray document("");
        char piece[4096];
        while (!stop.stop_requested()) {
            if (!isReady(connection))
                continue;
            const ssize_t size = recv(connection, piece, sizeof piece, 0);
            if (size <= 0)
                return document;
            document.append(piece, size);
            if (isSlow)
                std::this_thread::sleep_for(std::chrono::microseconds(10 * size));
            if (isBreaking.exchange(false)) {
                const linger reset{1, 0};
                setsockopt(connection, SOL_SOCKET, SO_LINGER, &reset, sizeof reset);
                return {};
            }
        }
        return {};
    }

    const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    mutable std::mutex mutex;
    QList<QByteArray> taken;
    std::jthread worker;
};

} // namespace support
