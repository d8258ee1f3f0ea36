#pragma once

#include <sigc++/signal.h>

#include <cstdint>
#include <filesystem>

namespace tessaro {

/// A file that a page hands out, on its way into the user's download folder (the home folder where
/// the desktop names none), under a name that no other file has there. The download goes on when
/// this object goes. UI thread only.
class WebDownload {
public:
    enum class State {
        underWay,
        finished,
        cancelled,
        disconnected, ///< The server or the network failed.
        unwritable,   ///< The file could not be written.
    };

    virtual ~WebDownload() = default;

    virtual State state() const = 0;
    /// Where the file lies, or will; empty before the server has answered.
    virtual const std::filesystem::path& file() const = 0;
    /// In bytes.
    virtual std::uint64_t received() const = 0;
    /// The whole size in bytes; 0 when the server did not tell.
    virtual std::uint64_t expected() const = 0;
    virtual void cancel() = 0;

    /// Emitted when anything of the above has changed.
    sigc::signal<void()>& signalChanged() { return changed_; }

protected:
    sigc::signal<void()> changed_;
};

} // namespace tessaro
