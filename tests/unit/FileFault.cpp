#include "FileFault.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstring>

namespace tessaro::test {

namespace {

struct Fault {
    const char* call = nullptr;
    int error = 0;
    std::size_t skip = 0;
    std::size_t times = 0;
    bool happened = false;
};

thread_local Fault fault;

bool strikes(const char* call) {
    if (!fault.call || std::strcmp(fault.call, call) != 0)
        return false;
    if (fault.skip > 0) {
        --fault.skip;
        return false;
    }
    if (fault.times == 0)
        return false;
    --fault.times;
    fault.happened = true;
    errno = fault.error;
    return true;
}

template <typename Function>
Function* next(const char* call) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, call));
}

} // namespace

FileFault::FileFault(const char* call, int error, std::size_t skip, std::size_t times) {
    fault = {call, error, skip, times};
}

FileFault::~FileFault() {
    fault = {};
}

bool FileFault::happened() const {
    return fault.happened;
}

} // namespace tessaro::test

using tessaro::test::fault, tessaro::test::strikes;

extern "C" {

int mkdir(const char* path, mode_t mode) noexcept {
    static auto* const real = tessaro::test::next<int(const char*, mode_t)>("mkdir");
    return strikes("mkdir") ? -1 : real(path, mode);
}

int mkostemp(char* pattern, int flags) {
    static auto* const real = tessaro::test::next<int(char*, int)>("mkostemp");
    return strikes("mkostemp") ? -1 : real(pattern, flags);
}

int open(const char* path, int flags, ...) {
    static auto* const real = tessaro::test::next<int(const char*, int, ...)>("open");
    if (strikes("open"))
        return -1;
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = (flags & (O_CREAT | O_TMPFILE)) ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return real(path, flags, mode);
}

int fchmod(int file, mode_t mode) noexcept {
    static auto* const real = tessaro::test::next<int(int, mode_t)>("fchmod");
    return strikes("fchmod") ? -1 : real(file, mode);
}

ssize_t write(int file, const void* bytes, size_t size) {
    static auto* const real = tessaro::test::next<ssize_t(int, const void*, size_t)>("write");
    if (!strikes("write"))
        return real(file, bytes, size);
    return fault.error == tessaro::test::FileFault::shortWrite ? real(file, bytes, (size + 1) / 2)
                                                               : -1;
}

int fsync(int file) {
    static auto* const real = tessaro::test::next<int(int)>("fsync");
    return strikes("fsync") ? -1 : real(file);
}

int rename(const char* from, const char* to) noexcept {
    static auto* const real = tessaro::test::next<int(const char*, const char*)>("rename");
    return strikes("rename") ? -1 : real(from, to);
}
}
