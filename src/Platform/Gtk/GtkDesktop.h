#pragma once

#include "Platform/Desktop.h"

namespace tessaro {

/// The desktop of the default display. In a confined package addresses, folders and notifications
/// go through the portal.
class GtkDesktop final : public Desktop {
public:
    void openAddress(const std::string& address) override;
    void openWithItsProgram(const std::string& address) override;
    void openFile(const std::filesystem::path& file) override;
    void
    showNotification(DesktopNotification notification, DesktopNotifier::Clicked clicked) override;
    void withdrawNotification(const std::string& id) override;
    void copyText(const std::string& text) override;

private:
    DesktopNotifier notifier_;
};

} // namespace tessaro
