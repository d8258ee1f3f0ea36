#pragma once

#include "Figure.h"

namespace tessaro::bench {

/// The middle value, or the mean of the two in the middle. There must be at least one value.
double median(std::vector<double> values);

/// Measures every figure `rounds` times, in turn with its peer: a busy moment of the machine then
/// slows both. Prints the table of medians. False when a target is not met.
bool printTable(const Figures& figures, int rounds);

} // namespace tessaro::bench
