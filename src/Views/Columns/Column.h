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

/// A narrow column of round or square buttons. The arrow keys go from button to button, Tab goes
/// into the column and out of it; the secondary button, the Menu key and Shift+F10 open the menu of
/// the button under the pointer or the focus.
class Column : public Gtk::Box {
public:
    ~Column() override;

protected:
    /// What a button's menu offers. The last command may be a destructive one; a separator and its
    /// colour set it apart.
    struct Command {
        std::string label;
        std::function<void()> action;
        bool isDestructive = false;
    };

    /// @param name  of the list, for assistive technology
    explicit Column(const Glib::ustring& name);

    /// The commands of that button; none for no menu.
    virtual std::vector<Command> menuOf(Gtk::Widget& button) = 0;

    Gtk::ListView& view() { return view_; }
    Gtk::SignalListItemFactory& factory() { return *factory_; }

private:
    bool onKeyPressed(guint key, Gdk::ModifierType modifiers);
    bool openMenuOf(Gtk::Widget* widget);

    Glib::RefPtr<Gtk::SignalListItemFactory> factory_ = Gtk::SignalListItemFactory::create();
    Gtk::ScrolledWindow scroller_;
    Gtk::ListView view_;
    Gtk::PopoverMenu menu_;
};

} // namespace tessaro
