// SPDX-License-Identifier: MIT
#pragma once

namespace tools {

/// Sends what this process writes to standard output somewhere else, as long as it lives.
class DivertedOutput
{
public:
    enum class Target { Errors, Nowhere };

    explicit DivertedOutput(Target target);
    DivertedOutput(const DivertedOutput &) = delete;
    DivertedOutput &operator=(const DivertedOutput &) = delete;
    ~DivertedOutput();

private:
    int output; // the descriptor that standard output had; -1: none
};

} // namespace tools
