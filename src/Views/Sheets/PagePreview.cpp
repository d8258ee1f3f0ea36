#include "Views/Sheets/PagePreview.h"

namespace tessaro {

PagePreview::PagePreview(
    const ScreenContext& context, const Account& account, const PageInfo& page,
    const std::optional<std::string>& avatarUrl, const Glib::ustring& caption)
    : Gtk::Box(Gtk::Orientation::VERTICAL, 8),
      captionRow_(Gtk::Orientation::HORIZONTAL, 4),
      checkmark_("checkmark.circle.fill", 11),
      caption_(caption),
      summary_(
          context, account, page.id, page.name, avatarUrl,
          {44, {"points-13", "semibold"}, {"points-10", "secondary-text"}}) {
    add_css_class("page-preview");
    captionRow_.set_css_classes({"points-10", "medium", "success-text"});
    captionRow_.append(checkmark_);
    captionRow_.append(caption_);
    caption_.set_ellipsize(Pango::EllipsizeMode::END);
    summary_.set_spacing(10);
    append(captionRow_);
    append(divider_);
    append(summary_);
}

} // namespace tessaro
