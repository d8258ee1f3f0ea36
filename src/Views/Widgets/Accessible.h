#pragma once

#include <glibmm/ustring.h>
#include <gtkmm/widget.h>

/// What assistive technology is told of a widget beyond what the toolkit tells by itself.
namespace tessaro::accessible {

/// Names the widget. The name is read out in place of the text that the widget shows.
void setName(Gtk::Widget& widget, const Glib::ustring& name);
/// Gives the widget a tooltip and names it by that.
void setTooltip(Gtk::Widget& widget, const Glib::ustring& tooltip);
/// Describes the widget beyond its name.
void setDescription(Gtk::Widget& widget, const Glib::ustring& description);
/// Makes every button in `widget` that shows a text be called by that text once. GTK 4.8 names it
/// twice, by its text and by the label that holds the text.
/// The argument is the toolkit's own widget, because a wrapper around a widget that the toolkit
/// made would leak.
void nameButtonsByLabel(GtkWidget* widget);
/// Tells whether a button that stands for one of several things is the chosen one.
void setPressed(Gtk::Widget& widget, bool pressed);
/// Tells whether a radio button is the chosen one.
void setChecked(Gtk::Widget& widget, bool checked);
/// Tells whether what a field holds cannot be used.
void setInvalid(Gtk::Widget& widget, bool invalid);
/// Tells whether the widget is at work.
void setBusy(Gtk::Widget& widget, bool busy);
/// Hides a symbol or a picture that only repeats the text beside it.
void hide(Gtk::Widget& widget);

} // namespace tessaro::accessible
