#include "Views/Inbox/InboxPlaceholder.h"

namespace tessaro {

InboxPlaceholder::InboxPlaceholder()
    : Gtk::Box(Gtk::Orientation::VERTICAL, 16),
      icon_("bubble.left.and.bubble.right", 48),
      title_("Chọn một Page để mở hộp thư"),
      subtitle_("Hộp thư sẽ hiển thị trực tiếp từ Facebook") {
    set_halign(Gtk::Align::CENTER);
    set_valign(Gtk::Align::CENTER);
    icon_.set_css_classes({"secondary-text", "placeholder-icon"});
    title_.set_css_classes({"points-15", "medium", "secondary-text"});
    subtitle_.set_css_classes({"points-12", "secondary-text", "placeholder-subtitle"});
    append(icon_);
    append(title_);
    append(subtitle_);
}

} // namespace tessaro
