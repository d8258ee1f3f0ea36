#pragma once

#include <cstddef>
#include <fstream>
#include <stdexcept>
#include <string>

namespace tessaro::test {

/// A sanitizer needs memory of its own, so limits are this many times as large under one.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr std::size_t memoryFactor = 16;
#else
inline constexpr std::size_t memoryFactor = 1;
#endif

/// The peak of this process's memory since the object was made (proc(5), VmHWM).
class PeakMemory {
public:
    PeakMemory() {
        std::ofstream("/proc/self/clear_refs") << "5"; // Forgets the peak so far.
        atStart_ = statusValue("VmRSS:");
    }

    /// In bytes, beyond the memory at the start.
    std::size_t growth() const {
        const auto peak = statusValue("VmHWM:");
        return peak > atStart_ ? peak - atStart_ : 0;
    }

private:
    static std::size_t statusValue(const std::string& key) {
        std::ifstream status("/proc/self/status");
        for (std::string line; std::getline(status, line);)
            if (line.starts_with(key))
                return std::stoul(line.substr(key.size())) * 1024;
        throw std::runtime_error("no " + key + " in /proc/self/status");
    }

    std::size_t atStart_;
};

} // namespace tessaro::test
