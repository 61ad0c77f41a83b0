// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support.h"

#include <QList>
#include <QProcess>

#include <atomic>
#include <mutex>
#include <thread>

namespace support {

/// A receipt printer on a port of its own: keeps what each connection sends until its end.
class Printer
{
public:
    /// Takes a free port, on which nobody answers before switchOn().
    Printer();
    ~Printer();

    QString uri() const;
    void switchOn();
    void switchOff();
    QList<QByteArray> documents() const;
    /// Waits, two minutes at most, until there are so many.
    QList<QByteArray> documents(qsizetype count) const;

    // What befalls it.
    std::atomic<bool> isSlow = false;      ///< reads 100 KB a second
    std::atomic<bool> isBreaking = false;  ///< breaks down once in the middle of a document
    std::atomic<bool> isConnected = false; ///< a document is being sent

private:
    void open();
    void work(const std::stop_token &stop);
    QByteArray take(int connection, const std::stop_token &stop);

    int port = 0;
    int listener = -1;
    std::jthread worker;
    mutable std::mutex mutex;
    QList<QByteArray> taken;
};

/// A print scheduler of the test's own, with the filter under test.
class Scheduler
{
public:
    Scheduler();
    ~Scheduler();

    /// A file of it, as tests/print-scheduler has them.
    QString path(const QString &name) const { return folder + u'/' + name; }
    /// Kills it and starts it again.
    void restart();
    /// Runs a command as a client of it; fails the test unless the status is as expected.
    QByteArray run(const QString &program, const QStringList &words, int status = 0) const;
    /// Makes a queue with `zentaro queue add`.
    void addQueue(const QString &name, const Printer &printer,
                  const QStringList &options = {}) const;
    /// Sends a request with `lp -d` and answers the job's name.
    QString print(const QString &queue, const QByteArray &request,
                  const QStringList &options = {}) const;

private:
    QProcess process;
    QString folder;
};

} // namespace support
