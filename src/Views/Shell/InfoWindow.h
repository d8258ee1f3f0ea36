#pragma once

#include "Platform/ScopedConnection.h"

#include <gtkmm/headerbar.h>
#include <gtkmm/window.h>
#include <sigc++/signal.h>

namespace tessaro {

/// A small window that shows information and asks nothing. Escape closes it.
class InfoWindow : public Gtk::Window {
public:
    /// @param parent  the window in front of which it stands
    InfoWindow(Gtk::Window& parent, const Glib::ustring& title);

    /// Tells the owner to drop the window. Emitted on the main loop's next turn after the person
    /// closed the window, because a window must not be destroyed within its own handler.
    /// Hiding it would leave a window without an accessible object among the open ones, and GTK 4.8
    /// ends the program when the accessibility bus asks for that object.
    sigc::signal<void()> closed;

private:
    Gtk::HeaderBar header_;
    ScopedConnection closing_;
};

} // namespace tessaro
