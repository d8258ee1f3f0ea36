#include "Views/Shell/GtkModals.h"

#include "Platform/GHandle.h"
#include "Views/Widgets/Accessible.h"

#include <adwaita.h>

#include <algorithm>

namespace tessaro {

namespace {

/// The window that stands in front of `window`: a sheet that was opened over it, or itself.
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

std::size_t cancelButton(const ModalAlert& alert) {
    const auto found = std::ranges::find_if(alert.buttons, &ModalAlert::Button::isCancel);
    return found == alert.buttons.end() ? 0 : std::size_t(found - alert.buttons.begin());
}

} // namespace

GtkModals::GtkModals(Gtk::Window& window) : window_(window) {}

GtkModals::~GtkModals() {
    destroyed_.disconnect();
    if (dialog_)
        gtk_window_destroy(dialog_);
}

void GtkModals::show(ModalAlert alert, std::function<void(std::size_t)> answered) {
    requests_.push_back({std::move(alert), std::move(answered)});
    if (!dialog_)
        presentNext();
}

void GtkModals::presentNext() {
    const ModalAlert& alert = requests_.front().alert;
    const auto cancel = cancelButton(alert);
    auto* const dialog = ADW_MESSAGE_DIALOG(adw_message_dialog_new(
        frontmost(window_.gobj()), alert.title.c_str(), alert.message.c_str()));
    dialog_ = GTK_WINDOW(dialog);
    for (std::size_t i = 0; i < alert.buttons.size(); ++i)
        adw_message_dialog_add_response(
            dialog, std::to_string(i).c_str(), alert.buttons[i].label.c_str());
    accessible::nameButtonsByLabel(GTK_WIDGET(dialog));
    adw_message_dialog_set_close_response(dialog, std::to_string(cancel).c_str());

    answered_ = connectSignal<void(AdwMessageDialog*, const char*)>(
        dialog, "response",
        [this](AdwMessageDialog*, const char* response) { finish(std::stoul(response)); });
    // The window beneath may be closed and take the dialog with it.
    destroyed_ = connectSignal<void(GtkWidget*)>(
        dialog, "destroy", [this, cancel](GtkWidget*) { finish(cancel); });
    gtk_window_present(dialog_);
}

void GtkModals::finish(std::size_t answer) {
    answered_.disconnect();
    destroyed_.disconnect();
    dialog_ = nullptr;
    const Request request = std::move(requests_.front());
    requests_.pop_front();
    if (!requests_.empty())
        presentNext();
    request.answered(answer);
}

} // namespace tessaro
