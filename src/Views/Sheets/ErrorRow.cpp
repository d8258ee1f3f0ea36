#include "Views/Sheets/ErrorRow.h"

namespace tessaro {

ErrorRow::ErrorRow()
    : Gtk::Box(Gtk::Orientation::HORIZONTAL, 6), sign_("exclamationmark.triangle.fill", 11) {
    property_accessible_role() = Gtk::Accessible::Role::ALERT;
    set_css_classes({"error-row", "points-11"});
    sign_.set_valign(Gtk::Align::START);
    message_.set_xalign(0);
    message_.set_hexpand();
    message_.set_wrap();
    message_.set_wrap_mode(Pango::WrapMode::WORD_CHAR);
    append(sign_);
    append(message_);
}

void ErrorRow::setMessage(const std::string& message) {
    message_.set_text(message);
}

} // namespace tessaro
