#include "Views/Columns/AccountSidebar.h"

#include "Views/Columns/AccountButton.h"
#include "Views/Sheets/AccountDetailSheet.h"

namespace tessaro {

AccountSidebar::AccountSidebar(const ScreenContext& context, AccountsViewModel& viewModel)
    : Gtk::Box(Gtk::Orientation::VERTICAL),
      context_(context),
      viewModel_(viewModel),
      column_("Tài khoản", viewModel.accounts, viewModel.selectedAccount, columnBehaviour()),
      controls_(context) {
    set_css_classes({"sidebar-column", "account-column"});
    set_size_request(56);
    append(column_);
    append(controls_);
    column_.setAddRow(true);
    context.inbox.addAccount.connect(
        sigc::bind(sigc::mem_fun(*this, &AccountSidebar::openSheet), std::nullopt));
}

RecordColumn<Account>::Behaviour AccountSidebar::columnBehaviour() {
    return {
        .makeButton = [] { return Gtk::make_managed<AccountButton>(); },
        .addShape = AddButton::Shape::circle,
        .addTooltip = "Thêm tài khoản",
        .choose = [this](const Account& account) { viewModel_.selectAccount(account); },
        .add = [this] { openSheet(std::nullopt); },
        .menu = [this](const Account& account) -> RecordColumn<Account>::Commands {
            return {
                {"Chỉnh sửa", [this, account] { openSheet(account); }},
                {"Xóa tài khoản", [this, account] { viewModel_.deleteAccount(account); }, true},
            };
        },
    };
}

void AccountSidebar::openSheet(const std::optional<Account>& edited) {
    auto mode = edited ? AccountDetailSheet::Mode::edit(*edited) : AccountDetailSheet::Mode::add();
    auto sheet = std::make_unique<AccountDetailSheet>(
        context_, std::move(mode), [this, edited](AccountDraft draft) {
            if (edited)
                viewModel_.updateAccount(draft.appliedTo(*edited));
            else
                viewModel_.addAccount(std::move(draft));
        });
    sheet->onDismiss([this] {
        viewModel_.showAddSheet.set(false);
        viewModel_.editingAccount.set(std::nullopt);
        sheets_.dismiss();
    });
    viewModel_.showAddSheet.set(!edited);
    viewModel_.editingAccount.set(edited);
    sheets_.present(std::move(sheet), *this);
}

} // namespace tessaro
