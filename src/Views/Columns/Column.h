#pragma once

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/listview.h>
#include <gtkmm/popovermenu.h>
#include <gtkmm/scrolledwindow.h>
#include <gtkmm/signallistitemfactory.h>

#include <functional>
#include <string>
#include <vector>

namespace tessaro {

/// A narrow column of round or square buttons. The arrow keys move the focus from button to button,
/// Tab moves it into the column and out of it. The pointer's secondary button opens the menu of the
/// button under the pointer; the Menu key and Shift+F10 open that of the focused button.
class Column : public Gtk::Box {
public:
    ~Column() override;

protected:
    /// An entry of a button's menu. Only the last entry may be destructive; a separator and the
    /// colour of errors set it apart.
    struct Command {
        std::string label;
        std::function<void()> action;
        bool isDestructive = false;
    };

    /// @param name  of the list, for assistive technology
    explicit Column(const Glib::ustring& name);

    /// The entries of the button's menu. A button without entries has no menu.
    virtual std::vector<Command> menuOf(Gtk::Widget& button) = 0;

    Gtk::ListView& view() { return view_; }
    Gtk::SignalListItemFactory& factory() { return *factory_; }

private:
    bool onKeyPressed(guint key, guint code, Gdk::ModifierType modifiers);
    bool openMenuOf(Gtk::Widget* widget);

    Glib::RefPtr<Gtk::SignalListItemFactory> factory_ = Gtk::SignalListItemFactory::create();
    Gtk::ScrolledWindow scroller_;
    Gtk::ListView view_;
    Gtk::PopoverMenu menu_;
};

} // namespace tessaro
