#include "Views/Shell/WindowSize.h"

#include <cstdio>
#include <string>

namespace tessaro {

namespace {

constexpr const char* key = "window_size"; ///< "1200x760", with " maximized" where it is.
constexpr int greatest = 16384;            ///< No display is larger, so the text was damaged.

std::string sizeText(const Gtk::Window& window) {
    int width = 0, height = 0;
    window.get_default_size(width, height);
    return std::to_string(width) + "x" + std::to_string(height) +
           (window.is_maximized() ? " maximized" : "");
}

} // namespace

void restoreSize(Gtk::Window& window, const SettingsStore& settings) {
    const std::string text = settings.text(key).value_or("");
    int width = 0, height = 0;
    if (std::sscanf(text.c_str(), "%dx%d", &width, &height) == 2 && width > 0 && height > 0 &&
        width <= greatest && height <= greatest)
        window.set_default_size(width, height);
    if (text.ends_with(" maximized"))
        window.maximize();
}

void keepSize(const Gtk::Window& window, SettingsStore& settings) {
    if (const std::string text = sizeText(window); settings.text(key) != text)
        settings.setText(key, text);
}

} // namespace tessaro
