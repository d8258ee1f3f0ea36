#pragma once

#include "Engine/WebDownload.h"

#include "Platform/GHandle.h"
#include "Platform/ScopedConnection.h"

#include <vector>

using WebKitDownload = struct _WebKitDownload;

namespace tessaro {

/// WebKitGTK downloads by itself. This makes the folder where it is missing and gives the file
/// another name where a file of its own is there already, over both of which WebKitGTK would fail.
class WebKitFileDownload final : public WebDownload {
public:
    explicit WebKitFileDownload(WebKitDownload* download);
    ~WebKitFileDownload() override;
    WebKitFileDownload(const WebKitFileDownload&) = delete;
    WebKitFileDownload& operator=(const WebKitFileDownload&) = delete;

    State state() const override { return state_; }
    const std::filesystem::path& file() const override { return file_; }
    std::uint64_t received() const override;
    std::uint64_t expected() const override;
    void cancel() override;

private:
    bool decideDestination(const char* suggestedName);
    void finish();
    void end(State state);

    const GObjectPtr<WebKitDownload> download_;
    State state_ = State::underWay;
    std::filesystem::path file_;
    std::vector<ScopedConnection> signals_;
};

} // namespace tessaro
