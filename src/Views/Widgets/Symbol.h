#pragma once

#include <gtkmm/image.h>

#include <string>

namespace tessaro {

/// One of the program's own symbols, drawn in the colour of the text around it. It is decoration to
/// assistive technology: whoever shows it gives the control around it a name.
class Symbol : public Gtk::Image {
public:
    /// @param name  the symbol's name without suffix, "house.fill"
    /// @param size  width and height in points
    Symbol(const std::string& name, int size);

    /// Shows another symbol at the same size.
    void setSymbol(const std::string& name);
};

} // namespace tessaro
