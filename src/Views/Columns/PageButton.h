#pragma once

#include "Models/PageConfig.h"
#include "Views/Columns/RecordColumn.h"
#include "Views/Pictures/SafeAvatarView.h"
#include "Views/ScreenContext.h"

#include <gtkmm/label.h>

namespace tessaro {

/// One Page in the Page column: its picture, and a dot that tells whether it is connected. The
/// selected Page also has an outline and shows its unread count.
class PageButton : public RecordButton<PageConfig> {
public:
    explicit PageButton(const ScreenContext& context);

    void show(const PageConfig& page) override;
    void setSelected(bool selected) override;

private:
    void showUnread();

    const std::string graphBaseUrl_;
    const tessaro::Property<UnreadCount>& unread_;
    std::string name_;
    SafeAvatarView avatar_;
    Gtk::Label count_;
    ScopedConnection unreadChanged_;
};

} // namespace tessaro
