// What the screens cost the main loop. Each measurement is a process of its own, because a process
// that shows screens starts others, which the figures from outside would count.

#include "Figure.h"

#include <cstdio>
#include <stdexcept>

namespace tessaro::bench {

namespace {

/// What tessaro-bench-inside says about that task.
double inside(const std::string& task, int size) {
    const auto command = BENCH_INSIDE " " + task + " " + std::to_string(size);
    auto* const output = popen(command.c_str(), "r");
    double value = 0;
    const bool isNumber = output && std::fscanf(output, "%lf", &value) == 1;
    if (!output || pclose(output) != 0 || !isNumber)
        throw std::runtime_error(command + " failed");
    return value;
}

std::function<double()> task(const std::string& name, int size) {
    return [=] { return inside(name, size); };
}

} // namespace

Figures screenFigures() {
    const Target eachSwitch{1.2, "1 switch", task("switch", 1)};
    return {
        {"select one of 1,000 accounts, 10,000 Pages", "ms", task("select", 1'000), {{4, {}, {}}}},
        {"account growth, selecting one of 100",
         "ms",
         task("select", 100),
         {{10, "one of 10", task("select", 10)}}},
        {"account growth, selecting one of 1,000",
         "ms",
         task("select", 1'000),
         {{100, "one of 10", task("select", 10)}}},
        {"scroll 1,000 accounts, 99th percentile of the frames",
         "ms",
         task("scroll", 1'000),
         {{8, {}, {}}}},
        {"scroll 1,000 accounts, most rows", "rows", task("rows", 1'000), {{250, {}, {}}}},
        {"switch growth, 10 switches, each", "ms", task("switch", 10), {eachSwitch}},
        {"switch growth, 100 switches, each", "ms", task("switch", 100), {eachSwitch}},
    };
}

} // namespace tessaro::bench
