#pragma once

#include "Engine/WebView.h"

#include "Views/Inbox/MouseBlockerView.h"

#include <gtkmm/widget.h>

#include <memory>

namespace tessaro {

/// Shows a web page without its leftmost strip, which holds the site's own navigation, and keeps
/// the pointer off the strip next to it.
class ClippedWebViewContainer : public Gtk::Widget {
public:
    static constexpr double sidebarClip = 60.0; ///< Cut off the page's left side, in its points.
    static constexpr double shieldWidth = 30.0; ///< Shielded right of the cut, likewise.

    explicit ClippedWebViewContainer(std::shared_ptr<WebView> webView);
    ~ClippedWebViewContainer() override;

    const std::shared_ptr<WebView>& webView() const { return webView_; }
    /// Whether the strip is cut off and the next one shielded, as it is at first.
    void setClipped(bool isClipped);

protected:
    void measure_vfunc(
        Gtk::Orientation orientation, int forSize, int& minimum, int& natural, int& minimumBaseline,
        int& naturalBaseline) const override;
    void size_allocate_vfunc(int width, int height, int baseline) override;

private:
    std::shared_ptr<WebView> webView_;
    MouseBlockerView mouseBlocker_;
};

} // namespace tessaro
