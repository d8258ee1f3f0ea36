#include "Views/Columns/PageBadge.h"

#include "Views/Pictures/FaceDrawing.h"

#include <gtkmm/stylecontext.h>

#include <numbers>
#include <utility>

namespace tessaro {

PageBadge::PageBadge() {
    add_css_class("accent-text");
    set_can_target(false);
}

void PageBadge::setConnected(bool connected) {
    if (std::exchange(connected_, connected) != connected)
        queue_draw();
}

void PageBadge::setSelected(bool selected) {
    if (std::exchange(selected_, selected) != selected)
        queue_draw();
}

void PageBadge::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) {
    if (selected_)
        drawOutline(*snapshot);
    face::drawStatusDot(*this, *snapshot, connected_ ? face::green : face::grey);
}

void PageBadge::drawOutline(Gtk::Snapshot& snapshot) {
    constexpr double side = 42, radius = 10, lineWidth = 2, quarter = std::numbers::pi / 2;
    const double left = (get_width() - side) / 2, top = (get_height() - side) / 2;
    const double right = left + side, bottom = top + side;
    const auto cairo = snapshot.append_cairo(
        Gdk::Rectangle(int(left) - 2, int(top) - 2, int(side) + 4, int(side) + 4));
    cairo->arc(right - radius, top + radius, radius, -quarter, 0);
    cairo->arc(right - radius, bottom - radius, radius, 0, quarter);
    cairo->arc(left + radius, bottom - radius, radius, quarter, 2 * quarter);
    cairo->arc(left + radius, top + radius, radius, 2 * quarter, 3 * quarter);
    cairo->close_path();
    const Gdk::RGBA color = get_style_context()->get_color();
    cairo->set_source_rgba(color.get_red(), color.get_green(), color.get_blue(), color.get_alpha());
    cairo->set_line_width(lineWidth);
    cairo->stroke();
}

} // namespace tessaro
