// SPDX-License-Identifier: MIT
#include "bench/measure.h"

#include <QProcess>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

extern char **environ;

namespace measure {
namespace {

struct Cost
{
    double milliseconds;
    long peakKiB;
};

Cost runOnce(const Command &command)
{
    std::vector<char *> words;
    for (const QByteArray &word : command.words)
        words.push_back(const_cast<char *>(word.constData()));
    words.push_back(nullptr);

    const auto start = std::chrono::steady_clock::now();
    pid_t child = 0;
    int status = 0;
    rusage usage{};
    const bool started =
        posix_spawn(&child, words[0], nullptr, nullptr, words.data(), environ) == 0;
    const bool ended = started && wait4(child, &status, 0, &usage) == child;
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    if (!ended || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "bench: %s failed\n", command.name.constData());
        std::exit(2);
    }
    return {time.count(), usage.ru_maxrss};
}

} // namespace

void interleave(std::vector<Command *> commands, int rounds)
{
    std::mt19937 random(20'261'121);
    for (int round = -1; round < rounds; ++round) {
        std::ranges::shuffle(commands, random);
        for (Command *command : commands) {
            const Cost cost = runOnce(*command);
            if (round < 0)
                continue;
            command->milliseconds.push_back(cost.milliseconds);
            command->peakKiB = std::max(command->peakKiB, cost.peakKiB);
        }
    }
}

Spread spreadOf(std::vector<double> values)
{
    std::ranges::sort(values);
    const auto at = [&values](double part) {
        return values[size_t(part * double(values.size() - 1))];
    };
    return {at(0.25), at(0.5), at(0.75)};
}

QList<QByteArray> neededToolkitLibraries(const QByteArray &program)
{
    QProcess readelf;
    readelf.start(QStringLiteral("readelf"),
                  {QStringLiteral("-d"), QString::fromLocal8Bit(program)});
    readelf.waitForFinished();
    QList<QByteArray> libraries;
    for (const QByteArray &line : readelf.readAllStandardOutput().split('\n')) {
        const qsizetype begin = line.indexOf("[libQt6");
        if (line.contains("(NEEDED)") && begin >= 0)
            libraries += line.mid(begin + 7, line.indexOf('.', begin) - begin - 7);
    }
    std::ranges::sort(libraries);
    return libraries;
}

} // namespace measure
