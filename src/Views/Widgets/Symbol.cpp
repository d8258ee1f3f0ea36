#include "Views/Widgets/Symbol.h"

namespace tessaro {

Symbol::Symbol(const std::string& name, int size) {
    g_object_set(gobj(), "accessible-role", GTK_ACCESSIBLE_ROLE_PRESENTATION, nullptr);
    add_css_class("symbol-" + std::to_string(size));
    setSymbol(name);
}

void Symbol::setSymbol(const std::string& name) {
    set_from_icon_name("tessaro-" + name + "-symbolic");
}

} // namespace tessaro
