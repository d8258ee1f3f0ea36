#include "Services/Endpoints.h"

#include "Platform/GHandle.h"
#include "Services/BuildConfig.h"

#include <algorithm>

namespace tessaro {

namespace {

constexpr const char* pageParameter = "asset_id=";

std::string withoutSlashAtEnd(std::string origin) {
    while (origin.ends_with('/'))
        origin.pop_back();
    return origin;
}

} // namespace

Endpoints Endpoints::fromSettings(const SettingsStore& settings) {
    const auto configured = [&](const char* key, const char* builtIn) {
        return settings.text(key).value_or(builtIn);
    };
    return {
        .graphApiOrigin =
            withoutSlashAtEnd(configured("graph_api_origin", "https://graph.facebook.com")),
        .inboxOrigin =
            withoutSlashAtEnd(configured("inbox_origin", "https://business.facebook.com")),
        .linkMessenger = configured("link_messenger", build::linkMessenger),
        .linkTelegram = configured("link_telegram", build::linkTelegram),
        .linkZalo = configured("link_zalo", build::linkZalo),
        .linkWebsite = configured("link_website", build::linkWebsite),
        .linkDonate = configured("link_donate", build::linkDonate),
    };
}

bool Endpoints::namesInboxHost(const std::string& address) const {
    const std::string host = inboxHost();
    const std::string lowered = takeString(g_ascii_strdown(address.c_str(), -1));
    return !host.empty() && lowered.find(host) != std::string::npos;
}

bool Endpoints::isInboxSite(const std::string& address) const {
    const std::string origin = originOf(inboxOrigin);
    return !origin.empty() && originOf(address) == origin;
}

std::string Endpoints::inboxAddress(const std::string& pageId) const {
    return inboxOrigin + "/latest/inbox/all?" + pageParameter + pageId;
}

std::string Endpoints::pageIdIn(const std::string& address) const {
    const auto query = address.find('?');
    if (query == std::string::npos || !isInboxSite(address))
        return {};
    const auto end = std::min(address.find('#', query), address.size());
    const auto parameters = "&" + address.substr(query + 1, end - query - 1);
    const auto name = parameters.find(std::string("&") + pageParameter);
    if (name == std::string::npos)
        return {};
    const auto value = name + 1 + std::string_view(pageParameter).size();
    return parameters.substr(value, parameters.find('&', value) - value);
}

} // namespace tessaro
