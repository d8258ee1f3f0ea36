#include "Views/Columns/AccountSidebar.h"

#include "Views/Columns/AccountButton.h"
#include "Views/Sheets/AccountDetailSheet.h"
#include "Views/Theme/ThemeSettingsView.h"
#include "Views/Widgets/InboxCommands.h"

#include <gtkmm/separator.h>

namespace tessaro {

AccountSidebar::AccountSidebar(const ScreenContext& context, AccountsViewModel& viewModel)
    : Gtk::Box(Gtk::Orientation::VERTICAL),
      context_(context),
      viewModel_(viewModel),
      column_("Tài khoản", columnBehaviour()),
      themeToggle_("sun.max.fill", 15, "Chuyển chế độ Sáng/Tối"),
      themeSettings_("paintpalette", 16, "Cấu hình Giao diện màu sắc") {
    set_css_classes({"sidebar-column", "account-column"});
    set_size_request(56);
    append(column_);
    addCommand("house.fill", "Quay về Hộp thư", webViewGoHome);
    addCommand("arrow.clockwise", "Tải lại trang", webViewReload);
    addDivider();
    addCommand("plus.magnifyingglass", "Phóng to", webViewZoomIn);
    addCommand("minus.magnifyingglass", "Thu nhỏ", webViewZoomOut);
    addDivider();
    append(themeToggle_);
    append(themeSettings_);
    themeSettings_.set_margin_bottom(8);

    themeToggle_.signal_clicked().connect([this] { context_.theme.toggleTheme(); });

    themePopover_.set_child(*Gtk::make_managed<ThemeSettingsView>(
        context_.theme, std::vector<GridColumn>(7, {.width = 26, .spacing = 8})));
    themePopover_.add_css_class("theme-settings-popover");
    themePopover_.set_position(Gtk::PositionType::RIGHT);
    themePopover_.set_parent(themeSettings_);
    themeSettings_.signal_clicked().connect([this] { themePopover_.popup(); });

    column_.setRecords(*viewModel_.accounts);
    column_.setAddRow(true);
    showToggleSymbol();
    connections_.push_back(
        viewModel_.accounts.observe([this] { column_.setRecords(*viewModel_.accounts); }));
    connections_.push_back(viewModel_.selectedAccount.observe([this] {
        const auto& selected = *viewModel_.selectedAccount;
        column_.setSelected(selected ? std::optional(selected->id) : std::nullopt);
    }));
    connections_.push_back(context_.theme.observe([this] { showToggleSymbol(); }));
}

AccountSidebar::~AccountSidebar() {
    themePopover_.unparent();
}

RecordColumn<Account>::Behaviour AccountSidebar::columnBehaviour() {
    return {
        .makeButton = [] { return Gtk::make_managed<AccountButton>(); },
        .makeAddButton =
            [] { return Gtk::make_managed<AddButton>(AddButton::Shape::circle, "Thêm tài khoản"); },
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

void AccountSidebar::addCommand(const char* symbol, const char* tooltip, const char* notification) {
    auto* button = Gtk::make_managed<SymbolButton>(symbol, 15, tooltip);
    button->signal_clicked().connect(
        [this, notification] { context_.notifications.post(notification); });
    append(*button);
}

void AccountSidebar::addDivider() {
    auto* divider = Gtk::make_managed<Gtk::Separator>();
    divider->set_size_request(28);
    divider->set_halign(Gtk::Align::CENTER);
    divider->set_margin_top(4);
    divider->set_margin_bottom(4);
    append(*divider);
}

void AccountSidebar::showToggleSymbol() {
    themeToggle_.setSymbol(
        context_.theme.appearanceMode() == "light" ? "moon.fill" : "sun.max.fill");
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
