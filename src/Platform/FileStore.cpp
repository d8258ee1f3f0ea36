#include "Platform/FileStore.h"

#include "Platform/DateTime.h"
#include "Platform/GHandle.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

namespace tessaro {

namespace {

constexpr mode_t ownerFile = 0600, ownerFolder = 0700;

/// The beginning of a temporary file's name. It does not contain the name of the file that is
/// replaced, because that name may already be as long as file systems allow.
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
            if (written <= 0)
                return false;
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }
    /// Takes the lock of the open file, which ends with it. Fails with errno at once.
    bool lock() const { return ::flock(number_, LOCK_EX | LOCK_NB) == 0; }
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

void takeFromOthers(const std::filesystem::path& path, std::filesystem::file_status status) {
    using std::filesystem::perms;
    constexpr auto others = perms::group_all | perms::others_all;
    if (!std::filesystem::exists(status) || std::filesystem::is_symlink(status) ||
        (status.permissions() & others) == perms::none)
        return;
    std::error_code ignored;
    std::filesystem::permissions(path, others, std::filesystem::perm_options::remove, ignored);
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
    if (uninterrupted([&] { return ::mkdir(folder.c_str(), ownerFolder); }) != 0) {
        const auto reason = systemFailure();
        // Another thread may have been quicker.
        return std::filesystem::is_directory(folder, ignored) ? Result<void>() : reason;
    }
    // The umask may have taken bits from the owner too.
    if (::chmod(folder.c_str(), ownerFolder) != 0)
        return systemFailure();
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

Result<void>
replaceFile(const std::filesystem::path& file, std::string_view bytes, Durability durability) {
    const auto folder = file.parent_path();
    std::string temporary;
    const Descriptor written(uninterrupted([&] {
        temporary = folder / std::string(temporaryPrefix).append(temporaryMark);
        return ::mkostemp(temporary.data(), O_CLOEXEC);
    }));
    if (!written)
        return systemFailure();
    const bool waits = durability == Durability::powerCut;
    if (!written.setMode(ownerFile) || !written.writeAll(bytes) || (waits && !written.sync()) ||
        ::rename(temporary.c_str(), file.c_str()) != 0) {
        const auto reason = systemFailure();
        ::unlink(temporary.c_str());
        return reason;
    }
    if (!waits)
        return {};
    // The new name itself must reach the disk too.
    const Descriptor opened(
        uninterrupted([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!opened || !opened.sync())
        return systemFailure();
    return {};
}

Result<void> setAside(const std::filesystem::path& file, TimePoint time) {
    auto stamp = formatDateTime(time);
    // Some file systems do not allow colons.
    std::replace(stamp.begin(), stamp.end(), ':', '-');
    const auto wanted = file.string() + ".unreadable-" + stamp;
    auto name = wanted;
    std::error_code ignored;
    for (int number = 2; std::filesystem::exists(name, ignored); ++number)
        name = wanted + "-" + std::to_string(number);
    if (::rename(file.c_str(), name.c_str()) != 0 && errno != ENOENT)
        return systemFailure();
    return {};
}

std::shared_ptr<void>
lockFolder(const std::filesystem::path& folder, std::chrono::milliseconds patience) {
    constexpr std::chrono::milliseconds pause(20);
    ensureFolder(folder);
    const auto file = folder / ".lock";
    const auto lock = std::make_shared<Descriptor>(uninterrupted(
        [&] { return ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, ownerFile); }));
    while (*lock && !lock->lock() && errno == EWOULDBLOCK) {
        if (patience <= pause)
            return nullptr;
        patience -= pause;
        std::this_thread::sleep_for(pause);
    }
    return lock;
}

void makePrivate(const std::filesystem::path& folder) {
    std::error_code failed;
    takeFromOthers(folder, std::filesystem::status(folder, failed));
    std::filesystem::directory_iterator entry(folder, failed), end;
    for (; !failed && entry != end; entry.increment(failed)) {
        std::error_code ignored;
        if (isTemporary(entry->path().filename()))
            std::filesystem::remove(entry->path(), ignored);
        else
            takeFromOthers(entry->path(), entry->symlink_status(ignored));
    }
}

} // namespace tessaro
