#include "Views/Sheets/PagePickerRow.h"

#include "Platform/Text.h"
#include "Views/Widgets/Accessible.h"

namespace tessaro {

PagePickerRow::PagePickerRow(
    const ScreenContext& context, const Account& account, const MetaGraphClient::ResolvedPage& page)
    : pageId_(page.id),
      searchForm_(searchForm(page.name)),
      row_(Gtk::Orientation::HORIZONTAL, 8),
      summary_(
          context, account, page.id, page.name, page.avatarUrl,
          {36, {"points-12", "medium"}, {"points-9", "secondary-text"}}),
      mark_("circle", 16) {
    property_accessible_role() = Gtk::Accessible::Role::RADIO;
    set_css_classes({"borderless", "page-picker-row"});
    summary_.set_spacing(8);
    mark_.set_valign(Gtk::Align::CENTER);
    mark_.add_css_class("mark");
    row_.append(summary_);
    row_.append(mark_);
    set_child(row_);
    accessible::setName(*this, page.name.empty() ? page.id.text : page.name);
    accessible::setDescription(*this, "ID: " + page.id.text);
    setSelected(false);
}

void PagePickerRow::setSelected(bool selected) {
    if (selected)
        add_css_class("selected");
    else
        remove_css_class("selected");
    mark_.setSymbol(selected ? "checkmark.circle.fill" : "circle");
    accessible::setChecked(*this, selected);
}

} // namespace tessaro
