#pragma once

#include "Views/Shell/InfoWindow.h"

#include <gtkmm/box.h>

namespace tessaro {

/// Says what the program is, in which version, on which engine, and where its data lie.
class AboutWindow : public InfoWindow {
public:
    AboutWindow(Gtk::Window& parent, const std::string& engineName);

private:
    void addLine(const Glib::ustring& text, const char* style);

    Gtk::Box lines_;
};

} // namespace tessaro
