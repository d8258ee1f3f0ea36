#include "Views/Shell/GtkModals.h"

#include "Views/Shell/AlertWindow.h"

namespace tessaro {

GtkModals::GtkModals(Gtk::Window& window) : window_(window) {}

void GtkModals::show(ModalAlert alert, Answered answered) {
    requests_.push_back({std::move(alert), std::move(answered)});
    if (requests_.size() == 1)
        presentNext();
}

void GtkModals::presentNext() {
    presenter_.present(
        std::make_unique<AlertWindow>(
            requests_.front().alert, [this](std::optional<std::size_t> button) { finish(button); }),
        window_);
}

void GtkModals::finish(std::optional<std::size_t> button) {
    presenter_.dismiss();
    const Request request = std::move(requests_.front());
    requests_.pop_front();
    if (!requests_.empty())
        presentNext();
    request.answered(button);
}

} // namespace tessaro
