#include "Platform/FileStore.h"

#include "Platform/GHandle.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace tessaro {

namespace {

constexpr mode_t ownerFile = 0600, ownerFolder = 0700;

/// The beginning of a temporary file's name. It does not hold the name of the file that it will
/// replace, which may already be as long as a name can be, and nobody calls a file of their own so.
constexpr std::string_view temporaryPrefix = ".tessaro-";
constexpr std::string_view temporaryMark = "XXXXXX";

tl::unexpected<Error> systemFailure() {
    const int code = errno;
    return failure("File", code, std::strerror(code));
}

/// Repeats a call that a signal interrupted.
template <typename Call>
auto uninterrupted(Call call) {
    for (;;) {
        const auto result = call();
        if (result != -1 || errno != EINTR)
            return result;
    }
}

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0)
            ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    explicit operator bool() const { return number_ >= 0; }

    bool writeAll(std::string_view bytes) const {
        while (!bytes.empty()) {
            const auto written =
                uninterrupted([&] { return ::write(number_, bytes.data(), bytes.size()); });
            if (written < 0)
                return false;
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }
    bool setMode(mode_t mode) const { return ::fchmod(number_, mode) == 0; }
    /// Waits until the disk has everything.
    bool sync() const {
        return uninterrupted([&] { return ::fsync(number_); }) == 0;
    }

private:
    int number_;
};

bool isTemporary(const std::string& name) {
    return name.size() == temporaryPrefix.size() + temporaryMark.size() &&
           name.starts_with(temporaryPrefix) &&
           std::all_of(name.begin() + temporaryPrefix.size(), name.end(), [](char c) {
               return g_ascii_isalnum(c);
           });
}

} // namespace

Result<void> ensureFolder(const std::filesystem::path& folder) {
    std::error_code ignored;
    if (std::filesystem::is_directory(folder, ignored))
        return {};
    if (const auto parent = folder.parent_path(); parent != folder) {
        if (const auto made = ensureFolder(parent); !made)
            return made;
    }
    if (uninterrupted([&] { return ::mkdir(folder.c_str(), ownerFolder); }) != 0)
        return systemFailure();
    restrictToOwner(folder);
    return {};
}

std::optional<std::string> readFile(const std::filesystem::path& file) {
    char* bytes = nullptr;
    gsize size = 0;
    if (!g_file_get_contents(file.c_str(), &bytes, &size, nullptr))
        return std::nullopt;
    const GCharPtr owner(bytes);
    return std::string(bytes, size);
}

Result<void> replaceFile(const std::filesystem::path& file, std::string_view bytes) {
    const auto folder = file.parent_path();
    std::string temporary = folder / std::string(temporaryPrefix).append(temporaryMark);
    const Descriptor written(
        uninterrupted([&] { return ::mkostemp(temporary.data(), O_CLOEXEC); }));
    if (!written)
        return systemFailure();
    if (!written.setMode(ownerFile) || !written.writeAll(bytes) || !written.sync() ||
        ::rename(temporary.c_str(), file.c_str()) != 0) {
        const auto reason = systemFailure();
        ::unlink(temporary.c_str());
        return reason;
    }
    // The new name itself must reach the disk too.
    const Descriptor opened(
        uninterrupted([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!opened || !opened.sync())
        return systemFailure();
    return {};
}

Result<void> setAside(const std::filesystem::path& file, TimePoint time) {
    auto stamp = formatDateTime(time);
    // Not every file system that a home folder may lie on allows colons.
    std::replace(stamp.begin(), stamp.end(), ':', '-');
    const auto wanted = file.string() + ".unreadable-" + stamp;
    auto name = wanted;
    std::error_code ignored;
    for (int number = 2; std::filesystem::exists(name, ignored); ++number)
        name = wanted + "-" + std::to_string(number);
    if (::rename(file.c_str(), name.c_str()) != 0)
        return systemFailure();
    return {};
}

void sweepTemporaryFiles(const std::filesystem::path& folder) {
    std::error_code failed;
    std::filesystem::directory_iterator entry(folder, failed), end;
    for (; !failed && entry != end; entry.increment(failed))
        if (isTemporary(entry->path().filename()))
            ::unlink(entry->path().c_str());
}

void restrictToOwner(const std::filesystem::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0)
        return;
    const mode_t mode = S_ISDIR(status.st_mode) ? ownerFolder : ownerFile;
    if ((status.st_mode & 07777) != mode)
        ::chmod(path.c_str(), mode);
}

} // namespace tessaro
