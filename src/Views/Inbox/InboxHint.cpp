#include "Views/Inbox/InboxHint.h"

#include "Views/Widgets/Layout.h"
#include "Views/Widgets/Symbol.h"

namespace tessaro {

InboxHint::InboxHint(
    const ScreenContext& context, const AccountsViewModel& accountsVM,
    const PagesViewModel& pagesVM)
    : Gtk::Box(Gtk::Orientation::VERTICAL, 16),
      context_(context),
      accountsVM_(accountsVM),
      pagesVM_(pagesVM) {
    set_expand();
    set_halign(Gtk::Align::CENTER);
    set_valign(Gtk::Align::CENTER);
    auto& icon = *Gtk::make_managed<Symbol>("bubble.left.and.bubble.right", 48);
    icon.add_css_class("secondary-text");
    icon.add_css_class("placeholder-icon");
    auto& title = *Gtk::make_managed<Gtk::Label>("Chọn một Page để mở hộp thư");
    title.set_css_classes({"points-15", "medium", "secondary-text"});
    auto& subtitle = *Gtk::make_managed<Gtk::Label>("Hộp thư sẽ hiển thị trực tiếp từ Facebook");
    subtitle.set_css_classes({"points-12", "secondary-text", "placeholder-subtitle"});
    step_.set_halign(Gtk::Align::CENTER);
    step_.add_css_class("suggested-action");
    appendAll(*this, icon, title, subtitle, step_);

    step_.signal_clicked().connect([this] {
        const auto& inbox = context_.inbox;
        (accountsVM_.accounts->empty() ? inbox.addAccount : inbox.addPage).emit();
    });
    accountsChanged_ = accountsVM_.accounts.observe([this] { showStep(); });
    accountChanged_ = accountsVM_.selectedAccount.observe([this] { showStep(); });
    pagesChanged_ = pagesVM_.pages.observe([this] { showStep(); });
    showStep();
}

void InboxHint::showStep() {
    const bool hasAccount = !accountsVM_.accounts->empty();
    step_.set_label(hasAccount ? "Thêm Page đầu tiên" : "Thêm tài khoản đầu tiên");
    step_.set_visible(!hasAccount || (*accountsVM_.selectedAccount && pagesVM_.pages->empty()));
}

} // namespace tessaro
