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
        .supportServer = configured("skarn_server_url", build::supportServer),
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
    for (auto from = query; from < end;) {
        const auto next = std::min(address.find('&', ++from), end);
        const auto parameter = address.substr(from, next - from);
        if (parameter.starts_with(pageParameter))
            return parameter.substr(std::string_view(pageParameter).size());
        from = next;
    }
    return {};
}

} // namespace tessaro
