#include "Views/Columns/AccountButton.h"

#include "Views/Widgets/Accessible.h"

namespace tessaro {

AccountButton::AccountButton() {
    set_css_classes({"borderless", "face-button", "round"});
    set_halign(Gtk::Align::CENTER);
    set_child(face_);
}

void AccountButton::show(const Account& account) {
    face_.show(account.name, account.proxyEnabled);
    setTooltip(account.name);
    accessible::setName(*this, account.name.empty() ? "?" : account.name);
}

void AccountButton::setSelected(bool selected) {
    face_.setSelected(selected);
    accessible::setPressed(*this, selected);
}

} // namespace tessaro
