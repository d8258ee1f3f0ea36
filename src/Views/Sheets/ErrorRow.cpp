#include "Views/Sheets/ErrorRow.h"

namespace tessaro {

ErrorRow::ErrorRow()
    : Gtk::Box(Gtk::Orientation::HORIZONTAL, 6), sign_("exclamationmark.triangle.fill", 11) {
    property_accessible_role() = Gtk::Accessible::Role::ALERT;
    set_css_classes({"error-row", "points-11"});
    line_.set_child(*Gtk::make_managed<Gtk::Label>(" "));
    line_.add_overlay(sign_);
    line_.set_measure_overlay(sign_, true);
    line_.set_valign(Gtk::Align::START);
    message_.set_xalign(0);
    message_.set_hexpand();
    message_.set_wrap();
    message_.set_wrap_mode(Pango::WrapMode::WORD_CHAR);
    append(line_);
    append(message_);
}

void ErrorRow::setMessage(const std::string& message) {
    message_.set_text(message);
}

} // namespace tessaro
