#pragma once

#include "Platform/ScopedConnection.h"

#include <gtkmm/headerbar.h>
#include <gtkmm/window.h>
#include <sigc++/signal.h>

namespace tessaro {

/// A small window that only tells something. Escape closes it.
class InfoWindow : public Gtk::Window {
public:
    /// @param parent  the window in front of which it stands
    InfoWindow(Gtk::Window& parent, const Glib::ustring& title);

    /// Emitted in a turn of the main loop of its own once the person has closed the window: whoever
    /// owns it drops it then. It is not hidden, because GTK 4.8 ends the program when the
    /// accessibility bus asks for a hidden window.
    sigc::signal<void()> closed;

private:
    Gtk::HeaderBar header_;
    ScopedConnection closing_;
};

} // namespace tessaro
