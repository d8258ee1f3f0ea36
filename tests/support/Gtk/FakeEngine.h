#pragma once

#include "Engine/Engine.h"

#include <gtkmm/box.h>

#include <string>
#include <vector>

namespace tessaro::test {

/// A browser whose web pages are empty and load at once.
class FakeView final : public WebView,
                       public WebNotifications,
                       public WebPermissions,
                       public PageFinder {
public:
    FakeView() { widget_.set_focusable(); }

    void setDelegate(WebViewDelegate* delegate) override { delegate_ = delegate; }
    Gtk::Widget& widget() const override { return widget_; }
    void setCustomUserAgent(const std::string&) override {}
    void requestLeave(std::function<void(bool)> answered) override { answered(true); }
    void load(const std::string& address) override {
        loads.push_back(address);
        reload();
    }
    void reload() override {
        delegate_->didStartProvisionalNavigation(*this);
        delegate_->didFinishNavigation(*this);
    }
    void goBack() override {}
    void goForward() override {}
    void close() override {}
    void setGround(const Gdk::RGBA&) override {}
    void setPageZoom(double factor) override { zoom_ = factor; }
    double pageZoom() const override { return zoom_; }
    void evaluateScript(const std::string& script) override { scripts.push_back(script); }
    void askPage(const std::string&, std::function<void(const std::string&)>) override {}
    void whenPainted(std::function<void()> painted) override { painted(); }
    std::string address() const override { return loads.empty() ? "" : loads.back(); }
    bool isAwaitingPage() const override { return false; }
    bool isLoading() const override { return false; }
    std::string title() const override { return {}; }
    WebNotifications& notifications() override { return *this; }
    WebPermissions& permissions() override { return *this; }
    PageFinder& finder() override { return *this; }

    void setDelegate(WebNotifications::Delegate*) override {}
    void setDelegate(WebPermissions::Delegate*) override {}
    void click(const std::string&) override {}

    void find(const std::string&) override {}
    void findNext() override {}
    void findPrevious() override {}
    void end() override {}

    std::vector<std::string> loads;   ///< The addresses, in order.
    std::vector<std::string> scripts; ///< The scripts that were run, in order.

private:
    mutable Gtk::Box widget_;
    WebViewDelegate* delegate_ = nullptr;
    double zoom_ = 1;
};

/// An engine for tests. It starts no process and fetches nothing.
class FakeEngine final : public Engine, public WebSession {
public:
    std::string name() const override { return "FakeEngine 1.0"; }
    std::string decodableMedia() const override { return "Opus"; }
    bool worksHere() const override { return true; }
    WebSession& makeSession(const std::filesystem::path&, const std::filesystem::path&) override {
        return *this;
    }
    std::shared_ptr<WebView> makeView(Clock&, WebNotifications::PermittedOrigin) override {
        const auto view = std::make_shared<FakeView>();
        views.push_back(view);
        return view;
    }
    ScopedConnection observeDownloads(std::function<void(std::shared_ptr<WebDownload>)>) override {
        return {};
    }

    std::vector<std::weak_ptr<FakeView>> views; ///< All views that were made.
};

} // namespace tessaro::test
