#pragma once

#include <gtkmm/box.h>
#include <gtkmm/label.h>

namespace tessaro {

/// A Page's name above its id.
class PageSummary : public Gtk::Box {
public:
    /// @param nameStyle, idStyle  classes of the style sheet
    PageSummary(
        const std::string& name, const std::string& id, const std::vector<Glib::ustring>& nameStyle,
        const std::vector<Glib::ustring>& idStyle);

private:
    Gtk::Label name_;
    Gtk::Label id_;
};

} // namespace tessaro
