#pragma once

#include "Services/MetaGraphClient.h"
#include "Views/Pictures/SafeAvatarView.h"
#include "Views/ScreenContext.h"

#include <gtkmm/box.h>
#include <gtkmm/label.h>

namespace tessaro {

/// A Page that is not connected yet: its picture, its name and its id.
class PageSummary : public Gtk::Box {
public:
    struct Style {
        int pictureSide;                     ///< In points.
        std::vector<Glib::ustring> name, id; ///< Classes of the style sheet.
    };

    /// @param account  by whose way the picture comes
    PageSummary(
        const ScreenContext& context, const Account& account, const PageId& id,
        const std::string& name, const std::optional<std::string>& avatarUrl, const Style& style);

private:
    SafeAvatarView picture_;
    Gtk::Box texts_;
    Gtk::Label name_;
    Gtk::Label id_;
};

} // namespace tessaro
