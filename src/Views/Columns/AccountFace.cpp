#include "Views/Columns/AccountFace.h"

#include "Platform/Text.h"
#include "Views/Pictures/FaceDrawing.h"

namespace tessaro {

AccountFace::AccountFace() {
    set_css_classes({"account-face", "points-16", "bold"});
    set_size_request(face::size, face::size);
}

void AccountFace::show(const std::string& accountName, bool proxyEnabled) {
    initial_ = accountName.empty() ? "?" : firstCharacterUpperCased(accountName);
    hasDot_ = proxyEnabled;
    queue_draw();
}

void AccountFace::setSelected(bool selected) {
    if (selected)
        add_css_class("selected");
    else
        remove_css_class("selected");
}

void AccountFace::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) {
    face::drawText(*this, *snapshot, initial_);
    if (hasDot_)
        face::drawStatusDot(*this, *snapshot, face::orange);
}

} // namespace tessaro
