#pragma once

#include "Platform/ScopedConnection.h"

#include <functional>
#include <vector>

namespace tessaro {

/// Light or dark, forced or left to the desktop.
enum class ColorScheme { system, light, dark };

/// How the platform shows light and dark. UI thread only.
class Appearance {
public:
    /// A window of the application, in a form that only the implementation understands.
    using Window = void*;

    virtual ~Appearance() = default;

    /// False until the toolkit is initialised; the operations below do nothing then.
    virtual bool isReady() const = 0;
    /// Calls `action` once, when the toolkit has been initialised.
    virtual void whenReady(std::function<void()> action) = 0;

    virtual void setApplicationScheme(ColorScheme scheme) = 0;
    virtual void setWindowScheme(Window window, ColorScheme scheme) = 0;
    virtual std::vector<Window> openWindows() const = 0;
    /// Whether the screens are dark at this moment.
    virtual bool isEffectivelyDark() const = 0;

    /// Whether the person asks the desktop for high contrast.
    virtual bool isHighContrast() const = 0;

    /// Calls `observer` after every change of isEffectivelyDark(), including one by the desktop,
    /// and of isHighContrast().
    [[nodiscard]] virtual ScopedConnection observeEffective(std::function<void()> observer) = 0;
};

} // namespace tessaro
