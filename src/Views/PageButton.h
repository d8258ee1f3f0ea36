#pragma once

#include "Models/PageConfig.h"
#include "Views/PageBadge.h"
#include "Views/RecordColumn.h"
#include "Views/SafeAvatarView.h"

#include <gtkmm/overlay.h>

namespace tessaro {

/// One Page in the Page column.
class PageButton : public RecordButton<PageConfig> {
public:
    explicit PageButton(const ScreenContext& context);

    void show(const PageConfig& page) override;
    void setSelected(bool selected) override;
    const PageBadge& badge() const { return badge_; }

private:
    const std::string graphBaseUrl_;
    Gtk::Overlay face_;
    SafeAvatarView avatar_;
    PageBadge badge_;
};

} // namespace tessaro
