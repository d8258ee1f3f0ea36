#pragma once

#include "Platform/GHandle.h"
#include "Platform/ScopedConnection.h"

#include <sigc++/signal.h>

#include <cstdint>
#include <filesystem>
#include <vector>

using WebKitDownload = struct _WebKitDownload;

namespace tessaro {

/// A file that a page hands out, on its way into the user's download folder (the home folder where
/// the desktop names none). The engine downloads it; this makes the folder where it is missing and
/// gives the file another name where a file of its own is there already, over both of which the
/// engine would fail. The download goes on when this object goes. UI thread only.
class WebDownload {
public:
    enum class State {
        underWay,
        finished,
        cancelled,
        disconnected, ///< The server or the network failed.
        unwritable,   ///< The file could not be written.
    };

    explicit WebDownload(WebKitDownload* download);
    ~WebDownload();
    WebDownload(const WebDownload&) = delete;
    WebDownload& operator=(const WebDownload&) = delete;

    State state() const { return state_; }
    /// Where the file lies, or will; empty before the server has answered.
    const std::filesystem::path& file() const { return file_; }
    /// In bytes.
    std::uint64_t received() const;
    /// The whole size in bytes; 0 when the server did not tell.
    std::uint64_t expected() const;
    void cancel();

    /// Emitted when anything of the above has changed.
    sigc::signal<void()>& signalChanged() { return changed_; }

private:
    bool decideDestination(const char* suggestedName);
    void finish();
    void end(State state);

    const GObjectPtr<WebKitDownload> download_;
    State state_ = State::underWay;
    std::filesystem::path file_;
    sigc::signal<void()> changed_;
    std::vector<ScopedConnection> signals_;
};

} // namespace tessaro
