#include "Views/Accessible.h"

#include <gtk/gtk.h>

namespace tessaro::accessible {

void setName(Gtk::Widget& widget, const Glib::ustring& name) {
    gtk_accessible_update_property(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_PROPERTY_LABEL, name.c_str(), -1);
}

void nameButtonsByLabel(Gtk::Widget& widget) {
    GtkWidget* const top = widget.gobj();
    if (GTK_IS_BUTTON(top) && gtk_button_get_label(GTK_BUTTON(top)))
        gtk_accessible_reset_relation(GTK_ACCESSIBLE(top), GTK_ACCESSIBLE_RELATION_LABELLED_BY);
    for (auto* child = widget.get_first_child(); child; child = child->get_next_sibling())
        nameButtonsByLabel(*child);
}

void setPressed(Gtk::Widget& widget, bool pressed) {
    const auto state = pressed ? GTK_ACCESSIBLE_TRISTATE_TRUE : GTK_ACCESSIBLE_TRISTATE_FALSE;
    gtk_accessible_update_state(
        GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_STATE_PRESSED, state, -1);
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
