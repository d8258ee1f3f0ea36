#include "Views/Sheets/SheetPresenter.h"

#include <glibmm/main.h>

namespace tessaro {

void SheetPresenter::present(std::unique_ptr<Sheet> sheet, Gtk::Widget& over) {
    if (sheet_)
        return;
    sheet_ = std::move(sheet);
    if (auto* window = dynamic_cast<Gtk::Window*>(over.get_root()))
        sheet_->set_transient_for(*window);
    sheet_->present();
}

void SheetPresenter::dismiss() {
    if (!sheet_)
        return;
    leaving_ = std::move(sheet_);
    // Hiding it here would leave a window without an accessible object among the open ones, and
    // GTK 4.8 ends the program when the accessibility bus asks for that object.
    leaving_->set_sensitive(false);
    drop_ = ScopedConnection(Glib::signal_idle().connect(
        [this] {
            leaving_.reset();
            return false;
        },
        Glib::PRIORITY_HIGH));
}

} // namespace tessaro
