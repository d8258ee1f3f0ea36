#include "Services/AppLogger.h"

#include "Platform/FileStore.h"
#include "Platform/Paths.h"
#include "Platform/Text.h"

#include <ctime>
#include <fstream>
#include <utility>

namespace tessaro {

namespace {

/// A block that is longer is closed, and a new one begins. Blocks are small, so that appending
/// never moves a long text in memory while the caller waits.
constexpr std::size_t blockSize = 64 * 1024;

/// Lines are dropped while more blocks than this wait, so that a disk that hangs does not fill the
/// memory.
constexpr std::size_t queueLimit = 4096;

std::string formatLocalTime(Clock::TimePoint time, const char* pattern) {
    const auto seconds = std::chrono::system_clock::to_time_t(time);
    tzset(); // localtime_r() alone need not heed the time zone (POSIX).
    std::tm local{};
    localtime_r(&seconds, &local);
    char text[32];
    return {text, std::strftime(text, sizeof text, pattern, &local)};
}

} // namespace

AppLogger::AppLogger(std::filesystem::path folder, const DeviceIdentity& device, const Clock& clock)
    : folder_(std::move(folder)), device_(device), clock_(clock) {}

AppLogger& AppLogger::shared() {
    static AppLogger logger(
        paths::dataFolder() / "logs", DeviceIdentity::shared(), SystemClock::shared());
    return logger;
}

void AppLogger::log(const std::string& message, const std::string& level) {
    const std::lock_guard lock(mutex_);
    if (queued_.size() > queueLimit)
        return;
    if (queued_.empty() || queued_.back().size() > blockSize) {
        queued_.emplace_back();
        writer_.post([this] { writeNextBlock(); });
    }
    const auto stamp = formatLocalTime(clock_.now(), "%Y-%m-%d %H:%M:%S");
    auto& block = queued_.back();
    block.append("[").append(stamp).append("] [").append(level).append("] ");
    block.append(message).append("\n");
}

std::filesystem::path AppLogger::currentLogURL() const {
    ensureFolder(folder_);
    return folder_ /
           (device_.getDeviceUUID() + "-" + formatLocalTime(clock_.now(), "%d-%m-%Y") + ".log");
}

std::string AppLogger::readCurrentLog() const {
    const auto file = currentLogURL();
    std::error_code ignored;
    if (!std::filesystem::exists(file, ignored))
        return "Chưa có log ghi nhận hôm nay.";
    const auto text = readFile(file);
    if (!text || !isValidUtf8(*text))
        return "Không thể đọc nội dung file log.";
    return *text;
}

void AppLogger::writeNextBlock() {
    std::unique_lock lock(mutex_);
    const auto block = std::move(queued_.front());
    queued_.pop_front();
    lock.unlock();
    append(block);
}

void AppLogger::append(const std::string& block) const {
    // A damaged message must not make the whole file unreadable.
    const auto text = toValidUtf8(block);
    const auto file = currentLogURL();
    std::error_code ignored;
    if (std::filesystem::exists(file, ignored))
        std::fstream(file, std::ios::in | std::ios::out | std::ios::ate) << text;
    else
        replaceFile(file, text);
}

} // namespace tessaro
