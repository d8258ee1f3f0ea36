#pragma once

#include "Platform/Machine.h"
#include "Platform/SettingsStore.h"

#include <filesystem>
#include <mutex>
#include <string>

namespace tessaro {

/// The identifier and the readable name of this computer, read at each call. Any thread.
class DeviceIdentity {
public:
    /// @param settings        keeps the fallback identifier under "SkarnDeviceUUID"
    /// @param identifierFile  the system's machine identifier file
    explicit DeviceIdentity(
        SettingsStore& settings, std::filesystem::path identifierFile = machine::identifierFile);
    DeviceIdentity(const DeviceIdentity&) = delete;
    DeviceIdentity& operator=(const DeviceIdentity&) = delete;

    static const DeviceIdentity& shared();

    /// The machine identifier, or a random one that is remembered from its first use on.
    std::string getDeviceUUID() const;
    /// The name that the user gave the computer, or else its network host name.
    std::string deviceName() const;

private:
    SettingsStore& settings_;
    const std::filesystem::path identifierFile_;
    mutable std::mutex mutex_; ///< Held while the fallback is looked up and made.
};

} // namespace tessaro
