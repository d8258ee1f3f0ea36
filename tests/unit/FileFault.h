#pragma once

#include <cstddef>

namespace tessaro::test {

/// Makes one system call of this thread fail for as long as the object lives. The test program has
/// functions of its own in the place of the C library's mkdir, mkostemp, open, fchmod, write, fsync
/// and rename; without a fault they pass everything on.
class FileFault {
public:
    /// The error code that lets a write fall short instead of failing.
    static constexpr int shortWrite = -1;

    /// @param call   the function's name
    /// @param error  what errno becomes
    /// @param skip   how many calls go well before
    /// @param times  how many calls fail then
    FileFault(const char* call, int error, std::size_t skip = 0, std::size_t times = 1'000'000);
    ~FileFault();
    FileFault(const FileFault&) = delete;
    FileFault& operator=(const FileFault&) = delete;

    /// Whether the call came and failed.
    bool happened() const;
};

} // namespace tessaro::test
