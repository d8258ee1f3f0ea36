#pragma once

#include <algorithm>
#include <chrono>

namespace tessaro::test {

/// Measures how long the main loop was held up at most. Asked once a turn.
class LongestTurn {
public:
    void beat() {
        const auto now = std::chrono::steady_clock::now();
        longest_ = std::max(longest_, now - before_);
        before_ = now;
    }
    std::chrono::steady_clock::duration longest() const { return longest_; }

private:
    std::chrono::steady_clock::time_point before_ = std::chrono::steady_clock::now();
    std::chrono::steady_clock::duration longest_{};
};

} // namespace tessaro::test
