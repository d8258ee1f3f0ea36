#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace tessaro::bench {

/// One line of the table: a measurement and what it is held against. A measurement prepares what
/// it needs outside of the time it returns.
struct Figure {
    std::string name;
    std::string unit; ///< Of what both measurements return.
    std::function<double()> measure;
    double limit; ///< Of the median, or of its ratio to the peer's median where there is a peer.
    std::string peerName;
    std::function<double()> peer; ///< Empty where the limit is absolute.
};

using Figures = std::vector<Figure>;

/// The milliseconds that `work` takes.
template <typename Work>
double milliseconds(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> taken =
        std::chrono::steady_clock::now() - start;
    return taken.count();
}

Figures storeFigures();
Figures logFigures();

} // namespace tessaro::bench
