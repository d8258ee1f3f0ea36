#include "support/Gtk/Widgets.h"

#include "Platform/GHandle.h"

#include <gtkmm/label.h>

#include <algorithm>

namespace tessaro::test {

bool isCalled(Gtk::Widget& widget, const std::string& name) {
    // The check's answer is what differs, nothing when it holds.
    const GCharPtr difference(gtk_test_accessible_check_property(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_PROPERTY_LABEL, name.c_str()));
    if (!difference)
        return true;
    if (auto* button = dynamic_cast<Gtk::Button*>(&widget);
        button && button->get_label().raw() == name)
        return true;
    auto* label = dynamic_cast<Gtk::Label*>(&widget);
    return label ? label->get_text().raw() == name : widget.get_tooltip_text().raw() == name;
}

void click(Gtk::Button& button) {
    // Not activate(), which shows the button pressed for a while first.
    g_signal_emit_by_name(button.gobj(), "clicked");
}

void press(Gtk::Widget& root, const std::string& name) {
    auto& button = the<Gtk::Button>(root, name);
    if (!button.is_sensitive())
        throw std::out_of_range("cannot be pressed: " + name);
    click(button);
}

bool showsText(Gtk::Widget& root, const std::string& text) {
    return std::ranges::any_of(widgetsOf<Gtk::Label>(root), [&](const Gtk::Label* label) {
        return label->get_text().raw().find(text) != std::string::npos;
    });
}

} // namespace tessaro::test
