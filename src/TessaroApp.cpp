#include "TessaroApp.h"

#include "Engine/WebKit/WebKitEngine.h"

#include "Platform/Gtk/GtkDesktop.h"
#include "Services/NotificationService.h"
#include "Views/Shell/ContentView.h"
#include "Views/Shell/GtkModals.h"
#include "Views/Shell/MainWindow.h"
#include "Views/Shell/Resources.h"
#include "Views/Shell/UpdateCheck.h"
#include "Views/Theme/ThemeStyle.h"

#include <adwaita.h>
#include <glibmm/miscutils.h>

namespace tessaro {

namespace {
constexpr auto flushLimit = std::chrono::seconds(1);
}

/// The window, and what its screens are drawn and driven with.
struct TessaroApp::Scene {
    Scene(const Glib::RefPtr<Gtk::Application>& application, ThemeManager& theme, Engine& engine)
        : themeStyle(theme),
          window(application, NotificationCenter::shared(), engine),
          modals(window),
          endpoints(Endpoints::fromSettings(SettingsStore::shared())),
          context{
              .theme = theme,
              .notifications = NotificationCenter::shared(),
              .settings = SettingsStore::shared(),
              .clock = SystemClock::shared(),
              .desktop = desktop,
              .engine = engine,
              .modals = modals,
              .store = DataStore::shared(),
              .device = DeviceIdentity::shared(),
              .images = images,
              .endpoints = endpoints,
              .makeGraphClient =
                  [this](SecretText token, std::optional<Account> account) {
                      return std::make_shared<MetaGraphClient>(
                          endpoints.graphBaseUrl(), std::move(token), account);
                  },
          },
          updateCheck(SupportClient::shared(), AppLogger::shared(), modals, desktop),
          content(context, AppLogger::shared(), SupportClient::shared()) {
        content.signal_map().connect([this] {
            updateCheck.checkForUpdates();
            NotificationService::shared().requestPermission();
        });
        window.set_child(content);
    }

    ThemeStyle themeStyle;
    GtkDesktop desktop;
    MainWindow window;
    GtkModals modals;
    ImageLoader images;
    const Endpoints endpoints;
    const ScreenContext context;
    UpdateCheck updateCheck;
    ContentView content;
};

TessaroApp::TessaroApp()
    : themeManager_(ThemeManager::shared()),
      engine_(std::make_unique<WebKitEngine>()),
      application_(Gtk::Application::create(applicationId)),
      started_(application_->signal_startup().connect([this] { startToolkit(); })),
      activated_(application_->signal_activate().connect([this] { presentWindow(); })) {
    Glib::set_application_name("Tessaro");
    // What X11 and Wayland tell the task switcher, which finds the desktop entry by it.
    Glib::set_prgname(applicationId);
}

TessaroApp::~TessaroApp() = default;

int TessaroApp::run(int argc, char** argv) {
    const int exitCode = application_->run(argc, argv);
    if (scene_) {
        scene_.reset();
        AppLogger::shared().flush(flushLimit);
    }
    return exitCode;
}

void TessaroApp::startToolkit() {
    adw_init();
    registerResources();
}

void TessaroApp::presentWindow() {
    if (!scene_) {
        scene_ = std::make_unique<Scene>(application_, themeManager_, *engine_);
        scene_->window.signal_hide().connect([this] { application_->quit(); });
    }
    scene_->window.present();
}

} // namespace tessaro
