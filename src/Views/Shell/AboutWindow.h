#pragma once

#include "Views/Shell/InfoWindow.h"

#include <gtkmm/box.h>

namespace tessaro {

/// Says what the program is, in which version, on which engine, and where its data lie.
class AboutWindow : public InfoWindow {
public:
    explicit AboutWindow(Gtk::Window& parent);

private:
    void addLine(const Glib::ustring& text, const char* style);

    Gtk::Box lines_;
};

} // namespace tessaro
