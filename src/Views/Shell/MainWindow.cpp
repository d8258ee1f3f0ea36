#include "Views/Shell/MainWindow.h"

#include "Platform/Gtk/DigitKey.h"
#include "Views/Widgets/Accessible.h"
#include "Views/Widgets/InboxCommands.h"

#include <giomm/menu.h>
#include <gtkmm/eventcontrollerkey.h>

namespace tessaro {

namespace {

constexpr int firstWidth = 1200;
constexpr int firstHeight = 760;
constexpr int keyedPages = 9; ///< One for each digit from 1 to 9.

/// Brings the window to the front. Makes it if there is none; closing it destroys it.
template <typename Window, typename... Arguments>
void bringUp(std::optional<Window>& window, Gtk::Window& parent, Arguments&&... arguments) {
    if (!window)
        window.emplace(parent, arguments...).closed.connect([&window] { window.reset(); });
    window->present();
}

} // namespace

MainWindow::MainWindow(
    const Glib::RefPtr<Gtk::Application>& application, NotificationCenter& notifications,
    EngineLoader& engine)
    : Gtk::ApplicationWindow(application), notifications_(notifications), engine_(engine) {
    showUnread("");
    unreadChanged_ = notifications_.observe(unreadCountChanged, [this](const Announcement& posted) {
        showUnread(posted.userInfo.at("count"));
    });
    inboxRequested_ = notifications_.observe(inboxRequested, [this](const Announcement& posted) {
        if (const auto& token = posted.userInfo.at("activationToken"); !token.empty())
            set_startup_id(token);
        present();
    });
    set_icon_name("com.vandel.Tessaro");
    set_default_size(firstWidth, firstHeight);
    set_titlebar(header_);
    for (const auto& command : conversationCommands())
        addCommand(command);
    for (const auto& command : browserCommands())
        addCommand(command);
    addPageKeys();
    addDigitKeys();
    addConversationMenu();
    addPrimaryMenu();
}

void MainWindow::showUnread(const std::string& count) {
    if (!gobj()) // A browser may post its last count after the window was destroyed.
        return;
    set_title(count.empty() ? "Tessaro" : "(" + count + ") Tessaro");
}

bool MainWindow::on_close_request() {
    if (closing_ == Closing::notYet && askBeforeClosing) {
        closing_ = Closing::asked;
        askBeforeClosing([this](bool mayClose) {
            closing_ = mayClose ? Closing::allowed : Closing::notYet;
            if (mayClose)
                close();
        });
    }
    // Where the answer has come at once, the toolkit ignored that close(): it was within this
    // signal.
    if (closing_ == Closing::allowed || !askBeforeClosing)
        return Gtk::ApplicationWindow::on_close_request();
    return true;
}

void MainWindow::addCommand(const WindowCommand& command) {
    add_action(command.action, [this, name = command.notification] { notifications_.post(name); });
    get_application()->set_accels_for_action(
        "win." + command.action, {command.accelerators.begin(), command.accelerators.end()});
}

void MainWindow::addPageKeys() {
    add_action_with_parameter(
        "choose-page", Glib::VARIANT_TYPE_INT32, [this](const Glib::VariantBase& parameter) {
            const auto position = Glib::VariantBase::cast_dynamic<Glib::Variant<int>>(parameter);
            notifications_.post(choosePage, {{"position", std::to_string(position.get())}});
        });
    for (int position = 1; position <= keyedPages; ++position) {
        const auto digit = std::to_string(position);
        get_application()->set_accels_for_action(
            "win.choose-page(" + digit + ")", {"<Control>" + digit, "<Control>KP_" + digit});
    }
}

void MainWindow::addDigitKeys() {
    // Before the web page, which takes every key.
    const auto keys = Gtk::EventControllerKey::create();
    keys->set_propagation_phase(Gtk::PropagationPhase::CAPTURE);
    keys->signal_key_pressed().connect(
        [this](guint keyval, guint keycode, Gdk::ModifierType modifiers) {
            return pressDigitByPlace(keyval, keycode, modifiers);
        },
        false);
    add_controller(keys);
}

bool MainWindow::pressDigitByPlace(guint keyval, guint keycode, Gdk::ModifierType modifiers) {
    const auto held =
        static_cast<GdkModifierType>(modifiers) & gtk_accelerator_get_default_mod_mask();
    const auto digit = digitByPlace(get_display()->gobj(), keycode);
    if (held != GDK_CONTROL_MASK || digit.empty())
        return false;
    // A command of the key's own character goes first: on a French keyboard the 6 is a minus sign.
    // The check for the name is needed because a combining mark has a name that cannot be parsed.
    const auto own = takeString(gtk_accelerator_name(keyval, GDK_CONTROL_MASK));
    if (gtk_accelerator_parse(own.c_str(), nullptr, nullptr) &&
        !get_application()->get_actions_for_accel(own).empty())
        return false;
    for (const auto& action : get_application()->get_actions_for_accel("<Control>" + digit)) {
        Glib::ustring name;
        Glib::VariantBase target;
        Gio::Action::parse_detailed_name_variant(action, name, target);
        activate_action(name, target);
    }
    return true;
}

void MainWindow::addConversationMenu() {
    const auto menu = Gio::Menu::create();
    for (const auto& command : conversationCommands()) {
        // The toolkit draws a line between sections.
        const auto section = Gio::Menu::create();
        section->append(command.title, "win." + command.action);
        menu->append_section(section);
    }
    conversationMenu_.set_label("Trò Chuyện");
    conversationMenu_.set_menu_model(menu);
    header_.pack_start(conversationMenu_);
}

void MainWindow::addPrimaryMenu() {
    add_action("shortcuts", [this] { bringUp(shortcuts_, *this); });
    add_action("about", [this] { bringUp(about_, *this, engine_); });
    get_application()->set_accel_for_action("win.shortcuts", "<Control>question");
    const auto menu = Gio::Menu::create();
    menu->append("Phím tắt", "win.shortcuts");
    menu->append("Giới thiệu Tessaro", "win.about");
    primaryMenu_.set_icon_name("open-menu-symbolic");
    primaryMenu_.set_menu_model(menu);
    primaryMenu_.set_primary(true);
    primaryMenu_.set_tooltip_text("Trình đơn chính");
    accessible::setName(primaryMenu_, "Trình đơn chính");
    header_.pack_end(primaryMenu_);
}

} // namespace tessaro
