#pragma once

#include "Models/Account.h"
#include "Views/ScreenContext.h"
#include "Views/Sheets/FadeSlide.h"
#include "Views/Sheets/Sheet.h"
#include "Views/Widgets/SymbolButton.h"

#include <gtkmm/entry.h>
#include <gtkmm/label.h>
#include <gtkmm/passwordentry.h>
#include <gtkmm/switch.h>

#include <optional>

namespace tessaro {

/// The dialog in which an account is made or edited. It stores nothing itself: saving hands what
/// was entered to whoever opened it.
class AccountDetailSheet : public Sheet {
public:
    /// Adding, or editing the account that is given.
    struct Mode {
        std::optional<Account> edited;

        static Mode add() { return {}; }
        static Mode edit(Account account) { return {std::move(account)}; }
    };
    using OnSave = std::function<void(AccountDraft draft)>;

    /// @param onSave  called at most once per showing, before the sheet closes
    AccountDetailSheet(const ScreenContext& context, Mode mode, OnSave onSave);

protected:
    void on_show() override;

private:
    bool onReturn(Gtk::Widget* focus) override;
    void layOutName();
    void layOutDevice();
    void layOutProxy();
    void layOutProxyFields();
    /// Tells at the field whether its text is no port. Saving stays possible.
    void checkPort();
    void fillIn();
    void save();

    const DeviceIdentity& device_;
    Desktop& desktop_;
    const Mode mode_;
    const OnSave onSave_;

    Gtk::Entry name_;
    Gtk::Label deviceId_;
    Gtk::Label deviceName_;
    SymbolButton copyDeviceId_;
    Gtk::Switch proxyEnabled_;
    Gtk::Entry proxyHost_;
    Gtk::Entry proxyPort_;
    Gtk::Entry proxyUsername_;
    Gtk::PasswordEntry proxyPassword_;
    Gtk::Box portError_;
    Gtk::Box proxyRows_{Gtk::Orientation::VERTICAL, 4};
    FadeSlide proxySlide_;
};

} // namespace tessaro
