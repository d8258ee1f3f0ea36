#include "Views/Columns/SidebarControls.h"

#include "Views/Theme/ThemeSettingsView.h"

#include <gtkmm/separator.h>

namespace tessaro {

SidebarControls::SidebarControls(const ScreenContext& context)
    : Gtk::Box(Gtk::Orientation::VERTICAL), context_(context) {
    addCommand("house.fill", "Quay về Hộp thư", webViewGoHome);
    addCommand("arrow.clockwise", "Tải lại trang", webViewReload);
    addDivider();
    addCommand("plus.magnifyingglass", "Phóng to", webViewZoomIn);
    addCommand("minus.magnifyingglass", "Thu nhỏ", webViewZoomOut);
    addDivider();
    append(themeToggle_);
    append(themeSettings_);
    set_margin_bottom(8);

    themeToggle_.signal_clicked().connect([this] { context_.theme.toggleTheme(); });
    themeChanged_ = context_.theme.observe([this] { showToggleSymbol(); });
    showToggleSymbol();

    themePopover_.set_child(*Gtk::make_managed<ThemeSettingsView>(
        context_.theme, std::vector<GridColumn>(7, {.width = 26, .spacing = 8})));
    themePopover_.add_css_class("theme-settings-popover");
    themePopover_.set_position(Gtk::PositionType::RIGHT);
    themePopover_.set_parent(themeSettings_);
    themeSettings_.signal_clicked().connect([this] { themePopover_.popup(); });
}

SidebarControls::~SidebarControls() {
    themePopover_.unparent();
}

void SidebarControls::addCommand(
    const char* symbol, const char* tooltip, const char* notification) {
    auto* button = Gtk::make_managed<SymbolButton>(symbol, 15, tooltip);
    button->signal_clicked().connect(
        [this, notification] { context_.notifications.post(notification); });
    append(*button);
}

void SidebarControls::addDivider() {
    auto* divider = Gtk::make_managed<Gtk::Separator>();
    divider->set_halign(Gtk::Align::CENTER);
    append(*divider);
}

void SidebarControls::showToggleSymbol() {
    themeToggle_.setSymbol(
        context_.theme.appearanceMode() == "light" ? "moon.fill" : "sun.max.fill");
}

} // namespace tessaro
