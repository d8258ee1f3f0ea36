// What the screens cost the main loop. The measurement is a process of its own, because a process
// that shows screens starts others, which the figures from outside would count.

#include "Figure.h"

#include <cstdio>
#include <stdexcept>

namespace tessaro::bench {

namespace {

/// What tessaro-bench-inside says of so many accounts.
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
