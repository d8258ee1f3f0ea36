#include "Views/Shell/FooterLinkButton.h"

#include "Views/Widgets/Accessible.h"

namespace tessaro {

namespace {
constexpr unsigned hoverMilliseconds = 150;
}

FooterLinkButton::FooterLinkButton(const FooterLink& link)
    : icon_(link.icon, 11), label_(link.label) {
    label_.add_css_class("points-10");
    label_.add_css_class("medium");
    labelRoom_.set_transition_type(Gtk::RevealerTransitionType::SLIDE_RIGHT);
    labelRoom_.set_transition_duration(hoverMilliseconds);
    labelRoom_.set_child(label_);
    row_.append(icon_);
    row_.append(labelRoom_);
    set_child(row_);
    add_css_class("borderless");
    add_css_class("footer-button");
    add_css_class(link.id);
    set_valign(Gtk::Align::CENTER);
    set_tooltip_text(link.label);
    accessible::setName(*this, link.label);
    signal_state_flags_changed().connect([this](Gtk::StateFlags) {
        const auto hovered = get_state_flags() & Gtk::StateFlags::PRELIGHT;
        labelRoom_.set_reveal_child(hovered != Gtk::StateFlags::NORMAL);
    });
}

} // namespace tessaro
