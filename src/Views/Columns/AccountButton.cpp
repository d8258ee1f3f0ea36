#include "Views/Columns/AccountButton.h"

#include "Platform/Text.h"
#include "Views/Pictures/FaceDrawing.h"
#include "Views/Widgets/Accessible.h"

namespace tessaro {

AccountButton::AccountButton() {
    set_css_classes({"borderless", "face-button", "round"});
    set_halign(Gtk::Align::CENTER);
    initial_.set_css_classes({"account-face", "points-16", "bold"});
    initial_.set_size_request(face::size, face::size);
    accessible::hide(initial_);
    face_.set_child(initial_);
    face_.add_overlay(proxyDot_);
    set_child(face_);
}

void AccountButton::show(const Account& account) {
    initial_.set_text(account.name.empty() ? "?" : firstCharacterUpperCased(account.name));
    proxyDot_.setDot(account.proxyEnabled ? std::optional(face::orange) : std::nullopt);
    setTooltip(account.name);
    accessible::setName(*this, account.name.empty() ? "?" : account.name);
}

void AccountButton::setSelected(bool selected) {
    if (selected)
        initial_.add_css_class("selected");
    else
        initial_.remove_css_class("selected");
    accessible::setPressed(*this, selected);
}

} // namespace tessaro
