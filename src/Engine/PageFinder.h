#pragma once

#include "Engine/WebView.h"

#include <sigc++/signal.h>

#include <memory>
#include <string>
#include <vector>

using WebKitFindController = struct _WebKitFindController;

namespace tessaro {

/// Finds a text in the page of one browser, whatever the case of its letters, and marks all places
/// where it stands. UI thread only.
class PageFinder {
public:
    explicit PageFinder(std::shared_ptr<WebView> webView);

    /// Selects the first place from the selection on; after the last one it goes on at the top. An
    /// empty text ends the search.
    void find(const std::string& text);
    /// Selects the next place of the text that is searched for, round the end of the page.
    void findNext();
    void findPrevious();
    /// Takes the marks away; the selection stays.
    void end();

    /// Emitted with the number of places some time after a search has begun, and with 0 when there
    /// is none left to go on to.
    sigc::signal<void(unsigned)>& signalCounted() { return counted_; }

private:
    void report(unsigned count);

    const std::shared_ptr<WebView> webView_;
    WebKitFindController* const controller_; ///< The view's own.
    bool isSearching_ = false;
    sigc::signal<void(unsigned)> counted_;
    std::vector<ScopedConnection> signals_;
};

} // namespace tessaro
