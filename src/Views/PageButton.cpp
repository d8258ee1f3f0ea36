#include "Views/PageButton.h"

#include "Views/Accessible.h"
#include "Views/FaceDrawing.h"

namespace tessaro {

PageButton::PageButton(const ScreenContext& context)
    : graphBaseUrl_(context.endpoints.graphBaseUrl()),
      avatar_(context, face::size, AvatarShape::roundedRectangle(8)) {
    set_css_classes({"borderless", "face-button", "square"});
    set_halign(Gtk::Align::CENTER);
    face_.set_child(avatar_);
    face_.add_overlay(badge_);
    set_child(face_);
}

void PageButton::show(const PageConfig& page) {
    const std::string name = page.pageName.empty() ? "Page" : page.pageName;
    avatar_.setAvatar(
        page.pageId.text, page.pageName,
        graphBaseUrl_ + "/" + page.pageId.text +
            "/picture?type=normal&access_token=" + page.pageToken.reveal());
    badge_.setConnected(page.isConnected);
    set_tooltip_text(name);
    accessible::setName(*this, name);
}

void PageButton::setSelected(bool selected) {
    badge_.setSelected(selected);
    accessible::setPressed(*this, selected);
}

} // namespace tessaro
