#include "support/PeakMemory.h"

#include <fstream>
#include <stdexcept>
#include <string>

namespace tessaro::test {

namespace {

std::size_t statusValue(const std::string& key) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(key))
            return std::stoul(line.substr(key.size())) * 1024;
    }
    throw std::runtime_error("no " + key + " in /proc/self/status");
}

} // namespace

PeakMemory::PeakMemory() {
    std::ofstream("/proc/self/clear_refs") << "5"; // Forgets the peak so far.
    atStart_ = statusValue("VmRSS:");
}

std::size_t PeakMemory::growth() const {
    const auto peak = statusValue("VmHWM:");
    return peak > atStart_ ? peak - atStart_ : 0;
}

} // namespace tessaro::test
