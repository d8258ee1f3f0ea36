#pragma once

#include "Platform/HttpClient.h"
#include "Platform/Property.h"
#include "Platform/Result.h"
#include "Platform/SettingsStore.h"
#include "Services/AppLogger.h"
#include "Services/DeviceIdentity.h"

#include <string>

namespace tessaro {

/// The newest version that the support server offers.
struct UpdateInfo {
    std::string version;
    std::string url;
    std::string notes;

    bool operator==(const UpdateInfo&) const = default;
};

/// Talks to the maker's support server in JSON over HTTPS. Every failure is logged and returned;
/// its domain is "SupportClient", "HTTP" or "JSON". Main thread.
class SupportClient {
public:
    static constexpr const char* serverURLKey = "skarn_server_url";

    /// @param defaultServerURL  used when the settings hold none
    SupportClient(
        const SettingsStore& settings, std::string defaultServerURL, const DeviceIdentity& device,
        AppLogger& logger, HttpOptions options);

    static SupportClient& shared();

    /// The base address in use.
    Property<std::string> serverURL;

    Task<Result<UpdateInfo>> checkUpdate();
    /// @param filename  the log file's name, without a folder
    /// @param content   its text, valid UTF-8
    Task<Result<void>> uploadLog(std::string filename, std::string content);

private:
    const DeviceIdentity& device_;
    AppLogger& logger_;
    HttpClient http_;
};

} // namespace tessaro
