#include "Views/Columns/FaceBadge.h"

#include "Views/Pictures/FaceDrawing.h"

#include <gtkmm/stylecontext.h>

#include <numbers>
#include <utility>

namespace tessaro {

FaceBadge::FaceBadge() {
    add_css_class("accent-text");
    set_can_target(false);
}

void FaceBadge::setDot(const std::optional<Rgba>& color) {
    dot_ = color;
    queue_draw();
}

void FaceBadge::setOutlined(bool outlined) {
    if (std::exchange(isOutlined_, outlined) != outlined)
        queue_draw();
}

void FaceBadge::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) {
    if (isOutlined_)
        drawOutline(*snapshot);
    if (dot_)
        face::drawStatusDot(*this, *snapshot, *dot_);
}

void FaceBadge::drawOutline(Gtk::Snapshot& snapshot) {
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
