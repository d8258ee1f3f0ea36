#include "Views/Shell/ContentView.h"

namespace tessaro {

ContentView::ContentView(const ScreenContext& context, AppLogger& logger, SupportClient& support)
    : mainSplitView_(context, logger, support) {
    mainSplitView_.set_hexpand(true);
    append(mainSplitView_);
    add_css_class("fade-in");
}

} // namespace tessaro
