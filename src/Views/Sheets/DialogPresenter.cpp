#include "Views/Sheets/DialogPresenter.h"

#include "Platform/GHandle.h"

#include <glibmm/main.h>

namespace tessaro {

namespace {

/// The window that stands in front of `window`: a dialog that was opened over it, or itself.
GtkWindow* frontmost(GtkWindow* window) {
    GListModel* const windows = gtk_window_get_toplevels();
    for (guint i = 0; i < g_list_model_get_n_items(windows); ++i) {
        const auto candidate = GObjectPtr<GtkWindow>::adopt(
            static_cast<GtkWindow*>(g_list_model_get_item(windows, i)));
        if (gtk_window_get_transient_for(candidate.get()) == window &&
            gtk_window_get_modal(candidate.get()) &&
            gtk_widget_get_visible(GTK_WIDGET(candidate.get())))
            return frontmost(candidate.get());
    }
    return window;
}

} // namespace

void DialogPresenter::present(std::unique_ptr<Dialog> dialog, Gtk::Widget& over) {
    if (shown_)
        return shown_->present();
    shown_ = std::move(dialog);
    if (auto* root = gtk_widget_get_root(over.gobj()); GTK_IS_WINDOW(root))
        gtk_window_set_transient_for(shown_->gobj(), frontmost(GTK_WINDOW(root)));
    shown_->set_destroy_with_parent();
    shown_->present();
}

void DialogPresenter::dismiss() {
    if (!shown_)
        return;
    leaving_ = std::move(shown_);
    // Hiding it here would leave a window without an accessible object among the open ones, and
    // GTK 4.8 ends the program when the accessibility bus asks for that object.
    leaving_->set_sensitive(false);
    leaving_->set_modal(false); // Nothing new is to stand in front of it.
    drop_ = ScopedConnection(Glib::signal_idle().connect(
        [this] {
            leaving_.reset();
            return false;
        },
        Glib::PRIORITY_HIGH));
}

} // namespace tessaro
