#include "Views/Columns/PageListView.h"

#include "Views/Columns/PageButton.h"
#include "Views/Sheets/AddPageSheet.h"

#include <utility>

namespace tessaro {

PageListView::PageListView(const ScreenContext& context, PagesViewModel& pagesVM)
    : context_(context),
      pagesVM_(pagesVM),
      column_("Page", pagesVM.pages, pagesVM.selectedPage, columnBehaviour()),
      arrow_("arrow.left", 14) {
    set_css_classes({"sidebar-column", "page-column"});
    set_size_request(56);
    arrow_.add_css_class("secondary-text");
    arrow_.add_css_class("arrow-hint");
    arrow_.set_halign(Gtk::Align::CENTER);
    arrow_.set_valign(Gtk::Align::CENTER);
    arrow_.set_can_target(false);
    set_child(column_);
    add_overlay(arrow_);

    context_.inbox.addPage.connect(sigc::mem_fun(*this, &PageListView::openSheet));
    context_.inbox.choosePage.connect(sigc::mem_fun(*this, &PageListView::choose));
}

RecordColumn<PageConfig>::Behaviour PageListView::columnBehaviour() {
    return {
        .makeButton = [this] { return Gtk::make_managed<PageButton>(context_); },
        .addShape = AddButton::Shape::roundedSquare,
        .addTooltip = "Thêm Page",
        .choose = [this](const PageConfig& page) { pagesVM_.selectPage(page); },
        .add = [this] { openSheet(); },
        .menu = [this](const PageConfig& page) -> RecordColumn<PageConfig>::Commands {
            return {{"Xóa Page", [this, page] { pagesVM_.deletePage(page); }, true}};
        },
    };
}

void PageListView::setAccount(const std::optional<Account>& account) {
    const bool isAnother = account_ != account;
    account_ = account;
    column_.setAddRow(account.has_value());
    if (isAnother)
        column_.showFirst();
    arrow_.set_visible(!account);
}

void PageListView::choose(int position) {
    const auto& pages = *pagesVM_.pages;
    if (position >= 1 && std::cmp_less_equal(position, pages.size()))
        pagesVM_.selectPage(pages[static_cast<std::size_t>(position) - 1]);
}

void PageListView::openSheet() {
    if (!account_)
        return;
    auto sheet = std::make_unique<AddPageSheet>(context_, pagesVM_, *account_);
    sheet->onDismiss([this] {
        pagesVM_.showAddSheet.set(false);
        sheets_.dismiss();
    });
    pagesVM_.showAddSheet.set(true);
    sheets_.present(std::move(sheet), *this);
}

} // namespace tessaro
