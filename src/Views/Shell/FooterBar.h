#pragma once

#include "Platform/Lifetime.h"
#include "Platform/Task.h"
#include "Services/AppLogger.h"
#include "Services/SupportClient.h"
#include "Views/ScreenContext.h"
#include "Views/Widgets/BusyButton.h"

#include <gtkmm/box.h>

#include <string>

namespace tessaro {

/// The thin bar along the bottom of the main window: version, help from the support staff, and the
/// ways to reach the maker.
class FooterBar : public Gtk::Box {
public:
    FooterBar(const ScreenContext& context, AppLogger& logger, SupportClient& support);

private:
    /// Sends today's log, and then tells under which identifier the support staff finds it.
    Task<void> sendSupportLogs();
    /// Its "OK" also opens the Telegram link where the message speaks of success.
    void showLogAlert(std::string message);

    const ScreenContext& context_;
    AppLogger& logger_;
    SupportClient& support_;
    BusyButton supportButton_;
    Lifetime lifetime_;
};

} // namespace tessaro
