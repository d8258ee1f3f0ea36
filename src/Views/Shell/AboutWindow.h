#pragma once

#include "Engine/EngineLoader.h"

#include "Views/Shell/InfoWindow.h"

#include <gtkmm/box.h>
#include <gtkmm/label.h>

namespace tessaro {

/// Says what the program is, in which version, on which engine, and where its data lie.
class AboutWindow : public InfoWindow {
public:
    AboutWindow(Gtk::Window& parent, EngineLoader& engine);

private:
    Gtk::Label& addLine(const Glib::ustring& text, const char* style);

    Gtk::Box lines_;
    ScopedConnection engineLoaded_;
};

} // namespace tessaro
