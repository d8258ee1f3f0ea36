#pragma once

#include <glibmm/ustring.h>
#include <gtkmm/widget.h>

/// What a widget tells assistive technology beyond what the toolkit says by itself.
namespace tessaro::accessible {

/// The widget's name, read out in place of anything that it shows.
void setName(Gtk::Widget& widget, const Glib::ustring& name);
/// What is to be known of the widget beside its name.
void setDescription(Gtk::Widget& widget, const Glib::ustring& description);
/// Lets every button from `widget` down that shows a text be called by that text. By itself GTK 4.8
/// names it twice over, once for its text and once for the label that holds the text.
/// Takes the toolkit's own widget: wrapping one that is not ours would make an owner that leaks.
void nameButtonsByLabel(GtkWidget* widget);
/// A button that stands for one of several things: whether it is the chosen one.
void setPressed(Gtk::Widget& widget, bool pressed);
/// Work goes on behind the widget.
void setBusy(Gtk::Widget& widget, bool busy);
/// A symbol or a picture that only repeats what the text beside it says.
void hide(Gtk::Widget& widget);

} // namespace tessaro::accessible
