#pragma once

#include "Views/Widgets/Symbol.h"

#include <gtkmm/button.h>

namespace tessaro {

/// A button without a bezel that shows one symbol on a square of 32 points.
class SymbolButton : public Gtk::Button {
public:
    /// @param symbolSize  in points
    /// @param tooltip     also names the button for assistive technology
    SymbolButton(const std::string& symbol, int symbolSize, const Glib::ustring& tooltip);

    void setSymbol(const std::string& symbol) { symbol_.setSymbol(symbol); }

private:
    Symbol symbol_;
};

} // namespace tessaro
