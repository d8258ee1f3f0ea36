#include "Views/Sheets/VerifyButton.h"

#include "Views/Widgets/Accessible.h"

namespace tessaro {

VerifyButton::VerifyButton()
    : row_(Gtk::Orientation::HORIZONTAL, 4),
      shield_("checkmark.shield", 16),
      label_("Xác minh Token") {
    add_css_class("points-13");
    row_.append(spinner_);
    row_.append(shield_);
    row_.append(label_);
    set_child(row_);
    set_halign(Gtk::Align::START);
    accessible::setName(*this, "Xác minh Token");
    accessible::hide(spinner_);
    setVerifying(false);
}

void VerifyButton::setVerifying(bool verifying) {
    spinner_.set_visible(verifying);
    spinner_.set_spinning(verifying);
    shield_.set_visible(!verifying);
    accessible::setBusy(*this, verifying);
}

} // namespace tessaro
