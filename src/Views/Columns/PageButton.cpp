#include "Views/Columns/PageButton.h"

namespace tessaro {

namespace {

constexpr int greatestCount = 99; ///< That fits on the button.

} // namespace

PageButton::PageButton(const ScreenContext& context)
    : RecordButton("square"),
      graphBaseUrl_(context.endpoints.graphBaseUrl()),
      unread_(context.inbox.unread),
      avatar_(context.images, context.theme, AddButton::side, AvatarShape::roundedRectangle(8)) {
    avatar_.add_css_class("page-face");
    face().set_child(avatar_);
    count_.set_css_classes({"count-badge", "points-9", "bold"});
    count_.set_halign(Gtk::Align::END);
    count_.set_valign(Gtk::Align::START);
    accessible::hide(count_);
    face().add_overlay(count_);
    unreadChanged_ = unread_.observe([this] { showUnread(); });
}

void PageButton::show(const PageConfig& page) {
    name_ = page.pageName.empty() ? "Page" : page.pageName;
    avatar_.setAvatar(
        page.pageId.text, page.pageName,
        WebPicture{
            graphBaseUrl_ + "/" + page.pageId.text +
                "/picture?type=normal&access_token=" + page.pageToken.reveal(),
            page.accountId});
    setDot(page.isConnected ? "connected" : "lost");
    setTooltip(name_);
    showUnread();
}

void PageButton::setSelected(bool selected) {
    RecordButton::setSelected(selected);
    showUnread();
}

void PageButton::showUnread() {
    const std::string count = has_css_class("selected") ? unread_->text() : "";
    count_.set_visible(!count.empty());
    count_.set_text(unread_->number > greatestCount ? "99+" : count);
    accessible::setName(*this, count.empty() ? name_ : name_ + ", " + count + " chưa đọc");
}

} // namespace tessaro
