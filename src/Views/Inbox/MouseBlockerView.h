#pragma once

#include <gtkmm/widget.h>

namespace tessaro {

/// An invisible shield: what the pointer does over it ends here and reaches nothing behind or
/// around it. Takes the keyboard focus when clicked, but is no stop of the Tab key.
class MouseBlockerView : public Gtk::Widget {
public:
    MouseBlockerView();

private:
    bool absorb(const Glib::RefPtr<const Gdk::Event>& event);
};

} // namespace tessaro
