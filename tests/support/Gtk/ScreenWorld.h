#pragma once

#include "Services/AccountRoutes.h"
#include "Views/ScreenContext.h"
#include "support/Gtk/FakeAppearance.h"
#include "support/Gtk/FakeEngine.h"
#include "support/StoreWorld.h"

#include <string>
#include <utility>
#include <vector>

namespace tessaro::test {

/// Records the alerts; the test answers them.
class RecordingModals final : public Modals {
public:
    void show(ModalAlert alert, Answered answered) override {
        alerts.push_back(std::move(alert));
        answers.push_back(std::move(answered));
    }

    std::vector<ModalAlert> alerts;
    std::vector<Answered> answers;
};

/// Records what the program asks of the desktop.
class RecordingDesktop final : public Desktop {
public:
    void openAddress(const std::string& address) override { opened.push_back(address); }
    void openWithItsProgram(const std::string& address) override {
        openedElsewhere.push_back(address);
    }
    void openFile(const std::filesystem::path& file) override { openedFiles.push_back(file); }
    void
    showNotification(DesktopNotification notification, DesktopNotifier::Clicked clicked) override {
        notifications.push_back(std::move(notification));
        clicks.push_back(std::move(clicked));
    }
    void withdrawNotification(const std::string& id) override { withdrawn.push_back(id); }
    void copyText(const std::string& text) override { copied.push_back(text); }

    std::vector<std::string> opened;
    std::vector<std::string> openedElsewhere;
    std::vector<std::filesystem::path> openedFiles;
    std::vector<DesktopNotification> notifications;
    std::vector<DesktopNotifier::Clicked> clicks; ///< One for each desktop notification.
    std::vector<std::string> withdrawn;
    std::vector<std::string> copied;
};

/// Everything that a screen is made with, in private folders. Nobody listens at the addresses of
/// the Graph API and of the inbox site until a test puts a server there.
struct ScreenWorld : StoreWorld {
    /// @param itsEngine  null for `fakeEngine`
    explicit ScreenWorld(EngineLoader* itsEngine = nullptr)
        : engine(itsEngine ? *itsEngine : fakeLoader) {
        endpoints.graphApiOrigin = endpoints.inboxOrigin = "http://127.0.0.1:9";
    }

    FakeEngine fakeEngine;
    EngineLoader fakeLoader{fakeEngine};
    EngineLoader& engine;
    FakeAppearance appearance;
    ThemeManager theme{settings, appearance, notifications, clock};
    InboxSignals inbox;
    RecordingModals modals;
    RecordingDesktop desktop;
    AccountRoutes routes;
    ImageLoader images{store, notifications, routes};
    Endpoints endpoints = Endpoints::fromSettings(settings);
    GraphClientFactory makeGraphClient = [this](SecretText token, std::optional<Account> account) {
        return std::make_shared<MetaGraphClient>(
            endpoints.graphBaseUrl(), std::move(token), account, routes);
    };
    ScreenContext context = contextOn(clock);

    /// The context with another clock.
    ScreenContext contextOn(Clock& itsClock) {
        return {theme,  notifications, inbox, settings, itsClock, logger,    desktop,
                engine, modals,        store, device,   images,   endpoints, makeGraphClient};
    }
};

} // namespace tessaro::test
