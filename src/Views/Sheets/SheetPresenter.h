#pragma once

#include "Platform/ScopedConnection.h"
#include "Views/Sheets/Sheet.h"

#include <memory>

namespace tessaro {

/// Holds the one sheet that a screen shows. UI thread only.
class SheetPresenter {
public:
    /// Shows the sheet in front of the window that holds `over`. Does nothing while another one is
    /// shown.
    void present(std::unique_ptr<Sheet> sheet, Gtk::Widget& over);
    /// Deafens the sheet now and drops it on the next turn of the main loop, since a sheet is
    /// dismissed from within its own handlers.
    void dismiss();

    Sheet* shown() const { return sheet_.get(); }

private:
    std::unique_ptr<Sheet> sheet_;
    std::unique_ptr<Sheet> leaving_;
    ScopedConnection drop_;
};

} // namespace tessaro
