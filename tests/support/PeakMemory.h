#pragma once

#include <cstddef>

namespace tessaro::test {

/// How many times the memory a sanitized program may take: shadows, and freed memory kept back.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr std::size_t memoryFactor = 16;
#else
inline constexpr std::size_t memoryFactor = 1;
#endif

/// The most memory that this process held at once since the object was made (proc(5), VmHWM).
class PeakMemory {
public:
    PeakMemory();

    /// In bytes, beyond what was held at the start.
    std::size_t growth() const;

private:
    std::size_t atStart_;
};

} // namespace tessaro::test
