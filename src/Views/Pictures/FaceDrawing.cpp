#include "Views/Pictures/FaceDrawing.h"

#include <gtk/gtk.h>
#include <gtkmm/stylecontext.h>

#include <cmath>
#include <numbers>

namespace tessaro::face {

void drawText(Gtk::Widget& widget, Gtk::Snapshot& snapshot, const std::string& text) {
    const auto layout = widget.create_pango_layout(text);
    int width = 0, height = 0;
    layout->get_pixel_size(width, height);
    snapshot.save();
    const graphene_point_t corner{
        std::round(float(widget.get_width() - width) / 2),
        std::round(float(widget.get_height() - height) / 2)};
    gtk_snapshot_translate(snapshot.gobj(), &corner);
    snapshot.append_layout(layout, widget.get_style_context()->get_color());
    snapshot.restore();
}

void drawStatusDot(Gtk::Widget& widget, Gtk::Snapshot& snapshot, const Rgba& color) {
    constexpr double offset = 14, radius = 4, ringWidth = 1.5;
    const double x = widget.get_width() / 2.0 + offset;
    const double y = widget.get_height() / 2.0 + offset;
    Gdk::RGBA ring;
    widget.get_style_context()->lookup_color("tsr_window_bg", ring);

    const Gdk::Rectangle bounds(int(x - radius) - 1, int(y - radius) - 1, 11, 11);
    const auto cairo = snapshot.append_cairo(bounds);
    cairo->arc(x, y, radius, 0, 2 * std::numbers::pi);
    cairo->set_source_rgba(color.red, color.green, color.blue, color.alpha);
    cairo->fill_preserve();
    cairo->set_source_rgba(ring.get_red(), ring.get_green(), ring.get_blue(), ring.get_alpha());
    cairo->set_line_width(ringWidth);
    cairo->stroke();
}

} // namespace tessaro::face
