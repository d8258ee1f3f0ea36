#include "Views/Columns/AddButton.h"

#include "Platform/Gtk/SmoothRectangle.h"
#include "Views/Widgets/Accessible.h"
#include "Views/Widgets/Symbol.h"

#include <gdkmm/general.h>
#include <gtkmm/snapshot.h>
#include <gtkmm/stylecontext.h>

#include <vector>

namespace tessaro {

AddButton::AddButton(Shape shape, const Glib::ustring& tooltip)
    : Glib::ObjectBase("TessaroAddButton"), shape_(shape) {
    set_css_classes(
        {"borderless", "face-button", shape == Shape::circle ? "round" : "square",
         "secondary-text"});
    set_size_request(side, side);
    set_halign(Gtk::Align::CENTER);
    accessible::setTooltip(*this, tooltip);
    set_child(*Gtk::make_managed<Symbol>("plus", 14));
}

void AddButton::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) {
    // The line touches the button's edge from the inside.
    constexpr double lineWidth = 1.5, inset = lineWidth / 2, length = side - lineWidth;
    const auto cairo = snapshot->append_cairo(Gdk::Rectangle(0, 0, side, side));
    addSmoothRectangle(
        cairo, inset, inset, length, length, shape_ == Shape::circle ? length / 2 : 8);
    Gdk::RGBA color = get_style_context()->get_color();
    color.set_alpha(color.get_alpha() * 0.3F);
    Gdk::Cairo::set_source_rgba(cairo, color);
    cairo->set_line_width(lineWidth);
    cairo->set_dash(std::vector<double>{4.0}, 0);
    cairo->stroke();
    Gtk::Button::snapshot_vfunc(snapshot);
}

} // namespace tessaro
