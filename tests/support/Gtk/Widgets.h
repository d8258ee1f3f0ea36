#pragma once

#include <gtkmm/button.h>
#include <gtkmm/widget.h>

#include <string>
#include <vector>

/// Finds the widgets of a screen as a person does: by what they are called.
namespace tessaro::test {

/// Every widget on screen below `root`, in the order in which the eye reads.
std::vector<Gtk::Widget*> widgetsOnScreen(Gtk::Widget& root);

/// Whether assistive technology calls the widget by that name, its tooltip or its text.
bool isCalled(Gtk::Widget& widget, const std::string& name);

/// The widgets of that class on screen.
template <typename Class>
std::vector<Class*> widgetsOf(Gtk::Widget& root) {
    std::vector<Class*> found;
    for (Gtk::Widget* widget : widgetsOnScreen(root))
        if (auto* match = dynamic_cast<Class*>(widget))
            found.push_back(match);
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

/// Presses the button of that name; ends the program when there is none that can be pressed.
void press(Gtk::Widget& root, const std::string& name);

/// The text of every label on screen below `root`.
std::vector<std::string> textsOnScreen(Gtk::Widget& root);

} // namespace tessaro::test
