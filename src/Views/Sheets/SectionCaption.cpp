#include "Views/Sheets/SectionCaption.h"

namespace tessaro {

SectionCaption::SectionCaption(const Glib::ustring& text) : Gtk::Label(text, Gtk::Align::START) {
    set_xalign(0);
    set_css_classes({"points-10", "bold", "secondary-text"});
}

} // namespace tessaro
