#include "Views/Sheets/PagePicker.h"

#include <gtkmm/separator.h>

namespace tessaro {

PagePicker::PagePicker(const ScreenContext& context, AddPageFlow& flow)
    : Gtk::Box(Gtk::Orientation::VERTICAL, 8), context_(context), flow_(flow) {
    auto& divider = *Gtk::make_managed<Gtk::Separator>();
    divider.set_margin_bottom(8); // Together with the spacing the 16 points between sections.
    auto& header = *Gtk::make_managed<Gtk::Box>(Gtk::Orientation::HORIZONTAL, 6);
    header.set_css_classes({"page-picker-header", "points-11", "medium", "accent-text"});
    header.append(*Gtk::make_managed<Symbol>("info.circle.fill", 11));
    header.append(*Gtk::make_managed<Gtk::Label>("Đây là User Token. Chọn Page bạn muốn kết nối:"));
    append(divider);
    append(header);
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
