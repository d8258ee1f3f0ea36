#pragma once

#include "Views/Columns/ContextMenu.h"
#include "Views/Columns/RowModel.h"

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/listview.h>
#include <gtkmm/noselection.h>
#include <gtkmm/scrolledwindow.h>
#include <gtkmm/signallistitemfactory.h>

#include <vector>

namespace tessaro {

/// A narrow column of round or square buttons. The arrow keys go from button to button, Tab goes
/// into the column and out of it; the secondary button, the Menu key and Shift+F10 open the menu of
/// the button under the pointer or the focus.
class Column : public Gtk::Box {
protected:
    Column(const Glib::RefPtr<Gio::ListModel>& rows, const Glib::ustring& name);

    /// What the menu of that button offers; nothing for no menu.
    virtual std::vector<ContextMenu::Command> menuOf(Gtk::Widget& button) = 0;

    Gtk::ListView& view() { return view_; }
    Gtk::SignalListItemFactory& factory() { return *factory_; }

private:
    bool onKeyPressed(guint key, Gdk::ModifierType modifiers);
    bool openMenuOf(Gtk::Widget* widget);

    Glib::RefPtr<Gtk::SignalListItemFactory> factory_ = Gtk::SignalListItemFactory::create();
    Gtk::ScrolledWindow scroller_;
    Gtk::ListView view_;
    ContextMenu menu_;
};

} // namespace tessaro
