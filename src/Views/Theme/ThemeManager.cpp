#include "Views/Theme/ThemeManager.h"

#include "Platform/Gtk/AdwAppearance.h"
#include "Views/Widgets/InboxCommands.h"

#include <algorithm>

namespace tessaro {

namespace {

constexpr Clock::Delay inboxDelay(100);

} // namespace

ThemeManager::ThemeManager(
    SettingsStore& settings, Appearance& appearance, NotificationCenter& notifications,
    Clock& clock)
    : settings_(settings),
      appearance_(appearance),
      notifications_(notifications),
      clock_(clock),
      appearanceMode_(settings.text(appearanceModeKey).value_or("system")),
      activePresetId_(settings.text(activePresetIdKey).value_or("emerald")) {
    if (appearance_.isReady()) {
        follow();
        return;
    }
    appearance_.whenReady([this, alive = lifetime_.watch()] {
        if (alive)
            follow();
    });
}

ThemeManager& ThemeManager::shared() {
    static AdwAppearance appearance;
    static ThemeManager manager(
        SettingsStore::shared(), appearance, NotificationCenter::shared(), SystemClock::shared());
    return manager;
}

void ThemeManager::follow() {
    updateSystemAppearance();
    effectiveChanged_ = appearance_.observeEffective([this] { changed_.emit(); });
    changed_.emit();
}

void ThemeManager::setAppearanceMode(std::string mode) {
    appearanceMode_ = std::move(mode);
    settings_.setText(appearanceModeKey, appearanceMode_);
    updateSystemAppearance();
    themeUpdateTrigger_ = Uuid::random();
    changed_.emit();
}

void ThemeManager::setActivePresetId(std::string id) {
    activePresetId_ = std::move(id);
    settings_.setText(activePresetIdKey, activePresetId_);
    themeUpdateTrigger_ = Uuid::random();
    changed_.emit();
}

const ColorPreset& ThemeManager::activePreset() const {
    const auto found = std::ranges::find(presets(), activePresetId_, &ColorPreset::id);
    return found != presets().end() ? *found : presets().front();
}

std::optional<ColorScheme> ThemeManager::colorScheme() const {
    if (appearanceMode_ == "light")
        return ColorScheme::light;
    if (appearanceMode_ == "dark")
        return ColorScheme::dark;
    return std::nullopt;
}

void ThemeManager::updateSystemAppearance() {
    if (!appearance_.isReady())
        return;
    const ColorScheme scheme = colorScheme().value_or(ColorScheme::system);
    appearance_.setApplicationScheme(scheme);
    for (const Appearance::Window window : appearance_.openWindows())
        appearance_.setWindowScheme(window, scheme);
}

void ThemeManager::toggleTheme() {
    setAppearanceMode(isDarkMode() ? "light" : "dark");
    clock_.post(
        inboxDelay, [&notifications = notifications_] { notifications.post(webViewThemeChanged); });
}

bool ThemeManager::isDarkMode() const {
    return colorScheme() ? colorScheme() == ColorScheme::dark : isEffectivelyDark();
}

Gdk::RGBA ThemeManager::themePrimary() const {
    return dynamicPresetColor(activePreset(), isEffectivelyDark());
}

Gdk::RGBA ThemeManager::themePrimaryLight() const {
    return dynamicPresetColor(activePreset(), isEffectivelyDark(), 0.08F, 0.16F);
}

bool ThemeManager::isPrimaryLight() const {
    const ColorPreset& preset = activePreset();
    return isLightHex(isEffectivelyDark() ? preset.darkHex : preset.lightHex);
}

Gdk::RGBA ThemeManager::themePrimaryContrastText() const {
    return rgbaFromHex(isPrimaryLight() ? "#1F2937" : "#FFFFFF");
}

ScopedConnection ThemeManager::observe(std::function<void()> observer) {
    return ScopedConnection(changed_.connect(std::move(observer)));
}

} // namespace tessaro
