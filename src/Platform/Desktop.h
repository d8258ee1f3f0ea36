#pragma once

#include "Platform/DesktopNotifier.h"

#include <filesystem>
#include <string>

namespace tessaro {

/// The services of the desktop that the program uses. UI thread only.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// Opens an address with the desktop's handler for it, if isOpenableAddress(); anything else is
    /// ignored. Returns at once; a failure is not reported.
    virtual void openAddress(const std::string& address) = 0;

    /// Shows a folder in the desktop's file manager. Returns at once; a failure is not reported.
    virtual void openFolder(const std::filesystem::path& folder) = 0;

    /// Shows a desktop notification. Returns at once; a failure is not reported.
    virtual void
    showNotification(DesktopNotification notification, DesktopNotifier::Clicked clicked) = 0;
    virtual void withdrawNotification(const std::string& id) = 0;

    /// Replaces the clipboard's content by this plain text.
    virtual void copyText(const std::string& text) = 0;
};

} // namespace tessaro
