#pragma once

#include <gtkmm/headerbar.h>
#include <gtkmm/window.h>

namespace tessaro {

/// A small window that only tells something. Escape puts it away; it can be shown again.
class InfoWindow : public Gtk::Window {
public:
    /// @param parent  the window in front of which it stands
    InfoWindow(Gtk::Window& parent, const Glib::ustring& title);

private:
    Gtk::HeaderBar header_;
};

} // namespace tessaro
