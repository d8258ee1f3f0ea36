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
    const char* call = "";
    int error = 0;
    std::size_t skip = 0;
    std::size_t times = 0;
    bool happened = false;
};

thread_local Fault fault;

bool strikes(const char* call) {
    if (std::strcmp(fault.call, call) != 0 || fault.times == 0)
        return false;
    if (fault.skip > 0) {
        --fault.skip;
        return false;
    }
    --fault.times;
    fault.happened = true;
    errno = fault.error;
    return true;
}

/// The C library's function of that name.
template <typename Function>
Function* real(Function&, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
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

using tessaro::test::fault, tessaro::test::strikes, tessaro::test::real;

extern "C" {

int mkdir(const char* path, mode_t mode) noexcept {
    return strikes("mkdir") ? -1 : real(mkdir, "mkdir")(path, mode);
}

int mkostemp(char* pattern, int flags) {
    return strikes("mkostemp") ? -1 : real(mkostemp, "mkostemp")(pattern, flags);
}

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = (flags & (O_CREAT | O_TMPFILE)) ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return strikes("open") ? -1 : real(open, "open")(path, flags, mode);
}

int fchmod(int file, mode_t mode) noexcept {
    return strikes("fchmod") ? -1 : real(fchmod, "fchmod")(file, mode);
}

ssize_t write(int file, const void* bytes, size_t size) {
    const bool struck = strikes("write");
    if (struck && fault.error != tessaro::test::FileFault::shortWrite)
        return -1;
    return real(write, "write")(file, bytes, struck ? (size + 1) / 2 : size);
}

int fsync(int file) {
    return strikes("fsync") ? -1 : real(fsync, "fsync")(file);
}

int rename(const char* from, const char* to) noexcept {
    return strikes("rename") ? -1 : real(rename, "rename")(from, to);
}
}
