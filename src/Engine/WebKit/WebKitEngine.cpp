#include "Engine/WebKit/WebKitEngine.h"

#include "Engine/WebKit/WebKitSession.h"

#include "Platform/Machine.h"

#include <webkit/webkit.h>

namespace tessaro {

std::string WebKitEngine::name() const {
    return "WebKitGTK " + std::to_string(webkit_get_major_version()) + "." +
           std::to_string(webkit_get_minor_version()) + "." +
           std::to_string(webkit_get_micro_version());
}

bool WebKitEngine::worksHere() const {
    // Inside a Flatpak the engine asks the portal for its sandbox.
    if (machine::isConfined())
        return true;
    // Every sandboxed process talks to the session bus through this filter.
    const GCharPtr busFilter(g_find_program_in_path("xdg-dbus-proxy"));
    if (!busFilter)
        return false;
    const auto process = GObjectPtr<GSubprocess>::adopt(g_subprocess_new(
        static_cast<GSubprocessFlags>(
            G_SUBPROCESS_FLAGS_STDOUT_SILENCE | G_SUBPROCESS_FLAGS_STDERR_SILENCE),
        nullptr, "bwrap", "--unshare-pid", "--unshare-uts", "--unshare-net", "--ro-bind", "/", "/",
        "true", nullptr));
    return process && g_subprocess_wait_check(process.get(), nullptr, nullptr);
}

WebSession& WebKitEngine::makeSession(
    const std::filesystem::path& dataFolder, const std::filesystem::path& cacheFolder) {
    return *sessions_.emplace_back(std::make_unique<WebKitSession>(dataFolder, cacheFolder));
}

} // namespace tessaro

/// What the program looks for in the module.
extern "C" __attribute__((visibility("default"))) tessaro::Engine* TESSARO_ENGINE_ENTRY() {
    static tessaro::WebKitEngine engine;
    return &engine;
}
