#pragma once

#include "Views/Widgets/Symbol.h"

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/label.h>
#include <gtkmm/spinner.h>

namespace tessaro {

/// The button that has a token checked; it spins while that goes on.
class VerifyButton : public Gtk::Button {
public:
    VerifyButton();

    void setVerifying(bool verifying);
    bool isSpinning() const { return spinner_.get_visible(); }

private:
    Gtk::Box row_;
    Gtk::Spinner spinner_;
    Symbol shield_;
    Gtk::Label label_;
};

} // namespace tessaro
