#include "Views/Sheets/PagePicker.h"

#include "Platform/Text.h"
#include "Views/Widgets/Accessible.h"
#include "Views/Widgets/Layout.h"

#include <gtkmm/root.h>
#include <gtkmm/separator.h>

#include <algorithm>
#include <utility>

namespace tessaro {

namespace {

constexpr std::size_t fewestToFilter = 8; ///< A shorter list is seen at a glance.

} // namespace

PagePicker::PagePicker(
    const ScreenContext& context, AddPageFlow& flow, std::function<void()> beforeRearrange)
    : Gtk::Box(Gtk::Orientation::VERTICAL, 8),
      context_(context),
      flow_(flow),
      beforeRearrange_(std::move(beforeRearrange)),
      noMatch_("Không có Page nào khớp."),
      more_("Tải thêm Page") {
    const Glib::ustring caption = "Đây là User Token. Chọn Page bạn muốn kết nối:";
    auto& divider = *Gtk::make_managed<Gtk::Separator>();
    divider.set_margin_bottom(8); // Together with the spacing the 16 points between sections.
    auto& header = *Gtk::make_managed<Gtk::Box>(Gtk::Orientation::HORIZONTAL, 6);
    header.set_css_classes({"page-picker-header", "points-11", "medium", "accent-text"});
    header.append(*Gtk::make_managed<Symbol>("info.circle.fill", 11));
    header.append(*Gtk::make_managed<Gtk::Label>(caption));
    layOutFilter();
    list_.property_accessible_role() = Gtk::Accessible::Role::RADIO_GROUP;
    accessible::setName(list_, caption);
    noMatch_.set_css_classes({"points-11", "secondary-text"});
    more_.signal_clicked().connect([this] {
        rowsBefore_ = rows_.size();
        beforeRearrange_();
        flow_.loadMorePages();
    });
    appendAll(*this, divider, header, filterRow_, list_, noMatch_, more_);

    connections_.push_back(flow_.resolvedPages.observe([this] { showPages(); }));
    connections_.push_back(flow_.selectedResolvedPage.observe([this] { showSelection(); }));
    connections_.push_back(flow_.isLoadingMore.observe([this] { showLoading(); }));
    connections_.push_back(flow_.hasMorePages.observe([this] { showCount(); }));
    filter();
}

void PagePicker::layOutFilter() {
    filter_.set_placeholder_text("Lọc theo tên Page");
    filter_.set_activates_default();
    filter_.set_hexpand();
    filter_.set_width_chars(1); // The sheet gives the width, not the text.
    accessible::setName(filter_, "Lọc theo tên Page");
    filter_.signal_changed().connect([this] {
        beforeRearrange_();
        filter();
    });
    count_.set_css_classes({"points-11", "secondary-text"});
    appendAll(filterRow_, filter_, count_);
}

bool PagePicker::focusFrom(std::size_t index) {
    return std::any_of(rows_.begin() + std::ptrdiff_t(index), rows_.end(), [](auto* row) {
        return row->get_visible() && row->grab_focus();
    });
}

bool PagePicker::isPressedByReturn(Gtk::Widget* focus) const {
    const auto* row = dynamic_cast<PagePickerRow*>(focus);
    return focus == &more_ || (row && !row->isSelected());
}

void PagePicker::showPages() {
    const auto& pages = *flow_.resolvedPages;
    if (pages.empty()) {
        for (PagePickerRow* row : rows_)
            list_.remove(*row);
        rows_.clear();
        filter_.set_text("");
    }
    for (std::size_t i = rows_.size(); i < pages.size(); ++i) {
        auto* row = Gtk::make_managed<PagePickerRow>(context_, flow_.account(), pages[i]);
        row->signal_clicked().connect(
            [this, page = pages[i]] { flow_.selectedResolvedPage.set(page); });
        list_.append(*row);
        rows_.push_back(row);
    }
    filterRow_.set_visible(rows_.size() >= fewestToFilter);
    filter();
    showSelection();
}

void PagePicker::showSelection() {
    const auto& selected = *flow_.selectedResolvedPage;
    for (PagePickerRow* row : rows_)
        row->setSelected(selected && selected->id == row->pageId());
}

void PagePicker::showLoading() {
    more_.setState(true, *flow_.isLoadingMore);
    const bool hasNewRows = !*flow_.isLoadingMore && rows_.size() > rowsBefore_;
    // A person who waits has the focus here, or nowhere.
    auto* focus = get_root() ? get_root()->get_focus() : nullptr;
    if (hasNewRows && (!focus || focus == &more_))
        focusAfterLayout(rowsBefore_);
    showCount();
}

void PagePicker::focusAfterLayout(std::size_t index) {
    // The first frame lays new rows out. Only then can the sheet scroll to one of them.
    list_.add_tick_callback([this, index, frames = 0](const auto&) mutable {
        const bool isLaidOut = ++frames > 1;
        if (isLaidOut)
            focusFrom(std::min(index, rows_.size()));
        return !isLaidOut;
    });
}

void PagePicker::filter() {
    const std::string wanted = searchForm(trimBlanks(filter_.get_text().raw()));
    for (PagePickerRow* row : rows_)
        row->set_visible(row->matches(wanted));
    showCount();
}

void PagePicker::showCount() {
    const auto isShown = [](const auto* row) { return row->get_visible(); };
    const auto shown = std::size_t(std::ranges::count_if(rows_, isShown));
    const std::string all = std::to_string(rows_.size()) + " Page";
    const bool isCut = rows_.size() >= AddPageFlow::mostPages;
    count_.set_text(
        shown < rows_.size() ? std::to_string(shown) + " trong " + all
        : isCut              ? all + " đầu tiên"
                             : all);
    noMatch_.set_visible(shown == 0);
    // While it is busy it stays, to show that.
    more_.set_visible(*flow_.hasMorePages || *flow_.isLoadingMore);
}

} // namespace tessaro
