#pragma once

#include "Platform/ScopedConnection.h"
#include "Views/Modals.h"

#include <gtkmm/window.h>

#include <deque>

namespace tessaro {

/// Alerts as dialogs in front of the main window and whatever already stands in front of it.
class GtkModals final : public Modals {
public:
    /// @param window  the main window, which outlives this
    explicit GtkModals(Gtk::Window& window);
    /// Takes the alert that is shown off the screen; what was not answered stays unanswered.
    ~GtkModals() override;

    void show(ModalAlert alert, std::function<void(std::size_t)> answered) override;

private:
    struct Request {
        ModalAlert alert;
        std::function<void(std::size_t)> answered;
    };

    void presentNext();
    void finish(std::size_t answer);

    Gtk::Window& window_;
    std::deque<Request> requests_; ///< The first one is on screen while there is a dialog.
    /// The toolkit's own, until it is answered or destroyed; null when no alert is shown.
    GtkWindow* dialog_ = nullptr;
    ScopedConnection answered_;
    ScopedConnection destroyed_;
};

} // namespace tessaro
