#include "Views/Sheets/PageSummary.h"

namespace tessaro {

PageSummary::PageSummary(
    const std::string& name, const std::string& id, const std::vector<Glib::ustring>& nameStyle,
    const std::vector<Glib::ustring>& idStyle)
    : Gtk::Box(Gtk::Orientation::VERTICAL, 2), name_(name), id_("ID: " + id) {
    set_valign(Gtk::Align::CENTER);
    set_hexpand();
    name_.set_css_classes(nameStyle);
    id_.set_css_classes(idStyle);
    for (Gtk::Label* label : {&name_, &id_}) {
        label->set_xalign(0);
        label->set_ellipsize(Pango::EllipsizeMode::END);
        append(*label);
    }
}

} // namespace tessaro
