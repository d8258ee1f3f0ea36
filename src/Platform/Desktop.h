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

    /// Opens an address of another scheme, such as "mailto:", with the program that the desktop has
    /// for that scheme. Ignored where it has none, and for local files. Returns at once; a failure
    /// is not reported.
    virtual void openWithItsProgram(const std::string& address) = 0;

    /// Opens a file with the desktop's program for it, or a folder with the file manager. Returns
    /// at once; a failure is not reported.
    virtual void openFile(const std::filesystem::path& file) = 0;

    /// Shows a desktop notification. Returns at once; a failure is not reported.
    virtual void
    showNotification(DesktopNotification notification, DesktopNotifier::Clicked clicked) = 0;
    virtual void withdrawNotification(const std::string& id) = 0;

    /// Replaces the clipboard's content by this plain text.
    virtual void copyText(const std::string& text) = 0;
};

} // namespace tessaro
