#pragma once

#include "Views/Widgets/Symbol.h"

#include <gtkmm/box.h>
#include <gtkmm/label.h>
#include <gtkmm/overlay.h>

namespace tessaro {

/// What went wrong, in red behind a warning sign.
class ErrorRow : public Gtk::Box {
public:
    ErrorRow();

    void setMessage(const std::string& message);

private:
    Gtk::Overlay line_; ///< As high as a line of the message, with the sign in its middle.
    Symbol sign_;
    Gtk::Label message_;
};

} // namespace tessaro
