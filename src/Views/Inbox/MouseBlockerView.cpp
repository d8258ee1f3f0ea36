#include "Views/Inbox/MouseBlockerView.h"

#include <gtkmm/eventcontrollerfocus.h>
#include <gtkmm/eventcontrollerlegacy.h>

namespace tessaro {

MouseBlockerView::MouseBlockerView() : Glib::ObjectBase("tessaro_MouseBlockerView") {
    const auto pointer = Gtk::EventControllerLegacy::create();
    pointer->signal_event().connect(sigc::mem_fun(*this, &MouseBlockerView::absorb), false);
    add_controller(pointer);
    const auto focus = Gtk::EventControllerFocus::create();
    focus->signal_leave().connect([this] { set_focusable(false); });
    add_controller(focus);
}

bool MouseBlockerView::absorb(const Glib::RefPtr<const Gdk::Event>& event) {
    switch (event->get_event_type()) {
    case Gdk::Event::Type::BUTTON_PRESS:
    case Gdk::Event::Type::TOUCH_BEGIN:
        set_focusable(true);
        grab_focus();
        return true;
    case Gdk::Event::Type::BUTTON_RELEASE:
    case Gdk::Event::Type::MOTION_NOTIFY:
    case Gdk::Event::Type::ENTER_NOTIFY:
    case Gdk::Event::Type::SCROLL:
    case Gdk::Event::Type::TOUCH_UPDATE:
    case Gdk::Event::Type::TOUCH_END:
    case Gdk::Event::Type::TOUCHPAD_SWIPE:
    case Gdk::Event::Type::TOUCHPAD_PINCH:
        return true;
    default:
        return false;
    }
}

} // namespace tessaro
