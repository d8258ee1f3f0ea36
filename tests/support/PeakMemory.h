#pragma once

#include <cstddef>

namespace tessaro::test {

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
