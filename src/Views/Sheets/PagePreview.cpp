#include "Views/Sheets/PagePreview.h"

namespace tessaro {

PagePreview::PagePreview(
    ImageLoader& images, const PageInfo& page, const std::optional<std::string>& avatarUrl,
    const Glib::ustring& caption)
    : Gtk::Box(Gtk::Orientation::VERTICAL, 8),
      captionRow_(Gtk::Orientation::HORIZONTAL, 4),
      checkmark_("checkmark.circle.fill", 11),
      caption_(caption),
      row_(Gtk::Orientation::HORIZONTAL, 10),
      picture_(images, page.name, avatarUrl, 44),
      summary_(
          page.name, page.id.text, {"points-13", "semibold"}, {"points-10", "secondary-text"}) {
    add_css_class("page-preview");
    captionRow_.set_css_classes({"points-10", "medium", "success-text"});
    captionRow_.append(checkmark_);
    captionRow_.append(caption_);
    caption_.set_ellipsize(Pango::EllipsizeMode::END);
    picture_.set_valign(Gtk::Align::CENTER);
    row_.append(picture_);
    row_.append(summary_);
    append(captionRow_);
    append(divider_);
    append(row_);
}

} // namespace tessaro
