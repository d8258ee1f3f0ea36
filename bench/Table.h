#pragma once

#include "Figure.h"

namespace tessaro::bench {

/// The middle value, or the mean of the two in the middle; there must be one at least.
double median(std::vector<double> values);

/// Measures every figure and its peer `rounds` times, in turn, so that a busy moment of the machine
/// falls on both sides, and prints the table of medians. False when a target is not met.
bool printTable(const Figures& figures, int rounds);

} // namespace tessaro::bench
