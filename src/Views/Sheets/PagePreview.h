#pragma once

#include "Views/Sheets/PageSummary.h"
#include "Views/Widgets/Symbol.h"

#include <gtkmm/box.h>
#include <gtkmm/label.h>
#include <gtkmm/separator.h>

namespace tessaro {

/// The Page that will be added, under a caption that says why it is this one.
class PagePreview : public Gtk::Box {
public:
    PagePreview(
        const ScreenContext& context, const Account& account, const PageInfo& page,
        const std::optional<std::string>& avatarUrl, const Glib::ustring& caption);

private:
    Gtk::Box captionRow_;
    Symbol checkmark_;
    Gtk::Label caption_;
    Gtk::Separator divider_;
    PageSummary summary_;
};

} // namespace tessaro
