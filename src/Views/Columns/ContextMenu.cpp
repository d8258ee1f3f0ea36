#include "Views/Columns/ContextMenu.h"

namespace tessaro {

ContextMenu::ContextMenu(Gtk::Widget& owner) : owner_(owner) {
    popover_.set_parent(owner_);
    popover_.set_has_arrow(false);
    popover_.set_position(Gtk::PositionType::RIGHT);
}

ContextMenu::~ContextMenu() {
    popover_.unparent();
}

void ContextMenu::open(const std::vector<Command>& commands, const Gtk::Widget& thing) {
    auto menu = Gio::Menu::create();
    auto actions = Gio::SimpleActionGroup::create();
    bool endsDestructive = false;
    for (std::size_t i = 0; i < commands.size(); ++i) {
        const std::string name = "command" + std::to_string(i);
        actions->add_action(name, [action = commands[i].action] { action(); });
        auto section = menu;
        if (commands[i].isDestructive && i > 0) {
            section = Gio::Menu::create();
            menu->append_section(section);
        }
        section->append(commands[i].label, "menu." + name);
        endsDestructive = commands[i].isDestructive;
    }
    owner_.insert_action_group("menu", actions);
    popover_.set_menu_model(menu);
    if (endsDestructive)
        popover_.add_css_class("ends-destructive");
    else
        popover_.remove_css_class("ends-destructive");

    double x = 0, y = 0;
    const_cast<Gtk::Widget&>(thing).translate_coordinates(owner_, 0, 0, x, y);
    popover_.set_pointing_to(Gdk::Rectangle(int(x), int(y), thing.get_width(), thing.get_height()));
    popover_.popup();
}

} // namespace tessaro
