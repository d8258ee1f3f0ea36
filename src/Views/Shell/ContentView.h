#pragma once

#include "Views/Shell/MainSplitView.h"

namespace tessaro {

/// What the window shows: the main split view, faded in.
class ContentView : public MainSplitView {
public:
    ContentView(const ScreenContext& context, AppLogger& logger, SupportClient& support)
        : MainSplitView(context, logger, support) {
        add_css_class("fade-in");
    }
};

} // namespace tessaro
