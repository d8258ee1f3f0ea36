#include "Views/Shell/FooterSupportButton.h"

#include "Views/Widgets/Accessible.h"

namespace tessaro {

FooterSupportButton::FooterSupportButton() : icon_("exclamationmark.bubble", 10), label_("Hỗ trợ") {
    label_.add_css_class("points-10");
    label_.add_css_class("medium");
    progress_.set_visible(false);
    row_.set_spacing(4);
    row_.append(progress_);
    row_.append(icon_);
    row_.append(label_);
    set_child(row_);
    add_css_class("borderless");
    add_css_class("footer-button");
    add_css_class("support");
    set_valign(Gtk::Align::CENTER);
    set_tooltip_text("Gửi log hỗ trợ kỹ thuật");
    accessible::setName(*this, label_.get_text());
}

void FooterSupportButton::setBusy(bool busy) {
    set_sensitive(!busy);
    icon_.set_visible(!busy);
    progress_.set_visible(busy);
    progress_.set_spinning(busy);
    accessible::setBusy(*this, busy);
}

} // namespace tessaro
