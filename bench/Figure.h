#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tessaro::bench {

/// What a figure is compared with.
struct Target {
    double limit; ///< The most that the median may be: a ratio if there is a peer.
    std::string peerName;
    std::function<double()> peer; ///< Measured in the figure's unit; empty for an absolute limit.
};

/// One measurement. It prepares what it needs before it starts to count.
struct Figure {
    std::string name;
    std::string unit;
    std::function<double()> measure;
    std::vector<Target> targets; ///< Each makes one line of the table.
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

class Site;

Figures waitFigures(const std::shared_ptr<const Site>& site);
Figures holdFigures(const std::shared_ptr<const Site>& site);
Figures storeFigures();
Figures screenFigures();

} // namespace tessaro::bench
