#pragma once

#include "Engine/WebPermissions.h"

#include "Platform/Clock.h"
#include "Platform/ScopedConnection.h"

#include <gtkmm/widget.h>

#include <chrono>
#include <vector>

using WebKitPermissionRequest = struct _WebKitPermissionRequest;
using WebKitWebView = struct _WebKitWebView;

namespace tessaro {

class WebKitPermissions final : public WebPermissions {
public:
    /// @param clock  outlives this
    WebKitPermissions(WebKitWebView* view, Gtk::Widget& widget, Clock& clock);
    WebKitPermissions(const WebKitPermissions&) = delete;
    WebKitPermissions& operator=(const WebKitPermissions&) = delete;

    void setDelegate(Delegate* delegate) override { delegate_ = delegate; }

private:
    /// As long as browsers let a page act on a click (HTML 6.4.1, transient activation).
    static constexpr auto inputCounts = std::chrono::seconds(5);

    void noteInput(const Glib::RefPtr<const Gdk::Event>& event);
    void onRequest(WebKitPermissionRequest* request);

    Clock& clock_;
    Delegate* delegate_ = nullptr;
    bool hasInput_ = false;
    ScopedConnection inputEnds_;
    std::vector<ScopedConnection> signals_;
};

} // namespace tessaro
