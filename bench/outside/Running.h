#pragma once

#include <chrono>
#include <map>
#include <string>
#include <vector>

namespace tessaro::bench {

using Clock = std::chrono::steady_clock;

/// The milliseconds since then.
double millisecondsSince(Clock::time_point start);

/// One program with all processes that it starts, as the kernel sees them. At most one exists at a
/// time: every process below this one is taken to be of its tree, orphans included. What cannot be
/// measured throws.
class Running {
public:
    /// @param command  the program, looked for in PATH, and its arguments
    explicit Running(const std::vector<std::string>& command);
    /// Asks the program to end, after a while makes it, and waits for its whole tree.
    ~Running();
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    Clock::time_point started() const { return started_; }
    /// Gives the program a line on its standard input.
    void write(const std::string& line) const;

    /// Proportional set size of the tree, in MiB: what is shared counts by its share.
    double memory() const;
    /// How often a thread of the tree woke up, each second, during that time from now on.
    double wakeUps(std::chrono::seconds during) const;

private:
    int process_ = 0;
    int input_ = -1;
    Clock::time_point started_;
};

} // namespace tessaro::bench
