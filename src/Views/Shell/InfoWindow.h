#pragma once

#include "Views/Sheets/Dialog.h"

#include <gtkmm/headerbar.h>

namespace tessaro {

/// A small window that shows information and asks nothing. The window behind it goes on working.
class InfoWindow : public Dialog {
protected:
    explicit InfoWindow(const Glib::ustring& title);

private:
    Gtk::HeaderBar header_;
};

} // namespace tessaro
