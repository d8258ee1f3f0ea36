#pragma once

#include "Engine/WebKit/OfferedFiles.h"

#include "Platform/Lifetime.h"
#include "Platform/ScopedConnection.h"

#include <map>
#include <optional>
#include <vector>

using GtkWidget = struct _GtkWidget;
using JSCValue = struct _JSCValue;
using WebKitWebView = struct _WebKitWebView;

namespace tessaro {

/// Hands a page, as files, what the person pastes into it or drops on it: files and pictures, which
/// WebKitGTK keeps from pages. A script of ours stands before each frame's own, in a world that no
/// page can reach: it asks for them when the person has pasted or dropped, and only then. What was
/// handed over cannot be read again.
class WebKitHandOver {
public:
    /// @param view  outlives this
    explicit WebKitHandOver(WebKitWebView* view);
    WebKitHandOver(const WebKitHandOver&) = delete;
    WebKitHandOver& operator=(const WebKitHandOver&) = delete;

    /// Takes back what was offered and is not read yet: the page that it was for is gone.
    void forget();

private:
    class Reply;

    void watchDrops(GtkWidget* widget);
    void onMessage(JSCValue* message, Reply reply);
    Task<void> offerCopied(Reply reply);
    Task<void> offerDropped(Reply reply);
    Task<void> handOverPart(int id, Reply reply);
    void offer(std::vector<OfferedFile> files, Reply& reply);

    std::map<int, OfferedFile> offered_;
    int lastId_ = 0;
    /// What was dropped last, until the page's script asks for it.
    std::optional<Task<std::vector<OfferedFile>>> dropped_;
    ScopedConnection messages_;
    ScopedConnection drops_;
    Lifetime lifetime_;
};

} // namespace tessaro
