#pragma once

#include "Services/NotificationService.h"
#include "Views/Shell/MainSplitView.h"
#include "Views/Shell/UpdateCheck.h"

namespace tessaro {

/// What the window shows: the main split view, faded in. When it comes on screen it looks for a
/// newer version of the program and asks for the permission to show desktop notifications.
class ContentView : public MainSplitView {
public:
    ContentView(
        const ScreenContext& context, SupportClient& support, NotificationService& notifications)
        : MainSplitView(context, support),
          updateCheck_(support, context.logger, context.modals, context.desktop) {
        add_css_class("fade-in");
        signal_map().connect([this, &notifications] {
            updateCheck_.checkForUpdates();
            notifications.requestPermission();
        });
    }

private:
    UpdateCheck updateCheck_;
};

} // namespace tessaro
