#pragma once

#include "support/PrivateSessionBus.h"
#include "support/TempFolder.h"

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

private:
    /// The service's answer, or null.
    GVariantPtr call(const char* method, GVariant* arguments) const;

    TempFolder files_;
    GObjectPtr<GDBusConnection> connection_;
    GObjectPtr<GSubprocess> daemon_;
};

} // namespace tessaro::test
