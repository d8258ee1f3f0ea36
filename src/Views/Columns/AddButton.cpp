#include "Views/Columns/AddButton.h"

#include "Platform/Gtk/SmoothRectangle.h"
#include "Views/Pictures/FaceDrawing.h"
#include "Views/Widgets/Accessible.h"
#include "Views/Widgets/Symbol.h"

#include <gtkmm/stylecontext.h>

#include <numbers>
#include <vector>

namespace tessaro {

AddButton::AddButton(Shape shape, const Glib::ustring& tooltip) : shape_(shape) {
    set_css_classes(
        {"borderless", "face-button", shape == Shape::circle ? "round" : "square", "add",
         "secondary-text"});
    set_halign(Gtk::Align::CENTER);
    set_tooltip_text(tooltip);
    accessible::setName(*this, tooltip);

    outline_.set_content_width(face::size);
    outline_.set_content_height(face::size);
    outline_.set_draw_func(
        [this](const Cairo::RefPtr<Cairo::Context>& cairo, int, int) { drawOutline(cairo); });
    accessible::hide(outline_);
    auto* plus = Gtk::make_managed<Symbol>("plus", 14);
    plus->set_halign(Gtk::Align::CENTER);
    plus->set_valign(Gtk::Align::CENTER);
    face_.set_child(outline_);
    face_.add_overlay(*plus);
    set_child(face_);
}

void AddButton::drawOutline(const Cairo::RefPtr<Cairo::Context>& cairo) {
    // The line lies on the edge of the 38-point shape, half of it outside; kept inside here by
    // drawing the shape that much smaller.
    constexpr double width = 1.5, inset = width / 2, side = face::size - width;
    constexpr double radius = 8;
    if (shape_ == Shape::circle)
        cairo->arc(face::size / 2.0, face::size / 2.0, side / 2, 0, 2 * std::numbers::pi);
    else
        addSmoothRectangle(cairo, inset, inset, side, side, radius);
    const Gdk::RGBA color = get_style_context()->get_color();
    cairo->set_source_rgba(
        color.get_red(), color.get_green(), color.get_blue(), color.get_alpha() * 0.3);
    cairo->set_line_width(width);
    cairo->set_dash(std::vector<double>{4.0}, 0);
    cairo->stroke();
}

} // namespace tessaro
