#include "Services/AppLogger.h"

#include "Platform/FileStore.h"
#include "Platform/Paths.h"
#include "Platform/Text.h"

#include <sys/resource.h>

#include <ctime>
#include <fstream>
#include <utility>

namespace tessaro {

namespace {

/// Lines are dropped while so many bytes wait: a disk that hangs must not take the memory with it.
constexpr std::size_t queueLimit = 256 * 1024 * 1024;

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
    : folder_(std::move(folder)),
      device_(device),
      clock_(clock),
      writer_(&AppLogger::writeQueuedLines, this) {}

AppLogger::~AppLogger() {
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    wake_.notify_one();
    writer_.join();
}

AppLogger& AppLogger::shared() {
    static AppLogger logger(
        paths::dataFolder() / "logs", DeviceIdentity::shared(), SystemClock::shared());
    return logger;
}

void AppLogger::log(const std::string& message, const std::string& level) {
    {
        const std::lock_guard lock(mutex_);
        if (queued_.size() > queueLimit)
            return;
        const auto now = clock_.now();
        const auto second = std::chrono::floor<std::chrono::seconds>(now);
        if (second != stampedSecond_ || stamp_.empty()) {
            stampedSecond_ = second;
            stamp_ = formatLocalTime(now, "%Y-%m-%d %H:%M:%S");
        }
        queued_.append("[").append(stamp_).append("] [").append(level).append("] ");
        queued_.append(message).append("\n");
        ++linesQueued_;
    }
    wake_.notify_one();
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

void AppLogger::flush(std::chrono::milliseconds limit) {
    std::unique_lock lock(mutex_);
    const auto queuedSoFar = linesQueued_;
    written_.wait_for(lock, limit, [&] { return linesWritten_ >= queuedSoFar; });
}

void AppLogger::writeQueuedLines() {
    setpriority(
        PRIO_PROCESS, 0, 5); // Of this thread alone (setpriority(2)): the window goes first.
    std::unique_lock lock(mutex_);
    for (;;) {
        wake_.wait(lock, [this] { return stopping_ || !queued_.empty(); });
        if (stopping_)
            return;
        // Taken whole and given back to the system afterwards, so that a flood leaves no memory
        // behind.
        const auto lines = std::exchange(queued_, {});
        const auto taken = linesQueued_;
        lock.unlock();
        // A damaged message must not make the whole file unreadable.
        append(isValidUtf8(lines) ? lines : toValidUtf8(lines));
        lock.lock();
        linesWritten_ = taken;
        written_.notify_all();
    }
}

void AppLogger::append(const std::string& lines) const {
    const auto file = currentLogURL();
    std::error_code ignored;
    if (!std::filesystem::exists(file, ignored)) {
        replaceFile(file, lines);
        return;
    }
    std::fstream(file, std::ios::in | std::ios::out | std::ios::ate) << lines;
}

} // namespace tessaro
