#include "Views/Widgets/Accessible.h"

#include <gtk/gtk.h>

namespace tessaro::accessible {

void setName(Gtk::Widget& widget, const Glib::ustring& name) {
    gtk_accessible_update_property(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_PROPERTY_LABEL, name.c_str(), -1);
}

void setTooltip(Gtk::Widget& widget, const Glib::ustring& tooltip) {
    widget.set_tooltip_text(tooltip);
    setName(widget, tooltip);
}

void setDescription(Gtk::Widget& widget, const Glib::ustring& description) {
    gtk_accessible_update_property(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_PROPERTY_DESCRIPTION, description.c_str(),
        -1);
}

void nameButtonsByLabel(GtkWidget* widget) {
    if (GTK_IS_BUTTON(widget) && gtk_button_get_label(GTK_BUTTON(widget)))
        gtk_accessible_reset_relation(GTK_ACCESSIBLE(widget), GTK_ACCESSIBLE_RELATION_LABELLED_BY);
    for (auto* child = gtk_widget_get_first_child(widget); child;
         child = gtk_widget_get_next_sibling(child))
        nameButtonsByLabel(child);
}

void setPressed(Gtk::Widget& widget, bool pressed) {
    const auto state = pressed ? GTK_ACCESSIBLE_TRISTATE_TRUE : GTK_ACCESSIBLE_TRISTATE_FALSE;
    gtk_accessible_update_state(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_STATE_PRESSED, state, -1);
}

void setChecked(Gtk::Widget& widget, bool checked) {
    const auto state = checked ? GTK_ACCESSIBLE_TRISTATE_TRUE : GTK_ACCESSIBLE_TRISTATE_FALSE;
    gtk_accessible_update_state(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_STATE_CHECKED, state, -1);
}

void setInvalid(Gtk::Widget& widget, bool invalid) {
    const auto state = invalid ? GTK_ACCESSIBLE_INVALID_TRUE : GTK_ACCESSIBLE_INVALID_FALSE;
    gtk_accessible_update_state(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_STATE_INVALID, state, -1);
}

void setBusy(Gtk::Widget& widget, bool busy) {
    gtk_accessible_update_state(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_STATE_BUSY, gboolean(busy), -1);
}

void hide(Gtk::Widget& widget) {
    gtk_accessible_update_state(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_STATE_HIDDEN, TRUE, -1);
}

} // namespace tessaro::accessible
