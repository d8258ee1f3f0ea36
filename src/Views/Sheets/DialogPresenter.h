#pragma once

#include "Platform/ScopedConnection.h"
#include "Views/Sheets/Dialog.h"

#include <memory>

namespace tessaro {

/// Holds the one dialog that a screen shows. UI thread only.
class DialogPresenter {
public:
    /// Shows the dialog in front of the window that holds `over` and of whatever dialogs already
    /// stand in front of that window. While this shows another one, that one comes to the front.
    void present(std::unique_ptr<Dialog> dialog, Gtk::Widget& over);
    /// Deafens the dialog now and drops it on the next turn of the main loop, since a dialog is
    /// dismissed from within its own handlers.
    void dismiss();

private:
    std::unique_ptr<Dialog> shown_;
    std::unique_ptr<Dialog> leaving_;
    ScopedConnection drop_;
};

} // namespace tessaro
