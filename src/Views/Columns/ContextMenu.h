#pragma once

#include <giomm/menu.h>
#include <giomm/simpleactiongroup.h>
#include <gtkmm/popovermenu.h>

#include <functional>
#include <string>
#include <vector>

namespace tessaro {

/// The menu of one thing on the screen, opened beside it. The last command may be a destructive
/// one; it is set apart by a separator and by its colour.
class ContextMenu {
public:
    struct Command {
        std::string label;
        std::function<void()> action;
        bool isDestructive = false;
    };

    /// @param owner  the widget whose area holds `thing`; outlives this
    explicit ContextMenu(Gtk::Widget& owner);
    ~ContextMenu();
    ContextMenu(const ContextMenu&) = delete;
    ContextMenu& operator=(const ContextMenu&) = delete;

    /// Replaces the menu that was open.
    void open(const std::vector<Command>& commands, const Gtk::Widget& thing);
    void close() { popover_.popdown(); }

private:
    Gtk::Widget& owner_;
    Gtk::PopoverMenu popover_;
};

} // namespace tessaro
