#pragma once

#include "Platform/HttpClient.h"
#include "Platform/Lifetime.h"
#include "Platform/Property.h"
#include "Platform/Result.h"
#include "Platform/SettingsStore.h"
#include "Services/AppLogger.h"
#include "Services/DeviceIdentity.h"

#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <string>

namespace tessaro {

/// The newest version that the support server offers.
struct UpdateInfo {
    std::string version;
    std::string url;
    std::string notes;

    bool operator==(const UpdateInfo&) const = default;
};

/// A client of the maker's support server. Every failure is returned, and logged unless the client
/// is gone by then; its domain is "SupportClient", "HTTP" or "JSON". UI thread.
class SupportClient {
public:
    static constexpr const char* serverURLKey = "skarn_server_url";

    /// @param settings          read once, for serverURLKey
    /// @param defaultServerURL  used when the settings hold none
    /// @param device            names this computer in an upload
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
    template <typename Answer>
    Task<Result<Answer>> performRequest(
        std::string path, std::string method, std::optional<std::string> body,
        Result<Answer> (*decode)(const nlohmann::json&));

    const DeviceIdentity& device_;
    AppLogger& logger_;
    HttpClient http_;
    Lifetime lifetime_;
};

} // namespace tessaro
