#include "Views/Theme/ThemeStyle.h"

#include "Views/Theme/ThemeManager.h"

#include <gtk/gtk.h>

namespace tessaro {

ThemeStyle::ThemeStyle(ThemeManager& theme) : theme_(theme) {
    redefine();
    // The priority is above the program's own sheet, whose stand-ins these definitions replace.
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
        "@define-color tsr_primary " + theme_.themePrimary().to_string() +
        ";\n@define-color tsr_primary_light " + theme_.themePrimaryLight().to_string() +
        ";\n@define-color tsr_primary_contrast " + theme_.themePrimaryContrastText().to_string() +
        ";\n@define-color accent_color @tsr_primary;"
        "\n@define-color accent_bg_color @tsr_primary;"
        "\n@define-color accent_fg_color @tsr_primary_contrast;\n";
    // The manager signals a change of mode twice when it also changes what is on screen.
    if (definitions == definitions_)
        return;
    definitions_ = std::move(definitions);
    provider_->load_from_data(definitions_);
}

} // namespace tessaro
