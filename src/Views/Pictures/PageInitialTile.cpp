#include "Views/Pictures/PageInitialTile.h"

#include "Platform/Gtk/SmoothRectangle.h"
#include "Platform/Text.h"
#include "Views/Pictures/FaceDrawing.h"

#include <gtkmm/stylecontext.h>

namespace tessaro {

PageInitialTile::PageInitialTile(const std::string& name, int size)
    : size_(size), initial_(name.empty() ? "P" : firstCharacterUpperCased(name)) {
    set_css_classes({"page-initial", size > 40 ? "large" : "small", "accent-text", "bold"});
    set_size_request(size, size);
}

void PageInitialTile::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) {
    Gdk::RGBA tint;
    get_style_context()->lookup_color("tsr_primary_light", tint);
    const auto cairo = snapshot->append_cairo(Gdk::Rectangle(0, 0, size_, size_));
    addSmoothRectangle(cairo, 0, 0, size_, size_, cornerRadius(size_));
    cairo->set_source_rgba(tint.get_red(), tint.get_green(), tint.get_blue(), tint.get_alpha());
    cairo->fill();
    face::drawText(*this, *snapshot, initial_);
}

} // namespace tessaro
