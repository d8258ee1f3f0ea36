#pragma once

#include "Views/Sheets/PageSummary.h"
#include "Views/Widgets/Symbol.h"

#include <gtkmm/button.h>

namespace tessaro {

/// One Page of a user token, to be picked by a click anywhere in the row.
class PagePickerRow : public Gtk::Button {
public:
    PagePickerRow(
        const ScreenContext& context, const Account& account,
        const MetaGraphClient::ResolvedPage& page);

    const PageId& pageId() const { return pageId_; }
    /// Whether the Page's name has that text in it, which is in searchForm().
    bool matches(const std::string& text) const {
        return searchForm_.find(text) != std::string::npos;
    }
    bool isSelected() const { return has_css_class("selected"); }
    void setSelected(bool selected);

private:
    const PageId pageId_;
    const std::string searchForm_;
    Gtk::Box row_;
    PageSummary summary_;
    Symbol mark_;
};

} // namespace tessaro
