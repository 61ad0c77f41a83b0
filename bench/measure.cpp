// SPDX-License-Identifier: MIT
#include "bench/measure.h"

#include <QProcess>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace measure {
namespace {

struct Cost
{
    double milliseconds;
    long peakKiB;
    long pages;
};

/// Null at the end; borrowed.
std::vector<char *> pointersTo(const QList<QByteArray> &words)
{
    std::vector<char *> pointers;
    for (const QByteArray &word : words)
        pointers.push_back(const_cast<char *>(word.constData()));
    pointers.push_back(nullptr);
    return pointers;
}

Cost runOnce(const Command &command)
{
    const std::vector<char *> words = pointersTo(command.words);
    QList<QByteArray> environment = command.variables; // the first of a name counts
    for (char **variable = environ; *variable; ++variable)
        environment += *variable;
    const std::vector<char *> variables = pointersTo(environment);
    posix_spawn_file_actions_t silent;
    posix_spawn_file_actions_init(&silent);
    posix_spawn_file_actions_addopen(&silent, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);

    const auto start = std::chrono::steady_clock::now();
    pid_t child = 0;
    int status = 0;
    rusage usage{};
    const bool started =
        posix_spawn(&child, words[0], &silent, nullptr, words.data(), variables.data()) == 0;
    const bool ended = started && wait4(child, &status, 0, &usage) == child;
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    posix_spawn_file_actions_destroy(&silent);
    if (!ended || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "bench: %s failed\n", command.name.constData());
        std::exit(2);
    }
    return {time.count(), usage.ru_maxrss, usage.ru_minflt};
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
            command->pages.push_back(double(cost.pages));
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

double systemCalls(const Command &command)
{
    QProcess strace;
    QStringList words{QStringLiteral("-f"), QStringLiteral("-c")};
    for (const QByteArray &word : command.words)
        words += QString::fromLocal8Bit(word);
    strace.start(QStringLiteral("strace"), words);
    strace.waitForFinished();
    // The last line: per cent, seconds, microseconds a call, calls, errors, "total".
    const QByteArray total =
        strace.readAllStandardError().trimmed().split('\n').last().simplified();
    if (!total.endsWith("total")) {
        std::fprintf(stderr, "bench: strace tells no total\n");
        std::exit(2);
    }
    return total.split(' ').at(3).toDouble();
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
