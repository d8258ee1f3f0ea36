#include "Engine/WebKit/WebKitFileDownload.h"

#include "Platform/FreeFile.h"

#include <glib/gstdio.h>
#include <webkit/webkit.h>

#include <set>

namespace tessaro {

namespace {

/// What downloads that are under way will write, before the engine has made the files.
std::set<std::filesystem::path>& reservedFiles() {
    static std::set<std::filesystem::path> files;
    return files;
}

/// The engine's own choice.
std::filesystem::path downloadFolder() {
    const char* folder = g_get_user_special_dir(G_USER_DIRECTORY_DOWNLOAD);
    return folder ? folder : g_get_home_dir();
}

WebDownload::State stateAfter(const GError& error) {
    if (g_error_matches(&error, WEBKIT_DOWNLOAD_ERROR, WEBKIT_DOWNLOAD_ERROR_CANCELLED_BY_USER))
        return WebDownload::State::cancelled;
    if (g_error_matches(&error, WEBKIT_DOWNLOAD_ERROR, WEBKIT_DOWNLOAD_ERROR_DESTINATION))
        return WebDownload::State::unwritable;
    return WebDownload::State::disconnected;
}

} // namespace

WebKitFileDownload::WebKitFileDownload(WebKitDownload* download)
    : download_(GObjectPtr<WebKitDownload>::share(download)) {
    signals_.push_back(connectSignal<gboolean(WebKitDownload*, char*)>(
        download, "decide-destination",
        [this](WebKitDownload*, char* name) -> gboolean { return decideDestination(name); }));
    signals_.push_back(connectSignal<void(WebKitDownload*, GParamSpec*)>(
        download, "notify::estimated-progress",
        [this](WebKitDownload*, GParamSpec*) { changed_.emit(); }));
    signals_.push_back(connectSignal<void(WebKitDownload*, GError*)>(
        download, "failed", [this](WebKitDownload*, GError* error) { end(stateAfter(*error)); }));
    // Comes after a failure as well.
    signals_.push_back(connectSignal<void(WebKitDownload*)>(
        download, "finished", [this](WebKitDownload*) { finish(); }));
}

WebKitFileDownload::~WebKitFileDownload() {
    reservedFiles().erase(file_);
}

std::uint64_t WebKitFileDownload::received() const {
    return webkit_download_get_received_data_length(download_.get());
}

std::uint64_t WebKitFileDownload::expected() const {
    WebKitURIResponse* response = webkit_download_get_response(download_.get());
    return response ? webkit_uri_response_get_content_length(response) : 0;
}

void WebKitFileDownload::cancel() {
    webkit_download_cancel(download_.get());
}

bool WebKitFileDownload::decideDestination(const char* suggestedName) {
    const auto folder = downloadFolder();
    g_mkdir_with_parents(folder.c_str(), 0755);
    file_ = freeFile(folder, suggestedName, reservedFiles());
    reservedFiles().insert(file_);
    changed_.emit();
    if (file_ == folder / suggestedName)
        return false; // The engine decides the same.
    webkit_download_set_destination(download_.get(), file_.c_str());
    return true;
}

void WebKitFileDownload::finish() {
    WebKitURIResponse* response = webkit_download_get_response(download_.get());
    SoupMessageHeaders* headers =
        response ? webkit_uri_response_get_http_headers(response) : nullptr;
    // The size of what was packed for the way says nothing about the file.
    const bool isPacked = headers && soup_message_headers_get_one(headers, "Content-Encoding");
    std::error_code error;
    const auto size = std::filesystem::file_size(file_, error);
    if (state_ != State::underWay || error || isPacked || size >= expected()) {
        end(State::finished);
        return;
    }
    // The engine takes what came before the connection broke for the whole.
    std::filesystem::remove(file_, error);
    end(State::disconnected);
}

void WebKitFileDownload::end(State state) {
    if (state_ != State::underWay)
        return;
    state_ = state;
    reservedFiles().erase(file_);
    changed_.emit();
}

} // namespace tessaro
