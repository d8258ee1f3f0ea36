#pragma once

#include "support/Gtk/WidgetTree.h"

#include <gtkmm/button.h>

#include <string>
#include <vector>

/// Finds the widgets of a screen as a person does: by what they are called.
namespace tessaro::test {

/// Whether assistive technology calls the widget by that name, its tooltip or its text.
bool isCalled(Gtk::Widget& widget, const std::string& name);

/// The widgets of that class on screen.
template <typename Class>
std::vector<Class*> widgetsOf(Gtk::Widget& root) {
    auto found = descendants<Class>(root);
    std::erase_if(found, [](Class* widget) { return !widget->get_mapped(); });
    return found;
}

/// The first widget of that class and name on screen; null when there is none.
template <typename Class = Gtk::Widget>
Class* find(Gtk::Widget& root, const std::string& name) {
    for (Class* widget : widgetsOf<Class>(root))
        if (isCalled(*widget, name))
            return widget;
    return nullptr;
}

void click(Gtk::Button& button);
/// Clicks the button of that name; throws when there is none that can be pressed.
void press(Gtk::Widget& root, const std::string& name);

/// The text of every label on screen below `root`.
std::vector<std::string> textsOnScreen(Gtk::Widget& root);

} // namespace tessaro::test
