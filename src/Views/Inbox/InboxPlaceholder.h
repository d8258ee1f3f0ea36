#pragma once

#include "Views/Widgets/Symbol.h"

#include <gtkmm/box.h>
#include <gtkmm/label.h>

namespace tessaro {

/// What stands in the place of the inbox while no Page is selected.
class InboxPlaceholder : public Gtk::Box {
public:
    InboxPlaceholder();

private:
    Symbol icon_;
    Gtk::Label title_;
    Gtk::Label subtitle_;
};

} // namespace tessaro
