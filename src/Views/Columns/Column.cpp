#include "Views/Columns/Column.h"

#include "Views/Widgets/Accessible.h"
#include "Views/Widgets/Keys.h"

#include <giomm/menu.h>
#include <giomm/simpleactiongroup.h>
#include <gtkmm/gestureclick.h>
#include <gtkmm/root.h>

namespace tessaro {

namespace {

/// Moves the focus out of `widget`, to the next widget in the direction.
bool focusBeyond(Gtk::Widget& widget, Gtk::DirectionType direction) {
    const bool forward = direction == Gtk::DirectionType::TAB_FORWARD;
    const auto neighbour = [forward](Gtk::Widget* of) {
        return forward ? of->get_next_sibling() : of->get_prev_sibling();
    };
    for (Gtk::Widget* level = &widget; level; level = level->get_parent())
        for (auto* next = neighbour(level); next; next = neighbour(next))
            if (next->child_focus(direction))
                return true;
    return false;
}

} // namespace

Column::Column(const Glib::ustring& name)
    : Gtk::Box(Gtk::Orientation::VERTICAL), view_({}, factory_) {
    add_css_class("column");
    set_hexpand(false); // The scroller would widen the column.
    scroller_.set_policy(Gtk::PolicyType::NEVER, Gtk::PolicyType::AUTOMATIC);
    scroller_.set_vexpand();
    scroller_.set_child(view_);
    append(scroller_);
    accessible::setName(view_, name);
    menu_.set_parent(*this);
    menu_.set_has_arrow(false);
    menu_.set_position(Gtk::PositionType::RIGHT);

    // On the scroller, because the open menu needs the keys for itself.
    addKeys(scroller_, Gtk::PropagationPhase::CAPTURE, sigc::mem_fun(*this, &Column::onKeyPressed));

    auto secondary = Gtk::GestureClick::create();
    secondary->set_button(GDK_BUTTON_SECONDARY);
    secondary->set_propagation_phase(Gtk::PropagationPhase::CAPTURE);
    secondary->signal_pressed().connect(
        [this](int, double x, double y) { openMenuOf(scroller_.pick(x, y)); });
    scroller_.add_controller(secondary);
}

Column::~Column() {
    menu_.unparent();
}

bool Column::onKeyPressed(guint key, guint, Gdk::ModifierType modifiers) {
    using Gdk::ModifierType;
    const auto held = modifiers & (ModifierType::SHIFT_MASK | ModifierType::CONTROL_MASK |
                                   ModifierType::ALT_MASK);
    const bool plain = held == ModifierType{};
    const bool shift = held == ModifierType::SHIFT_MASK;
    if (key == GDK_KEY_Tab && plain)
        return focusBeyond(*this, Gtk::DirectionType::TAB_FORWARD);
    if (key == GDK_KEY_ISO_Left_Tab || (key == GDK_KEY_Tab && shift))
        return focusBeyond(*this, Gtk::DirectionType::TAB_BACKWARD);
    if ((key == GDK_KEY_Menu && plain) || (key == GDK_KEY_F10 && shift))
        return openMenuOf(get_root()->get_focus());
    return false;
}

bool Column::openMenuOf(Gtk::Widget* widget) {
    while (widget && !dynamic_cast<Gtk::Button*>(widget))
        widget = widget->get_parent();
    if (!widget)
        return false;
    const auto commands = menuOf(*widget);
    if (commands.empty())
        return false;
    auto menu = Gio::Menu::create();
    auto actions = Gio::SimpleActionGroup::create();
    for (std::size_t i = 0; i < commands.size(); ++i) {
        const std::string name = "command" + std::to_string(i);
        actions->add_action(name, commands[i].action);
        auto section = menu;
        if (commands[i].isDestructive && i > 0) {
            section = Gio::Menu::create();
            menu->append_section(section);
        }
        section->append(commands[i].label, "menu." + name);
    }
    insert_action_group("menu", actions);
    menu_.set_menu_model(menu);
    if (commands.back().isDestructive)
        menu_.add_css_class("ends-destructive");
    else
        menu_.remove_css_class("ends-destructive");

    double x = 0, y = 0;
    widget->translate_coordinates(*this, 0, 0, x, y);
    menu_.set_pointing_to(
        Gdk::Rectangle(int(x), int(y), widget->get_width(), widget->get_height()));
    menu_.popup();
    return true;
}

} // namespace tessaro
