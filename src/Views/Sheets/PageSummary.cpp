#include "Views/Sheets/PageSummary.h"

namespace tessaro {

PageSummary::PageSummary(
    const ScreenContext& context, const Account& account, const PageId& id, const std::string& name,
    const std::optional<std::string>& avatarUrl, const Style& style)
    : picture_(
          context.images, context.theme, style.pictureSide,
          AvatarShape::roundedRectangle(style.pictureSide > 40 ? 8 : 6), "P"),
      texts_(Gtk::Orientation::VERTICAL, 2),
      name_(name),
      id_("ID: " + id.text) {
    set_hexpand();
    // Only a connected Page has a picture in the cache.
    picture_.setAvatar(
        "", name, avatarUrl ? std::optional(WebPicture{*avatarUrl, account.id}) : std::nullopt);
    picture_.set_valign(Gtk::Align::CENTER);
    texts_.set_valign(Gtk::Align::CENTER);
    name_.set_css_classes(style.name);
    id_.set_css_classes(style.id);
    for (Gtk::Label* label : {&name_, &id_}) {
        label->set_xalign(0);
        label->set_ellipsize(Pango::EllipsizeMode::END);
        texts_.append(*label);
    }
    append(picture_);
    append(texts_);
}

} // namespace tessaro
