#pragma once

#include "Platform/Appearance.h"

#include <sigc++/signal.h>

#include <optional>
#include <utility>

namespace tessaro::test {

/// A desktop that is light or dark as the test says. It records the schemes that are set.
class FakeAppearance final : public Appearance {
public:
    bool ready = true;
    bool desktopIsDark = false;
    bool highContrast = false;

    std::optional<ColorScheme> applicationScheme; ///< Empty until one is set.

    void becomeReady() {
        ready = true;
        for (auto& action : std::exchange(waiting_, {}))
            action();
    }
    void setDesktopDark(bool dark) {
        desktopIsDark = dark;
        changed_.emit();
    }

    bool isReady() const override { return ready; }
    void whenReady(std::function<void()> action) override { waiting_.push_back(std::move(action)); }
    void setApplicationScheme(ColorScheme scheme) override { applicationScheme = scheme; }
    void setWindowScheme(Window, ColorScheme) override {}
    std::vector<Window> openWindows() const override { return {}; }
    bool isEffectivelyDark() const override {
        const bool isForced = applicationScheme && applicationScheme != ColorScheme::system;
        return isForced ? applicationScheme == ColorScheme::dark : desktopIsDark;
    }
    bool isHighContrast() const override { return highContrast; }
    ScopedConnection observeEffective(std::function<void()> observer) override {
        return ScopedConnection(changed_.connect(std::move(observer)));
    }

private:
    std::vector<std::function<void()>> waiting_;
    sigc::signal<void()> changed_;
};

} // namespace tessaro::test
