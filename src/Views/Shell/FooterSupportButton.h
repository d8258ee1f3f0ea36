#pragma once

#include "Views/Widgets/Symbol.h"

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/label.h>
#include <gtkmm/spinner.h>

namespace tessaro {

/// The footer bar's button that sends the log to the support staff.
class FooterSupportButton : public Gtk::Button {
public:
    FooterSupportButton();

    /// While busy the button cannot be pressed and shows that something goes on.
    void setBusy(bool busy);

private:
    Gtk::Box row_;
    Symbol icon_;
    Gtk::Spinner progress_;
    Gtk::Label label_;
};

} // namespace tessaro
