// SPDX-License-Identifier: MIT
#pragma once

#include <QThread>

/// A pause: the thread starts at once and sleeps, and the destructor waits for its end. Made and
/// destroyed in one breath, it blocks the caller for the given number of milliseconds.
class SleepThread final : public QThread
{
public:
    explicit SleepThread(unsigned long milliseconds)
        : pause(milliseconds)
    {
        start();
    }
    ~SleepThread() override { wait(); }

protected:
    void run() override { msleep(pause); }

private:
    const unsigned long pause;
};
