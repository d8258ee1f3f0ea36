#pragma once

#include "Views/Widgets/Symbol.h"

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/label.h>
#include <gtkmm/revealer.h>

#include <string>

namespace tessaro {

/// One way to reach the maker.
struct FooterLink {
    std::string id; ///< Also the style class that holds the link's colour.
    std::string icon;
    std::string label;
    std::string url;
};

/// A contact link of the footer bar: a symbol, and its label while the pointer is over it.
class FooterLinkButton : public Gtk::Button {
public:
    explicit FooterLinkButton(const FooterLink& link);

private:
    Gtk::Box row_;
    Symbol icon_;
    Gtk::Revealer labelRoom_; ///< Gives the label its room; the style sheet fades and scales it.
    Gtk::Label label_;
};

} // namespace tessaro
