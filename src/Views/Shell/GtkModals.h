#pragma once

#include "Views/Modals.h"
#include "Views/Sheets/DialogPresenter.h"

#include <deque>

namespace tessaro {

/// Alerts as dialogs in front of the main window and whatever already stands in front of it.
class GtkModals final : public Modals {
public:
    /// @param window  the main window, which outlives this. With this the alert that is shown
    /// leaves
    ///                the screen; what was not answered stays unanswered.
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
