#pragma once

#include "Engine/WebViewReserve.h"

#include "Models/Account.h"
#include "Models/PageConfig.h"
#include "Platform/Property.h"
#include "Views/Inbox/FindBar.h"
#include "Views/Inbox/LoadingVeil.h"
#include "Views/Inbox/RecordingDot.h"
#include "Views/ScreenContext.h"

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/label.h>
#include <gtkmm/overlay.h>
#include <gtkmm/stack.h>

#include <memory>
#include <optional>

namespace tessaro {

class ClippedWebViewContainer;
class Coordinator;

/// The inbox of the selected Page in the browser, and above it a veil while it loads.
/// A dot in the corner tells that a page is recording. Where the page crashed, a button to load it
/// again is in its place; where no browser can be had, a sentence.
class InboxContainerView : public Gtk::Overlay {
public:
    /// `context` and `browsers` outlive the view.
    InboxContainerView(
        const ScreenContext& context, PageConfig pageConfig, std::optional<Account> account,
        WebViewReserve& browsers);
    ~InboxContainerView() override;

    /// Shows another Page in the same browser.
    void setPage(PageConfig pageConfig, std::optional<Account> account);

    /// Asks the page whether it may be left; `answered` may be called at once.
    void requestLeave(std::function<void(bool mayLeave)> answered);

    const PageConfig& pageConfig() const { return pageConfig_; }
    const std::optional<Account>& account() const { return account_; }

private:
    void showBrowser();
    void receive(std::shared_ptr<WebView> webView);
    void showLack(WebViewReserve::Lack lack);
    void showLoading();
    void showFullScreen(bool isFullScreen);
    void zoomByWheel();
    void find();

    const ScreenContext& context_;
    WebViewReserve& browsers_;
    PageConfig pageConfig_;
    std::optional<Account> account_;
    std::shared_ptr<tessaro::Property<bool>> isLoading_ =
        std::make_shared<tessaro::Property<bool>>(false);

    Gtk::Stack stack_;
    Gtk::Button reloadButton_{"Tải lại trang"};
    Gtk::Label notice_;
    Gtk::Box page_{Gtk::Orientation::VERTICAL}; ///< The browser below the bar.
    LoadingVeil veil_;
    RecordingDot recordingDot_;
    bool hasLoaded_ = false; ///< Whether there was a page before the one that loads.

    std::unique_ptr<Coordinator> coordinator_;
    std::unique_ptr<ClippedWebViewContainer> browser_;
    std::unique_ptr<FindBar> findBar_;
    ScopedConnection taking_; ///< While a browser is waited for.
    ScopedConnection loadingChanged_;
};

} // namespace tessaro
