#pragma once

#include <cstddef>

namespace tessaro::test {

/// Makes one system call of this thread fail while the object lives. The test program replaces the
/// C library's mkdir, mkostemp, open, fchmod, write, fsync and rename. Without a fault the
/// replacements call the originals.
class FileFault {
public:
    /// With this error code a write is short instead of failing.
    static constexpr int shortWrite = -1;

    /// @param call   the function's name
    /// @param error  the value of errno
    /// @param skip   how many calls succeed first
    /// @param times  how many calls then fail
    FileFault(const char* call, int error, std::size_t skip = 0, std::size_t times = 1'000'000);
    ~FileFault();
    FileFault(const FileFault&) = delete;
    FileFault& operator=(const FileFault&) = delete;

    /// Whether a call has failed.
    bool happened() const;
};

} // namespace tessaro::test
