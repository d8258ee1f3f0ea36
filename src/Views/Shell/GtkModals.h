#pragma once

#include "Views/Modals.h"
#include "Views/Sheets/DialogPresenter.h"

#include <deque>

namespace tessaro {

/// Shows each alert as a dialog in front of the main window and of every dialog that is open.
class GtkModals final : public Modals {
public:
    /// Destroying this closes the alert on screen. Alerts without an answer stay unanswered.
    /// @param window  the main window; outlives this
    explicit GtkModals(Gtk::Window& window);

    void show(ModalAlert alert, Answered answered) override;

private:
    struct Request {
        ModalAlert alert;
        Answered answered;
    };

    void presentNext();
    void finish(std::optional<std::size_t> button);

    Gtk::Window& window_;
    std::deque<Request> requests_; ///< The first one is on screen.
    DialogPresenter presenter_;
};

} // namespace tessaro
