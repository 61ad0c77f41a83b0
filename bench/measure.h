// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

#include <vector>

/// Whole processes, timed from before the start to after the end.
namespace measure {

/// One command, and what its runs cost.
struct Command
{
    QByteArray name;
    QList<QByteArray> words;
    std::vector<double> milliseconds{}; ///< one a run, in the order of the rounds
    long peakKiB = 0;                   ///< the largest resident set of any run
    QList<QByteArray> variables{};      ///< "NAME=value", before those of this process
    std::vector<double> pages{};        ///< touched for the first time, one count a run
};

/// Runs every command once a round, in an order drawn anew each time; one round more than counts
/// goes before, to warm the caches. Ends the program when a command fails.
void interleave(std::vector<Command *> commands, int rounds);

struct Spread
{
    double lower, median, upper; ///< quartiles
};
Spread spreadOf(std::vector<double> values);

/// The system calls of one run, its threads' included.
double systemCalls(const Command &command);

/// What the toolkit's own libraries a program names as needed, without their version.
QList<QByteArray> neededToolkitLibraries(const QByteArray &program);

} // namespace measure
