#pragma once

#include <chrono>
#include <map>
#include <string>
#include <vector>

namespace tessaro::bench {

using Clock = std::chrono::steady_clock;

/// The milliseconds since `start`.
double millisecondsSince(Clock::time_point start);

/// One program with all processes that it starts, as the kernel sees them. At most one object
/// exists at a time, because every process below this one counts as part of its tree, orphans
/// included. Throws when something cannot be measured.
class Running {
public:
    /// @param command  the program, which is searched for in PATH, and its arguments
    explicit Running(const std::vector<std::string>& command);
    /// Asks the program to end, kills it if it does not, and waits for its whole tree.
    ~Running();
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    Clock::time_point started() const { return started_; }
    /// Writes a line to the program's standard input.
    void write(const std::string& line) const;

    /// The proportional set size of the tree, in MiB: shared memory is divided among its users.
    double memory() const;
    /// Measures for that time how often any thread of the tree wakes up in a second.
    double wakeUps(std::chrono::seconds during) const;

private:
    int process_ = 0;
    int input_ = -1;
    Clock::time_point started_;
};

} // namespace tessaro::bench
