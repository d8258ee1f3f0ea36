#pragma once

#include <gtkmm/eventcontrollerkey.h>
#include <gtkmm/widget.h>

namespace tessaro {

/// Hears of a pressed key: its symbol, its hardware code, and the modifiers that are held. Returns
/// whether the key has done its work; otherwise it goes on to the next widget.
using KeyHandler = sigc::slot<bool(guint key, guint code, Gdk::ModifierType modifiers)>;

/// Calls `handler` for each key that is pressed while `widget` or a widget in it has the focus.
/// @param phase  before (CAPTURE) or after (BUBBLE) the widget that has the focus
inline void addKeys(Gtk::Widget& widget, Gtk::PropagationPhase phase, const KeyHandler& handler) {
    const auto keys = Gtk::EventControllerKey::create();
    keys->set_propagation_phase(phase);
    keys->signal_key_pressed().connect(handler, false);
    widget.add_controller(keys);
}

} // namespace tessaro
