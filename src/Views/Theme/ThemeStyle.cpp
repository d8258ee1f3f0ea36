#include "Views/Theme/ThemeStyle.h"

#include "Views/Theme/ThemeManager.h"

#include <gtk/gtk.h>

#include <array>

namespace tessaro {

namespace {

/// A colour in the notation of style sheets, whatever the locale's decimal sign.
std::string css(const Rgba& color) {
    std::array<char, G_ASCII_DTOSTR_BUF_SIZE> alpha{};
    g_ascii_formatd(alpha.data(), alpha.size(), "%.3f", color.alpha);
    const auto byte = [](double component) {
        return std::to_string(static_cast<int>(component * 255.0 + 0.5));
    };
    return "rgba(" + byte(color.red) + "," + byte(color.green) + "," + byte(color.blue) + "," +
           alpha.data() + ")";
}

std::string define(const char* name, const std::string& value) {
    return std::string("@define-color ") + name + " " + value + ";\n";
}

} // namespace

ThemeStyle::ThemeStyle(ThemeManager& theme) : theme_(theme) {
    redefine();
    // Above the program's own sheet, so that these definitions win over its stand-ins.
    gtk_style_context_add_provider_for_display(
        gdk_display_get_default(), GTK_STYLE_PROVIDER(provider_->gobj()),
        GTK_STYLE_PROVIDER_PRIORITY_APPLICATION + 1);
    themeChanged_ = theme.observe([this] { redefine(); });
}

ThemeStyle::~ThemeStyle() {
    gtk_style_context_remove_provider_for_display(
        gdk_display_get_default(), GTK_STYLE_PROVIDER(provider_->gobj()));
}

void ThemeStyle::redefine() {
    std::string definitions =
        define("tsr_primary", css(theme_.themePrimary())) +
        define("tsr_primary_light", css(theme_.themePrimaryLight())) +
        define("tsr_primary_contrast", css(theme_.themePrimaryContrastText())) +
        define("accent_color", "@tsr_primary") + define("accent_bg_color", "@tsr_primary") +
        define("accent_fg_color", "@tsr_primary_contrast");
    // A change of mode is heard twice when it also turns what is on screen.
    if (definitions == definitions_)
        return;
    definitions_ = std::move(definitions);
    provider_->load_from_data(definitions_);
}

} // namespace tessaro
