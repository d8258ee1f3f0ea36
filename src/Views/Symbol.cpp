#include "Views/Symbol.h"

#include <giomm/icon.h>

namespace tessaro {

Symbol::Symbol(const std::string& name, int size) {
    g_object_set(gobj(), "accessible-role", GTK_ACCESSIBLE_ROLE_PRESENTATION, nullptr);
    set_pixel_size(size);
    setSymbol(name);
}

void Symbol::setSymbol(const std::string& name) {
    // By address and not by name, so that no icon theme puts a drawing of its own in its place.
    set(Gio::Icon::create(
        "resource:///com/vandel/Tessaro/icons/scalable/actions/" + name + "-symbolic.svg"));
}

} // namespace tessaro
