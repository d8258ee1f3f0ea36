#pragma once

#include "Models/PageConfig.h"
#include "Platform/Property.h"
#include "Views/Columns/RecordColumn.h"
#include "Views/Pictures/SafeAvatarView.h"
#include "Views/ScreenContext.h"

#include <gtkmm/label.h>

namespace tessaro {

/// One Page in the Page column. The selected one wears how much of it is unread.
class PageButton : public RecordButton<PageConfig> {
public:
    /// @param unread  what the site counts for the selected Page, empty for nothing; outlives this
    PageButton(const ScreenContext& context, const tessaro::Property<std::string>& unread);

    void show(const PageConfig& page) override;
    void setSelected(bool selected) override;

private:
    void showUnread();

    const std::string graphBaseUrl_;
    const tessaro::Property<std::string>& unread_;
    std::string name_;
    SafeAvatarView avatar_;
    Gtk::Label count_;
    ScopedConnection unreadChanged_;
};

} // namespace tessaro
