#pragma once

#include <gtkmm/box.h>
#include <gtkmm/label.h>

#include <vector>

namespace tessaro {

/// Makes a label whose text begins at the leading edge.
/// @param style  style classes
/// @return a managed label
inline Gtk::Label& textLine(const Glib::ustring& text, const std::vector<Glib::ustring>& style) {
    auto& label = *Gtk::make_managed<Gtk::Label>(text, Gtk::Align::START);
    label.set_xalign(0);
    label.set_css_classes(style);
    return label;
}

/// Appends the children to the box, in their order.
template <typename... Children>
void appendAll(Gtk::Box& box, Children&... children) {
    (box.append(children), ...);
}

} // namespace tessaro
