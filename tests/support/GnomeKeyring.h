#pragma once

#include "support/PrivateSessionBus.h"
#include "support/TempFolder.h"

#include <string>

namespace tessaro::test {

/// A real gnome-keyring-daemon on a private bus: an unlocked default keyring in a temporary folder.
class GnomeKeyring {
public:
    explicit GnomeKeyring(const PrivateSessionBus& bus);
    ~GnomeKeyring();
    GnomeKeyring(const GnomeKeyring&) = delete;
    GnomeKeyring& operator=(const GnomeKeyring&) = delete;

    /// Locks the default keyring, so that its entries can be seen but not read.
    void lock();
    /// How many entries carry both attributes, locked or not.
    std::size_t count(const std::string& service, const std::string& account) const;

private:
    GVariantPtr call(const char* method, GVariant* arguments) const;

    TempFolder files_;
    GObjectPtr<GDBusConnection> connection_;
    GObjectPtr<GSubprocess> daemon_;
};

} // namespace tessaro::test
