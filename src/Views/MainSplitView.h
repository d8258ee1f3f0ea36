#pragma once

#include "ViewModels/AccountsViewModel.h"
#include "ViewModels/PagesViewModel.h"
#include "Views/ScreenContext.h"

#include <gtkmm/box.h>

namespace tessaro {

class AppLogger;
class SupportClient;

/// The content of the main window: accounts, Pages and inbox side by side above the footer bar.
/// Owns the two list models for its whole life.
class MainSplitView : public Gtk::Box {
public:
    MainSplitView(const ScreenContext& context, AppLogger& logger, SupportClient& support);
    ~MainSplitView() override;
};

} // namespace tessaro
