#include "Views/Widgets/SymbolButton.h"

#include "Views/Widgets/Accessible.h"

namespace tessaro {

SymbolButton::SymbolButton(const std::string& symbol, int symbolSize, const Glib::ustring& tooltip)
    : symbol_(symbol, symbolSize) {
    set_css_classes({"borderless", "symbol-button", "secondary-text"});
    set_size_request(32, 32);
    set_halign(Gtk::Align::CENTER);
    set_child(symbol_);
    accessible::setTooltip(*this, tooltip);
}

} // namespace tessaro
