#pragma once

#include "Platform/Clock.h"
#include "Platform/Lifetime.h"
#include "Platform/ScopedConnection.h"
#include "Platform/Task.h"

#include <functional>
#include <vector>

using WebKitWebView = struct _WebKitWebView;

namespace tessaro {

/// The question to a page whether it may be left, which is its beforeunload event (HTML 7.4.2.2).
/// Nothing is loaded for it: WebKitGTK does not get over a load that the page refused.
class WebKitLeaveQuestion {
public:
    /// @param view, clock  outlive this
    WebKitLeaveQuestion(WebKitWebView* view, Clock& clock);

    /// See WebView::requestLeave(). What is asked meanwhile gets the same answer.
    void ask(std::function<void(bool)> answered);
    /// The page lets the person decide, who may take any time.
    void leaveToThePerson() { timeout_.disconnect(); }
    void answer(bool mayLeave);

private:
    Task<void> tryToClose();

    WebKitWebView* const view_;
    Clock& clock_;
    std::vector<std::function<void(bool)>> waiting_;
    ScopedConnection timeout_;
    ScopedConnection closed_;
    Lifetime lifetime_;
};

} // namespace tessaro
