#include "Views/Inbox/ClippedWebViewContainer.h"

namespace tessaro {

ClippedWebViewContainer::ClippedWebViewContainer(std::shared_ptr<WebView> webView)
    : Glib::ObjectBase("tessaro_ClippedWebViewContainer"), webView_(std::move(webView)) {
    set_overflow(Gtk::Overflow::HIDDEN);
    set_expand();
    webView_->widget().set_parent(*this);
    mouseBlocker_.set_parent(*this); // The later child lies above.
}

ClippedWebViewContainer::~ClippedWebViewContainer() {
    mouseBlocker_.unparent();
    webView_->widget().unparent();
}

void ClippedWebViewContainer::setClipped(bool isClipped) {
    mouseBlocker_.set_visible(isClipped);
    queue_allocate();
}

void ClippedWebViewContainer::measure_vfunc(
    Gtk::Orientation, int, int& minimum, int& natural, int& minimumBaseline,
    int& naturalBaseline) const {
    minimum = natural = 0; // The page takes whatever there is.
    minimumBaseline = naturalBaseline = -1;
}

void ClippedWebViewContainer::size_allocate_vfunc(int width, int height, int baseline) {
    const int clip = mouseBlocker_.get_visible() ? static_cast<int>(sidebarClip) : 0;
    Gtk::Allocation page(-clip, 0, width + clip, height);
    webView_->widget().size_allocate(page, baseline);
    Gtk::Allocation shield(0, 0, static_cast<int>(shieldWidth), height);
    if (mouseBlocker_.get_visible())
        mouseBlocker_.size_allocate(shield, baseline);
}

} // namespace tessaro
