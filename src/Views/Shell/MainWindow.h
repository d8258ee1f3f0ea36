#pragma once

#include "Engine/EngineLoader.h"

#include "Platform/NotificationCenter.h"
#include "Platform/SettingsStore.h"
#include "Views/Sheets/DialogPresenter.h"
#include "Views/Widgets/InboxCommands.h"

#include <gtkmm/application.h>
#include <gtkmm/applicationwindow.h>
#include <gtkmm/headerbar.h>
#include <gtkmm/menubutton.h>

#include <functional>
#include <memory>

namespace tessaro {

/// The main window: the title, which shows the unread count, the header bar with the menus, and the
/// keys. UI thread only.
class MainWindow : public Gtk::ApplicationWindow {
public:
    /// @param notifications, inbox  receive the commands; outlive this, as the others do
    /// @param settings              keeps the window's size from one run to the next
    MainWindow(
        const Glib::RefPtr<Gtk::Application>& application, NotificationCenter& notifications,
        InboxSignals& inbox, EngineLoader& engine, SettingsStore& settings);

    /// Asked before the window closes: calls back whether it may, at once or later. May be empty.
    std::function<void(std::function<void(bool mayClose)> answered)> askBeforeClosing;

protected:
    bool on_close_request() override;

private:
    void showUnread();
    void addActions();
    bool pressDigitByPlace(guint keyval, guint keycode, Gdk::ModifierType modifiers);
    void addConversationMenu();
    void addPrimaryMenu();
    void showInfo(DialogPresenter& presenter, std::unique_ptr<Dialog> window);

    SettingsStore& settings_;
    NotificationCenter& notifications_;
    InboxSignals& inbox_;
    EngineLoader& engine_;
    enum class Closing { notYet, asked, allowed } closing_ = Closing::notYet;
    Gtk::HeaderBar header_;
    Gtk::MenuButton conversationMenu_;
    Gtk::MenuButton primaryMenu_;
    DialogPresenter about_;
    DialogPresenter shortcuts_;
    ScopedConnection unreadChanged_;
    ScopedConnection inboxRequested_;
};

} // namespace tessaro
