#include "Views/Shell/MainWindow.h"

#include "Platform/Gtk/DigitKey.h"
#include "Views/Shell/InfoWindow.h"
#include "Views/Shell/WindowCommand.h"
#include "Views/Shell/WindowSize.h"
#include "Views/Widgets/Accessible.h"
#include "Views/Widgets/Keys.h"

#include <giomm/menu.h>

namespace tessaro {

namespace {

constexpr int firstWidth = 1200;
constexpr int firstHeight = 760;
constexpr int keyedPages = 9; ///< One for each digit from 1 to 9.

template <typename T>
T valueOf(const Glib::VariantBase& parameter) {
    return Glib::VariantBase::cast_dynamic<Glib::Variant<T>>(parameter).get();
}

} // namespace

MainWindow::MainWindow(
    const Glib::RefPtr<Gtk::Application>& application, NotificationCenter& notifications,
    InboxSignals& inbox, EngineLoader& engine, SettingsStore& settings)
    : Gtk::ApplicationWindow(application),
      settings_(settings),
      notifications_(notifications),
      inbox_(inbox),
      engine_(engine) {
    showUnread();
    unreadChanged_ = inbox_.unread.observe([this] { showUnread(); });
    inboxRequested_ =
        inbox_.requested.connect([this](const std::string&, const std::string& activationToken) {
            if (!activationToken.empty())
                set_startup_id(activationToken);
            present();
        });
    set_icon_name("com.vandel.Tessaro");
    set_default_size(firstWidth, firstHeight);
    restoreSize(*this, settings_);
    set_titlebar(header_);
    addActions();
    addKeys(
        *this, Gtk::PropagationPhase::CAPTURE, // Before the web page, which takes every key.
        sigc::mem_fun(*this, &MainWindow::pressDigitByPlace));
    addConversationMenu();
    addPrimaryMenu();
}

void MainWindow::showUnread() {
    if (!gobj()) // A browser may change the count after the window was destroyed.
        return;
    const std::string count = inbox_.unread->text();
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
    if (closing_ == Closing::allowed || !askBeforeClosing) {
        keepSize(*this, settings_);
        return Gtk::ApplicationWindow::on_close_request();
    }
    return true;
}

void MainWindow::addActions() {
    add_action("find", inbox_.find.make_slot());
    add_action("zoom-reset", inbox_.zoomReset.make_slot());
    add_action_with_parameter(
        "post", Glib::VARIANT_TYPE_STRING, [this](const Glib::VariantBase& notification) {
            notifications_.post(valueOf<Glib::ustring>(notification));
        });
    add_action_with_parameter(
        "history", Glib::VARIANT_TYPE_BOOL, [this](const Glib::VariantBase& isForward) {
            inbox_.walkHistory.emit(valueOf<bool>(isForward));
        });
    add_action_with_parameter(
        "area", Glib::VARIANT_TYPE_BOOL, [this](const Glib::VariantBase& isForward) {
            inbox_.walkAreas.emit(valueOf<bool>(isForward));
        });
    add_action_with_parameter(
        "choose-page", Glib::VARIANT_TYPE_INT32, [this](const Glib::VariantBase& position) {
            inbox_.choosePage.emit(valueOf<int>(position));
        });
    // From a dialog too, which "window.close" would close.
    get_application()->add_action("quit", sigc::mem_fun(*this, &MainWindow::close));
    for (const auto& command : windowCommands())
        get_application()->set_accels_for_action(
            command.action, {command.accelerators.begin(), command.accelerators.end()});
    for (int position = 1; position <= keyedPages; ++position) {
        const auto digit = std::to_string(position);
        get_application()->set_accels_for_action(
            "win.choose-page(" + digit + ")", {"<Control>" + digit, "<Control>KP_" + digit});
    }
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
    for (const auto& command : windowCommands()) {
        if (!command.isInMenu)
            continue;
        // The toolkit draws a line between sections.
        const auto section = Gio::Menu::create();
        section->append(command.title, command.action);
        menu->append_section(section);
    }
    conversationMenu_.set_label("Trò Chuyện");
    conversationMenu_.set_menu_model(menu);
    header_.pack_start(conversationMenu_);
}

void MainWindow::addPrimaryMenu() {
    add_action("shortcuts", [this] { showInfo(shortcuts_, InfoWindow::shortcuts()); });
    add_action("about", [this] { showInfo(about_, InfoWindow::about(engine_)); });
    get_application()->set_accel_for_action("win.shortcuts", "<Control>question");
    const auto menu = Gio::Menu::create();
    menu->append("Phím tắt", "win.shortcuts");
    menu->append("Giới thiệu Tessaro", "win.about");
    primaryMenu_.set_icon_name("open-menu-symbolic");
    primaryMenu_.set_menu_model(menu);
    primaryMenu_.set_primary(true);
    accessible::setTooltip(primaryMenu_, "Trình đơn chính");
    header_.pack_end(primaryMenu_);
}

void MainWindow::showInfo(DialogPresenter& presenter, std::unique_ptr<Dialog> window) {
    window->onDismiss([&presenter] { presenter.dismiss(); });
    presenter.present(std::move(window), *this);
}

} // namespace tessaro
