#pragma once

#include "Platform/GHandle.h"

#include <gtkmm/button.h>
#include <gtkmm/label.h>
#include <gtkmm/window.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

/// Finds the widgets of a screen as a person does: by name.
namespace tessaro::test {

/// All widgets of that class below `root`, in the order of the tree.
template <typename Class>
std::vector<Class*> descendants(Gtk::Widget& root) {
    std::vector<Class*> found;
    for (auto* child = root.get_first_child(); child; child = child->get_next_sibling()) {
        if (auto* match = dynamic_cast<Class*>(child))
            found.push_back(match);
        const auto below = descendants<Class>(*child);
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

/// Those of them that are on screen.
template <typename Class>
std::vector<Class*> widgetsOf(Gtk::Widget& root) {
    auto found = descendants<Class>(root);
    std::erase_if(found, [](Class* widget) { return !widget->get_mapped(); });
    return found;
}

/// Whether that is the widget's accessible name, its text or its tooltip.
inline bool isCalled(Gtk::Widget& widget, const std::string& name) {
    // The check returns null when the name is the same.
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

/// The first widget of that class and name on screen; null when there is none.
template <typename Class = Gtk::Widget>
Class* find(Gtk::Widget& root, const std::string& name) {
    for (Class* widget : widgetsOf<Class>(root))
        if (isCalled(*widget, name))
            return widget;
    return nullptr;
}

/// The same; throws when there is none.
template <typename Class>
Class& the(Gtk::Widget& root, const std::string& name) {
    if (auto* widget = find<Class>(root, name))
        return *widget;
    throw std::out_of_range("not on screen: " + name);
}

/// The visible window of that class; null when there is none.
template <typename Class>
Class* shownWindow() {
    for (Gtk::Window* window : Gtk::Window::list_toplevels())
        if (auto* found = dynamic_cast<Class*>(window); found && found->get_visible())
            return found;
    return nullptr;
}

inline void click(Gtk::Button& button) {
    // activate() would first show the button as pressed for a while.
    g_signal_emit_by_name(button.gobj(), "clicked");
}

/// Clicks the button of that name. Throws when there is none, or when it is insensitive.
inline void press(Gtk::Widget& root, const std::string& name) {
    auto& button = the<Gtk::Button>(root, name);
    if (!button.is_sensitive())
        throw std::out_of_range("cannot be pressed: " + name);
    click(button);
}

/// Whether a label on screen holds that text.
inline bool showsText(Gtk::Widget& root, const std::string& text) {
    return std::ranges::any_of(widgetsOf<Gtk::Label>(root), [&](const Gtk::Label* label) {
        return label->get_text().raw().find(text) != std::string::npos;
    });
}

} // namespace tessaro::test
