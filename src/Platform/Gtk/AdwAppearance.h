#pragma once

#include "Platform/Appearance.h"

namespace tessaro {

/// Light, dark and high contrast through libadwaita's style manager, which follows the desktop's
/// choice (the settings portal) by itself. It keeps one scheme for all windows of a display.
class AdwAppearance final : public Appearance {
public:
    bool isReady() const override;
    void whenReady(std::function<void()> action) override;
    void setApplicationScheme(ColorScheme scheme) override;
    void setWindowScheme(Window window, ColorScheme scheme) override;
    std::vector<Window> openWindows() const override;
    bool isEffectivelyDark() const override;
    bool isHighContrast() const override;
    ScopedConnection observeEffective(std::function<void()> observer) override;
};

} // namespace tessaro
