#pragma once

#include <gtkmm/image.h>

#include <string>

namespace tessaro {

/// One of the program's own symbols, drawn in the colour of the text around it. Assistive
/// technology ignores it, so the control around it needs a name.
class Symbol : public Gtk::Image {
public:
    /// @param name  the symbol's name, such as "house.fill"
    /// @param size  width and height in points, one of those in data/style.css; the symbol grows
    ///              with the text around it
    Symbol(const std::string& name, int size);

    /// Shows another symbol at the same size.
    void setSymbol(const std::string& name);
};

} // namespace tessaro
