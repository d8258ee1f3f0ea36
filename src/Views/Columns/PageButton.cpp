#include "Views/Columns/PageButton.h"

#include "Views/Pictures/FaceDrawing.h"
#include "Views/Widgets/Accessible.h"

namespace tessaro {

namespace {

/// Two digits are what the small face has room for.
std::string shortened(const std::string& count) {
    return std::stoul(count) > 99 ? "99+" : count; // What follows the digits does not count.
}

} // namespace

PageButton::PageButton(const ScreenContext& context, const tessaro::Property<std::string>& unread)
    : graphBaseUrl_(context.endpoints.graphBaseUrl()),
      unread_(unread),
      avatar_(context.images, context.theme, face::size, AvatarShape::roundedRectangle(8)) {
    set_css_classes({"borderless", "face-button", "square"});
    set_halign(Gtk::Align::CENTER);
    face_.set_child(avatar_);
    face_.add_overlay(badge_);
    count_.set_css_classes({"count-badge", "points-9", "bold"});
    count_.set_halign(Gtk::Align::END);
    count_.set_valign(Gtk::Align::START);
    count_.set_can_target(false);
    accessible::hide(count_);
    face_.add_overlay(count_);
    set_child(face_);
    unreadChanged_ = unread.observe([this] { showUnread(); });
}

void PageButton::show(const PageConfig& page) {
    name_ = page.pageName.empty() ? "Page" : page.pageName;
    avatar_.setAvatar(
        page.pageId.text, page.pageName,
        WebPicture{
            graphBaseUrl_ + "/" + page.pageId.text +
                "/picture?type=normal&access_token=" + page.pageToken.reveal(),
            page.accountId});
    badge_.setDot(page.isConnected ? face::green : face::grey);
    setTooltip(name_);
    showUnread();
}

void PageButton::setSelected(bool selected) {
    isSelected_ = selected;
    badge_.setOutlined(selected);
    accessible::setPressed(*this, selected);
    showUnread();
}

void PageButton::showUnread() {
    const std::string count = isSelected_ ? *unread_ : "";
    count_.set_visible(!count.empty());
    count_.set_text(count.empty() ? "" : shortened(count));
    accessible::setName(*this, count.empty() ? name_ : name_ + ", " + count + " chưa đọc");
}

} // namespace tessaro
