#include "Views/Theme/ThemeStyle.h"

#include "Views/Theme/ThemeManager.h"

#include <gdkmm/display.h>
#include <gtkmm/stylecontext.h>

namespace tessaro {

namespace {

/// The colour of the soft edge that makes a text readable whose colour is too near to its ground.
std::string edgeOf(const Gdk::RGBA& text, const Gdk::RGBA& ground) {
    return contrastRatio(text, ground) < readableContrast ? "alpha(black, 0.8)" : "transparent";
}

/// @param step  how far above the program's style sheet
void show(const Glib::RefPtr<Gtk::CssProvider>& provider, int step) {
    Gtk::StyleContext::add_provider_for_display(
        Gdk::Display::get_default(), provider, GTK_STYLE_PROVIDER_PRIORITY_APPLICATION + step);
}

void hide(const Glib::RefPtr<Gtk::CssProvider>& provider) {
    Gtk::StyleContext::remove_provider_for_display(Gdk::Display::get_default(), provider);
}

} // namespace

ThemeStyle::ThemeStyle(ThemeManager& theme) : theme_(theme) {
    highContrast_->load_from_resource("/com/vandel/Tessaro/high-contrast.css");
    redefine();
    // The priority is above the program's own sheet, whose stand-ins these definitions replace.
    show(provider_, 1);
    themeChanged_ = theme.observe([this] { redefine(); });
}

ThemeStyle::~ThemeStyle() {
    hide(provider_);
    hide(highContrast_);
}

void ThemeStyle::redefine() {
    const Gdk::RGBA primary = theme_.themePrimary();
    const Gdk::RGBA contrast = theme_.themePrimaryContrastText();
    std::string definitions;
    const auto define = [&](const char* name, const std::string& value) {
        definitions += std::string("@define-color ") + name + " " + value + ";\n";
    };
    define("tsr_primary", primary.to_string());
    define("tsr_primary_light", theme_.themePrimaryLight().to_string());
    define("tsr_primary_contrast", contrast.to_string());
    define("tsr_primary_contrast_edge", edgeOf(contrast, primary));
    define("tsr_primary_white_edge", edgeOf(Gdk::RGBA(1, 1, 1), primary));
    // The toolkit's own text is softer in light than in dark: there is less to take away.
    define(
        "tsr_secondary", theme_.isEffectivelyDark() ? "alpha(@window_fg_color, 0.8)"
                                                    : "alpha(@window_fg_color, 0.96)");
    define("accent_color", "@tsr_primary");
    define("accent_bg_color", "@tsr_primary");
    define("accent_fg_color", readableTextOn(primary).to_string());
    if (theme_.isHighContrast())
        show(highContrast_, 2);
    else
        hide(highContrast_);
    // The manager signals a change of mode twice when it also changes what is on screen.
    if (definitions == definitions_)
        return;
    definitions_ = std::move(definitions);
    provider_->load_from_data(definitions_);
}

} // namespace tessaro
