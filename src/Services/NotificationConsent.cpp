#include "Services/NotificationConsent.h"

namespace tessaro {

namespace {

constexpr const char* key = "site_notifications";
constexpr const char* granted = "granted ";
constexpr const char* refused = "refused ";

} // namespace

NotificationConsent::NotificationConsent(SettingsStore& settings, std::string origin)
    : settings_(settings), origin_(std::move(origin)) {}

std::string NotificationConsent::permittedOrigin() const {
    return answer().value_or(false) ? origin_ : "";
}

std::optional<bool> NotificationConsent::answer() const {
    const auto kept = settings_.text(key);
    if (kept == granted + origin_)
        return true;
    if (kept == refused + origin_)
        return false;
    return std::nullopt;
}

void NotificationConsent::keep(bool isGranted) {
    settings_.setText(key, (isGranted ? granted : refused) + origin_);
}

} // namespace tessaro
