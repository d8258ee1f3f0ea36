#pragma once

#include <functional>
#include <string>

namespace tessaro {

class WebView;

/// Hears what happens in a WebView. UI thread only.
class WebViewDelegate {
public:
    virtual ~WebViewDelegate() = default;

    /// A load has begun: nothing of the new page is there yet.
    virtual void didStartProvisionalNavigation(WebView& webView) = 0;
    virtual void didFinishNavigation(WebView& webView) = 0;
    /// The load failed before or after the new page replaced the old one.
    virtual void didFailNavigation(WebView& webView) = 0;
    /// Another page has taken the place of the one before, or the one that is shown has another
    /// address, or none has come of a load and the one before stays. May tell of one page twice.
    virtual void didShowPage(WebView& webView) = 0;

    /// The page that is shown has another title.
    virtual void didChangeTitle(WebView& webView) = 0;

    /// A link or a script wants a window of its own for a page. None is opened; `load` loads that
    /// page in `webView`.
    virtual void createWebView(WebView& webView, std::function<void()> load) = 0;
    /// A click asks for something that another program may open, such as a "mailto:" address, and
    /// that is no page and no local file.
    virtual void openElsewhere(const std::string& address) = 0;

    /// The page waits until `completion` is called; dropping it counts as a call, with false.
    virtual void runScriptAlert(const std::string& message, std::function<void()> completion) = 0;
    virtual void
    runScriptConfirm(const std::string& message, std::function<void(bool)> completion) = 0;

    /// The page wants to be asked before it is left, as a page does in which something was written:
    /// `completion` gets whether it is left all the same. Dropping it counts as a call, with false.
    virtual void runLeaveConfirm(std::function<void(bool)> completion) = 0;

    /// Something of the page fills the whole screen, or no longer does.
    virtual void didChangeFullScreen(bool isFullScreen) = 0;

    /// The process that held the page crashed or was killed; a load under way has ended with it.
    virtual void webProcessDidTerminate(WebView& webView) = 0;
};

} // namespace tessaro
