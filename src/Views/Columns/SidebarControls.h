#pragma once

#include "Views/ScreenContext.h"
#include "Views/Widgets/SymbolButton.h"

#include <gtkmm/box.h>
#include <gtkmm/popover.h>

namespace tessaro {

/// The buttons below the accounts: the commands for the inbox browser, and the appearance.
class SidebarControls : public Gtk::Box {
public:
    /// @param context  outlives this
    explicit SidebarControls(const ScreenContext& context);
    ~SidebarControls() override;

private:
    void addCommand(const char* symbol, const char* tooltip, const char* notification);
    void addDivider();
    void showToggleSymbol();

    const ScreenContext& context_;
    SymbolButton themeToggle_{"sun.max.fill", 15, "Chuyển chế độ Sáng/Tối"};
    SymbolButton themeSettings_{"paintpalette", 16, "Cấu hình Giao diện màu sắc"};
    Gtk::Popover themePopover_;
    ScopedConnection themeChanged_;
};

} // namespace tessaro
