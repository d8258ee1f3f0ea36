#pragma once

#include <gtkmm/label.h>

namespace tessaro {

/// The small bold heading of a section of a sheet.
class SectionCaption : public Gtk::Label {
public:
    explicit SectionCaption(const Glib::ustring& text);
};

} // namespace tessaro
