#include "Views/Inbox/ClippedWebViewContainer.h"

#include <gtkmm/settings.h>

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
    // The engine draws a page larger by as much as the person has text drawn.
    const int dpi = get_settings()->property_gtk_xft_dpi(); // In 1024ths; 96 is usual.
    const double textScale = dpi > 0 ? dpi / (96.0 * 1024.0) : 1;
    const auto scaled = [&](double points) { return static_cast<int>(points * textScale); };
    const int clip = mouseBlocker_.get_visible() ? scaled(sidebarClip) : 0;
    Gtk::Allocation page(-clip, 0, width + clip, height);
    webView_->widget().size_allocate(page, baseline);
    Gtk::Allocation shield(0, 0, scaled(shieldWidth), height);
    if (mouseBlocker_.get_visible())
        mouseBlocker_.size_allocate(shield, baseline);
}

} // namespace tessaro
