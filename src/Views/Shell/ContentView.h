#pragma once

#include "Views/Shell/MainSplitView.h"

#include <gtkmm/box.h>

namespace tessaro {

/// What the window shows: the main split view, faded in.
class ContentView : public Gtk::Box {
public:
    ContentView(const ScreenContext& context, AppLogger& logger, SupportClient& support);

    MainSplitView& mainSplitView() { return mainSplitView_; }

private:
    MainSplitView mainSplitView_;
};

} // namespace tessaro
