#pragma once

#include "Platform/Lifetime.h"
#include "Platform/Task.h"
#include "Services/SupportClient.h"
#include "Views/ScreenContext.h"
#include "Views/Widgets/BusyButton.h"

#include <gtkmm/box.h>

#include <string>

namespace tessaro {

/// The thin bar along the bottom of the main window. It shows the version, a button that sends the
/// log to the support staff, and links to the maker. UI thread only.
class FooterBar : public Gtk::Box {
public:
    FooterBar(const ScreenContext& context, SupportClient& support);

private:
    /// Sends today's log and then shows the identifier under which the support staff finds it.
    Task<void> sendSupportLogs();
    /// "OK" also opens the Telegram link when the message reports success.
    void showLogAlert(std::string message);

    const ScreenContext& context_;
    SupportClient& support_;
    BusyButton supportButton_;
    Lifetime lifetime_;
};

} // namespace tessaro
