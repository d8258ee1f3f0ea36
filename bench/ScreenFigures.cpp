// How long the screens keep the UI thread busy. A separate process measures this: a process that
// shows screens starts other processes, and the other figures would count those.

#include "Figure.h"

#include <cstdio>
#include <stdexcept>

namespace tessaro::bench {

namespace {

/// The milliseconds that tessaro-bench-inside reports for that number of accounts.
double selectOneOf(int accountCount) {
    const auto command = BENCH_INSIDE " " + std::to_string(accountCount);
    auto* const output = popen(command.c_str(), "r");
    double value = 0;
    const bool isNumber = output && std::fscanf(output, "%lf", &value) == 1;
    if (!output || pclose(output) != 0 || !isNumber)
        throw std::runtime_error(command + " failed");
    return value;
}

} // namespace

Figures screenFigures() {
    return {
        {"select one of 1,000 accounts, 10,000 Pages",
         "ms",
         [] { return selectOneOf(1'000); },
         {{4, {}, {}}}}};
}

} // namespace tessaro::bench
