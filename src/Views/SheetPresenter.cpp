#include "Views/SheetPresenter.h"

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
    sheet_->hide();
    leaving_ = std::move(sheet_);
    drop_ = ScopedConnection(Glib::signal_idle().connect([this] {
        leaving_.reset();
        return false;
    }));
}

} // namespace tessaro
