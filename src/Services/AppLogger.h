#pragma once

#include "Platform/Clock.h"
#include "Platform/WorkQueue.h"
#include "Services/DeviceIdentity.h"

#include <chrono>
#include <deque>
#include <filesystem>
#include <mutex>
#include <string>

namespace tessaro {

/// Writes diagnostic lines to one text file a day. log() only formats and queues the line; a thread
/// of this object writes it. A line that cannot be written is lost without an error. Lines that are
/// still queued are lost with the object, so call flush() first. Messages never hold a token or a
/// password. Any thread.
class AppLogger {
public:
    /// @param folder     where the daily files lie; made when needed
    /// @param device     begins each file's name
    /// @param clock      time stamps and the day; read on any thread
    AppLogger(std::filesystem::path folder, const DeviceIdentity& device, const Clock& clock);

    static AppLogger& shared();

    /// Queues "[yyyy-MM-dd HH:mm:ss] [level] message" in local time.
    void log(const std::string& message, const std::string& level);

    /// Today's file, which may not exist.
    std::filesystem::path currentLogURL() const;

    /// The text of today's file without the lines that are still queued, or a sentence that says
    /// why there is none.
    std::string readCurrentLog() const;

    /// Waits until every line queued so far is written or lost, at most for `limit`.
    void flush(std::chrono::milliseconds limit) { writer_.finish(limit); }

private:
    void writeNextBlock();
    void append(const std::string& block) const;

    const std::filesystem::path folder_;
    const DeviceIdentity& device_;
    const Clock& clock_;

    std::mutex mutex_;               ///< Guards the queue.
    std::deque<std::string> queued_; ///< Blocks of whole lines, each with its line feed.
    WorkQueue writer_;               ///< One piece of work for each block.
};

} // namespace tessaro
