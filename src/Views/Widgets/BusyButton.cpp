#include "Views/Widgets/BusyButton.h"

#include "Views/Widgets/Accessible.h"

#include <gtkmm/root.h>

#include <utility>

namespace tessaro {

BusyButton::BusyButton(const Glib::ustring& label, const std::string& symbol, int symbolSize)
    : hasSymbol_(!symbol.empty()),
      row_(Gtk::Orientation::HORIZONTAL, 4),
      symbol_(symbol, symbolSize),
      label_(label) {
    if (!hasSymbol_)
        add_css_class("text-button"); // The toolkit's class for buttons that show only a text.
    row_.append(spinner_);
    row_.append(symbol_);
    row_.append(label_);
    set_child(row_);
    accessible::setName(*this, label);
    accessible::hide(spinner_);
    setState(true, false);
}

void BusyButton::setState(bool pressable, bool busy) {
    if (busy && !std::exchange(isBusy_, busy))
        hadFocus_ = is_focus();
    set_sensitive(pressable && !busy);
    spinner_.set_visible(busy);
    spinner_.set_spinning(busy);
    symbol_.set_visible(hasSymbol_ && !busy);
    accessible::setBusy(*this, busy);
    if (!busy && std::exchange(isBusy_, busy) && hadFocus_ && !get_root()->get_focus())
        grab_focus();
}

} // namespace tessaro
