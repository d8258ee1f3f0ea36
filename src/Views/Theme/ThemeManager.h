#pragma once

#include "Platform/Appearance.h"
#include "Platform/Clock.h"
#include "Platform/Lifetime.h"
#include "Platform/NotificationCenter.h"
#include "Platform/SettingsStore.h"
#include "Platform/Uuid.h"
#include "Views/Theme/ColorPreset.h"
#include "Views/Theme/ColorTheme.h"

#include <sigc++/signal.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessaro {

/// Holds the person's two choices: light, dark or automatic, and the accent preset. Stores them in
/// the settings and applies them to every window. UI thread only.
class ThemeManager {
public:
    static constexpr const char* appearanceModeKey = "theme_appearance_mode";
    static constexpr const char* activePresetIdKey = "theme_active_preset_id";

    ThemeManager(
        SettingsStore& settings, Appearance& appearance, NotificationCenter& notifications,
        Clock& clock);

    static ThemeManager& shared();

    /// "system", "light" or "dark"; any other text behaves like "system".
    const std::string& appearanceMode() const { return appearanceMode_; }
    /// Stores the mode, applies it to the application and every open window, and renews the
    /// trigger. Does all of that also when the mode stays the same.
    void setAppearanceMode(std::string mode);

    const std::string& activePresetId() const { return activePresetId_; }
    /// Stores the id and renews the trigger. Accepts an id that no preset has.
    void setActivePresetId(std::string id);

    /// Replaced after every assignment of one of the two choices.
    const Uuid& themeUpdateTrigger() const { return themeUpdateTrigger_; }

    const std::vector<ColorPreset>& presets() const { return colorPresets(); }
    /// The preset with the active id, or the first preset when none has that id.
    const ColorPreset& activePreset() const;
    /// Light or dark when the mode forces it; nothing when the desktop decides.
    std::optional<ColorScheme> colorScheme() const;

    void updateSystemAppearance();
    /// Changes light to dark and dark to light, and automatic to the opposite of what is on screen.
    /// Posts webViewThemeChanged a tenth of a second later.
    void toggleTheme();

    /// Whether the inbox gets the dark style. The mode decides, or else what is on screen.
    bool isDarkMode() const;
    /// Whether what is on screen is dark.
    bool isEffectivelyDark() const { return appearance_.isEffectivelyDark(); }

    /// Whether the person asks the desktop for high contrast.
    bool isHighContrast() const { return appearance_.isHighContrast(); }

    /// The accent, as it is on screen now.
    Gdk::RGBA themePrimary() const;
    /// The accent at an opacity of 0.16 in dark and 0.08 in light.
    Gdk::RGBA themePrimaryLight() const;
    bool isPrimaryLight() const;
    /// The text colour that reads on the accent.
    Gdk::RGBA themePrimaryContrastText() const;

    /// Calls `observer` when a choice changed and when the desktop turned light, dark or to another
    /// contrast. A widget that draws with this manager's colours draws again then.
    [[nodiscard]] ScopedConnection observe(std::function<void()> observer);

private:
    /// Applies the mode and follows the desktop from now on.
    void follow();

    SettingsStore& settings_;
    Appearance& appearance_;
    NotificationCenter& notifications_;
    Clock& clock_;
    Uuid themeUpdateTrigger_ = Uuid::random();
    std::string appearanceMode_;
    std::string activePresetId_;
    sigc::signal<void()> changed_;
    ScopedConnection effectiveChanged_;
    Lifetime lifetime_;
};

} // namespace tessaro
