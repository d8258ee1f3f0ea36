#pragma once

#include "Platform/ScopedConnection.h"
#include "Views/Modals.h"
#include "Views/Sheets/Dialog.h"

#include <gtkmm/label.h>
#include <gtkmm/scrolledwindow.h>

namespace tessaro {

/// One alert on screen. A long text scrolls; the title and the buttons stay in view.
class AlertWindow : public Dialog {
public:
    /// @param answered  called at most once; it may dismiss the window, but must not drop it
    AlertWindow(const ModalAlert& alert, Modals::Answered answered);

private:
    void layOutText(const ModalAlert& alert);
    void answer(std::optional<std::size_t> button);

    Modals::Answered answered_; ///< Empty after it was called.
    Gtk::Label title_;
    Gtk::ScrolledWindow scroller_;
    Gtk::Label message_;
    Gtk::Box buttons_;
    ScopedConnection destroyed_;
};

} // namespace tessaro
