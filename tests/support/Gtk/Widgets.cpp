#include "support/Gtk/Widgets.h"

#include "Platform/GHandle.h"

#include <gtkmm/label.h>

#include <stdexcept>

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
    auto* button = find<Gtk::Button>(root, name);
    if (!button || !button->is_sensitive())
        throw std::out_of_range("No button to press: " + name);
    click(*button);
}

std::vector<std::string> textsOnScreen(Gtk::Widget& root) {
    std::vector<std::string> texts;
    for (Gtk::Label* label : widgetsOf<Gtk::Label>(root))
        texts.push_back(label->get_text().raw());
    return texts;
}

} // namespace tessaro::test
