#pragma once

#include "Engine/PageFinder.h"
#include "Engine/WebNotifications.h"
#include "Engine/WebPermissions.h"
#include "Engine/WebViewDelegate.h"

#include <gdkmm/rgba.h>
#include <gtkmm/widget.h>

#include <chrono>
#include <functional>
#include <string>

namespace tessaro {

/// One embedded browser page. Its scripts run, its media plays without a click, and it goes back
/// and forward by swiping and zooms by pinching. What is written in it is checked for its spelling
/// in Vietnamese and English, as far as dictionaries are installed. No page survives it in memory.
/// UI thread only.
class WebView {
public:
    /// Without any progress for this long, a load is stopped and has failed.
    static constexpr auto loadTimeout = std::chrono::seconds(60);
    /// A page gets this long to say whether it may be left.
    static constexpr auto leaveTimeout = std::chrono::seconds(2);

    virtual ~WebView() = default;

    /// The delegate must outlive this object or be replaced by nullptr.
    virtual void setDelegate(WebViewDelegate* delegate) = 0;

    /// What to put into a window.
    virtual Gtk::Widget& widget() const = 0;

    /// Replaces the engine's identity in every request to come, and in what pages can see of the
    /// browser.
    virtual void setCustomUserAgent(const std::string& userAgent) = 0;
    /// Asks whether the page may be left: the page itself, and where it has something to lose the
    /// delegate (runLeaveConfirm()). One that does not answer within leaveTimeout is ended and may
    /// be left. `answered` is called exactly once unless close() comes before, often at once.
    virtual void requestLeave(std::function<void(bool mayLeave)> answered) = 0;
    /// Starts a navigation, with the cache used as HTTP has it. The page that is shown is not
    /// asked.
    virtual void load(const std::string& address) = 0;
    /// Likewise. Where its process has ended, the last page comes back at its place and in its
    /// zoom, as by going back to it: from the cache where the server permits. What was typed is
    /// lost.
    virtual void reload() = 0;
    /// Goes to the page before the one that is shown, or after it, where there is one. The page is
    /// asked as with a link that leads there.
    virtual void goBack() = 0;
    virtual void goForward() = 0;
    /// Ends the page and everything that it does. Nothing more is done with the view, save that
    /// scripts may still be run, in vain.
    virtual void close() = 0;
    /// What is seen where no page has painted yet.
    virtual void setGround(const Gdk::RGBA& color) = 0;
    /// Scales the layout; 1 is the natural size.
    virtual void setPageZoom(double factor) = 0;
    virtual double pageZoom() const = 0;
    /// Runs a script in the main frame; its result and its errors are ignored.
    virtual void evaluateScript(const std::string& script) = 0;
    /// Runs a script in the main frame and calls `answered` with its result as text, unless it
    /// throws or the page goes first.
    virtual void
    askPage(const std::string& script, std::function<void(const std::string&)> answered) = 0;
    /// Calls `painted` once what earlier scripts have changed can be seen, or the page is gone.
    virtual void whenPainted(std::function<void()> painted) = 0;
    /// The address of the page shown; empty before the first one.
    virtual std::string address() const = 0;
    /// Whether address() is of a page that is still to come, and not of the one that is shown.
    virtual bool isAwaitingPage() const = 0;
    virtual bool isLoading() const = 0;
    /// The title of the page shown; empty when it has none.
    virtual std::string title() const = 0;

    virtual WebNotifications& notifications() = 0;
    virtual WebPermissions& permissions() = 0;
    virtual PageFinder& finder() = 0;
};

} // namespace tessaro
