#pragma once

#include "Engine/PageFinder.h"

#include "Platform/ScopedConnection.h"

#include <vector>

using WebKitFindController = struct _WebKitFindController;
using WebKitWebView = struct _WebKitWebView;

namespace tessaro {

class WebKitFinder final : public PageFinder {
public:
    explicit WebKitFinder(WebKitWebView* view);

    void find(const std::string& text) override;
    void findNext() override;
    void findPrevious() override;
    void end() override;

private:
    void report(unsigned count);

    WebKitFindController* const controller_; ///< The view's own.
    bool isSearching_ = false;
    std::vector<ScopedConnection> signals_;
};

} // namespace tessaro
