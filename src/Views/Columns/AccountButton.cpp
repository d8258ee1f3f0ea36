#include "Views/Columns/AccountButton.h"

namespace tessaro {

AccountButton::AccountButton() : RecordButton("round") {
    initial_.set_css_classes({"account-face", "points-16", "bold"});
    initial_.set_size_request(AddButton::side, AddButton::side);
    accessible::hide(initial_);
    face().set_child(initial_);
}

void AccountButton::show(const Account& account) {
    initial_.set_text(account.name.empty() ? "?" : firstCharacterUpperCased(account.name));
    setDot(account.proxyEnabled ? "proxied" : "none");
    setTooltip(account.name);
    accessible::setName(*this, account.name.empty() ? "?" : account.name);
}

} // namespace tessaro
