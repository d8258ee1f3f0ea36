#include "Engine/WebKit/WebKitIdentity.h"

#include "Platform/GHandle.h"

#include <webkit/webkit.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace tessaro {

namespace {

/// What every Chrome of today has and the engine has switched off. Its own userAgentData stays off:
/// reading it crashes the process.
constexpr std::array<std::string_view, 3> expectedFeatures = {
    "RequestIdleCallback", "StorageAPI", "StorageAPIEstimate"};

/// Version and system come from the identity itself. User-Agent Client Hints are those of
/// https://wicg.github.io/ua-client-hints/.
constexpr const char* identityScript = R"js((() => {
    const identity = /\((Macintosh|Windows|X11);.*Chrome\/((\d+)[\d.]*)/.exec(navigator.userAgent);
    if (!identity)
        return;
    const [, system, fullVersion, version] = identity;
    const [platform, hintedPlatform] = {
        Macintosh: ['MacIntel', 'macOS'],
        Windows: ['Win32', 'Windows'],
        X11: ['Linux x86_64', 'Linux'],
    }[system];
    const define = (target, values) => {
        for (const [name, value] of Object.entries(values))
            Object.defineProperty(
                target, name, {get: () => value, configurable: true, enumerable: true});
    };
    define(Navigator.prototype, {platform, vendor: 'Google Inc.'});
    window.chrome = {app: {isInstalled: false}};
    if (!isSecureContext)
        return;
    const brandsOf = (own, other) => [
        {brand: 'Google Chrome', version: own},
        {brand: 'Chromium', version: own},
        {brand: 'Not.A/Brand', version: other},
    ];
    const shown = {brands: brandsOf(version, '24'), mobile: false, platform: hintedPlatform};
    const onRequest = {
        architecture: 'x86',
        bitness: '64',
        formFactors: ['Desktop'],
        fullVersionList: brandsOf(fullVersion, '24.0.0.0'),
        model: '',
        platformVersion: system === 'Macintosh' ? '10.15.7' : '',
        uaFullVersion: fullVersion,
        wow64: false,
    };
    window.NavigatorUAData = class NavigatorUAData {
        async getHighEntropyValues(hints) {
            const wanted = Object.entries(onRequest).filter(([name]) => hints.includes(name));
            return {...shown, ...Object.fromEntries(wanted)};
        }
        toJSON() {
            return {...shown};
        }
    };
    define(NavigatorUAData.prototype, shown);
    define(Navigator.prototype, {userAgentData: new NavigatorUAData()});
})();)js";

} // namespace

void agreeWithIdentity(WebKitWebView* view) {
    WebKitSettings* const settings = webkit_web_view_get_settings(view);
    const std::unique_ptr<WebKitFeatureList, Releaser<webkit_feature_list_unref>> features(
        webkit_settings_get_all_features());
    for (gsize i = 0; i < webkit_feature_list_get_length(features.get()); ++i) {
        WebKitFeature* const feature = webkit_feature_list_get(features.get(), i);
        if (std::ranges::count(expectedFeatures, webkit_feature_get_identifier(feature)))
            webkit_settings_set_feature_enabled(settings, feature, TRUE);
    }
    const std::unique_ptr<WebKitUserScript, Releaser<webkit_user_script_unref>> script(
        webkit_user_script_new(
            identityScript, WEBKIT_USER_CONTENT_INJECT_ALL_FRAMES,
            WEBKIT_USER_SCRIPT_INJECT_AT_DOCUMENT_START, nullptr, nullptr));
    webkit_user_content_manager_add_script(
        webkit_web_view_get_user_content_manager(view), script.get());
}

} // namespace tessaro
