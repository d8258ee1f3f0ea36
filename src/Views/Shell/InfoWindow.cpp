#include "Views/Shell/InfoWindow.h"

namespace tessaro {

InfoWindow::InfoWindow(const Glib::ustring& title) : Dialog(title) {
    set_modal(false);
    set_titlebar(header_);
    remove_css_class("sheet");
    add_css_class("info-window");
}

} // namespace tessaro
