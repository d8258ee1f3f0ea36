#include "Views/Sheets/PagePicker.h"

namespace tessaro {

PagePicker::PagePicker(const ScreenContext& context, AddPageFlow& flow)
    : Gtk::Box(Gtk::Orientation::VERTICAL, 8),
      context_(context),
      flow_(flow),
      header_(Gtk::Orientation::HORIZONTAL, 6),
      info_("info.circle.fill", 11),
      headerText_("Đây là User Token. Chọn Page bạn muốn kết nối:") {
    divider_.set_margin_bottom(8); // Together with the spacing the 16 points between sections.
    header_.set_css_classes({"page-picker-header", "points-11", "medium", "accent-text"});
    header_.append(info_);
    header_.append(headerText_);
    append(divider_);
    append(header_);
    connections_.push_back(flow_.resolvedPages.observe([this] { showPages(); }));
    connections_.push_back(flow_.selectedResolvedPage.observe([this] { showSelection(); }));
}

bool PagePicker::focusFirst() {
    return !rows_.empty() && rows_.front()->grab_focus();
}

void PagePicker::showPages() {
    for (PagePickerRow* row : rows_)
        remove(*row);
    rows_.clear();
    for (const auto& page : *flow_.resolvedPages) {
        auto* row = Gtk::make_managed<PagePickerRow>(context_, flow_.account(), page);
        row->signal_clicked().connect([this, page] { flow_.selectedResolvedPage.set(page); });
        append(*row);
        rows_.push_back(row);
    }
    showSelection();
}

void PagePicker::showSelection() {
    const auto& selected = *flow_.selectedResolvedPage;
    for (PagePickerRow* row : rows_)
        row->setSelected(selected && selected->id == row->pageId());
}

} // namespace tessaro
