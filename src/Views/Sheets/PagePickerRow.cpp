#include "Views/Sheets/PagePickerRow.h"

#include "Views/Widgets/Accessible.h"

namespace tessaro {

PagePickerRow::PagePickerRow(ImageLoader& images, const MetaGraphClient::ResolvedPage& page)
    : pageId_(page.id),
      row_(Gtk::Orientation::HORIZONTAL, 8),
      picture_(images, page.name, page.avatarUrl, 36),
      summary_(page.name, page.id.text, {"points-12", "medium"}, {"points-9", "secondary-text"}),
      mark_("circle", 16) {
    set_css_classes({"borderless", "page-picker-row"});
    picture_.set_valign(Gtk::Align::CENTER);
    mark_.set_valign(Gtk::Align::CENTER);
    mark_.add_css_class("mark");
    row_.append(picture_);
    row_.append(summary_);
    row_.append(mark_);
    set_child(row_);
    accessible::setName(*this, page.name.empty() ? page.id.text : page.name);
    setSelected(false);
}

void PagePickerRow::setSelected(bool selected) {
    if (selected)
        add_css_class("selected");
    else
        remove_css_class("selected");
    mark_.setSymbol(selected ? "checkmark.circle.fill" : "circle");
    accessible::setPressed(*this, selected);
}

} // namespace tessaro
