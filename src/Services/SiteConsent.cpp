#include "Services/SiteConsent.h"

namespace tessaro {

namespace {

constexpr const char* granted = "granted ";
constexpr const char* refused = "refused ";

} // namespace

SiteConsent::SiteConsent(SettingsStore& settings, const char* key, std::string origin)
    : settings_(settings), key_(key), origin_(std::move(origin)) {}

std::string SiteConsent::permittedOrigin() const {
    return answer().value_or(false) ? origin_ : "";
}

std::optional<bool> SiteConsent::answer() const {
    const auto kept = settings_.text(key_);
    if (kept == granted + origin_)
        return true;
    if (kept == refused + origin_)
        return false;
    return std::nullopt;
}

void SiteConsent::keep(bool isGranted) {
    settings_.setText(key_, (isGranted ? granted : refused) + origin_);
}

} // namespace tessaro
