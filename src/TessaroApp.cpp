#include "TessaroApp.h"

#include "Engine/EngineLoader.h"

#include "Platform/FileStore.h"
#include "Platform/Gtk/GtkDesktop.h"
#include "Platform/Paths.h"
#include "Services/AccountRoutes.h"
#include "Views/Shell/ContentView.h"
#include "Views/Shell/GtkModals.h"
#include "Views/Shell/MainWindow.h"
#include "Views/Shell/Resources.h"
#include "Views/Theme/ThemeStyle.h"
#include "Views/Widgets/Accessible.h"

#include <adwaita.h>
#include <glibmm/miscutils.h>

namespace tessaro {

namespace {

constexpr auto flushLimit = std::chrono::seconds(1);
constexpr auto keyringLimit = std::chrono::seconds(5);

/// How long to wait for a process that is about to end and still has the data.
constexpr auto lockPatience = std::chrono::seconds(2);

constexpr const char* refusal =
    "Tessaro đang chạy trong một phiên làm việc khác trên cùng dữ liệu. "
    "Hãy đóng cửa sổ đó rồi mở lại.";

} // namespace

/// The toolkit's application. on_startup() runs only in the process that serves the desktop
/// session. Any other process has passed its start on to that one before.
class TessaroApp::Instance final : public Gtk::Application {
public:
    explicit Instance(TessaroApp& owner) : Gtk::Application(applicationId), owner_(owner) {}

protected:
    void on_startup() override {
        owner_.dataLock_ = lockFolder(paths::dataFolder(), lockPatience);
        Gtk::Application::on_startup();
        adw_init();
        registerResources();
    }
    void on_activate() override {
        if (owner_.dataLock_)
            owner_.presentWindow();
        else
            owner_.presentRefusal();
    }

private:
    TessaroApp& owner_;
};

/// The window and everything that its screens use.
struct TessaroApp::Scene {
    Scene(const Glib::RefPtr<Gtk::Application>& application, ThemeManager& theme)
        : themeStyle(theme),
          window(application, NotificationCenter::shared(), inbox, engine, SettingsStore::shared()),
          modals(window),
          endpoints(Endpoints::fromSettings(SettingsStore::shared())),
          context{
              .theme = theme,
              .notifications = NotificationCenter::shared(),
              .inbox = inbox,
              .settings = SettingsStore::shared(),
              .clock = SystemClock::shared(),
              .logger = AppLogger::shared(),
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
                          endpoints.graphBaseUrl(), std::move(token), account, routes);
                  },
          },
          content(context, SupportClient::shared(), NotificationService::shared()) {
        window.set_child(content);
        window.askBeforeClosing = [this](std::function<void(bool)> answered) {
            content.inbox().requestClose(std::move(answered));
        };
    }

    ThemeStyle themeStyle;
    InboxSignals inbox;
    GtkDesktop desktop;
    EngineLoader engine{[] { return loadEngine(engineModule()); }};
    MainWindow window;
    GtkModals modals;
    AccountRoutes routes;
    ImageLoader images{DataStore::shared(), NotificationCenter::shared(), routes};
    const Endpoints endpoints;
    const ScreenContext context;
    ContentView content;
};

TessaroApp::TessaroApp() : application_(Glib::make_refptr_for_instance(new Instance(*this))) {
    Glib::set_application_name("Tessaro");
    // X11 and Wayland give this name to the task switcher, which finds the desktop entry by it.
    Glib::set_prgname(applicationId);
}

TessaroApp::~TessaroApp() = default;

int TessaroApp::run(int argc, char** argv) {
    const int exitCode = application_->run(argc, argv);
    if (refusal_)
        return 1;
    if (scene_) {
        scene_.reset();
        AppLogger::shared().flush(flushLimit);
        // The lock goes first, because the next start need not wait for the keyring.
        dataLock_.reset();
        DataStore::shared().finishDeletions(keyringLimit);
    }
    return exitCode;
}

void TessaroApp::presentWindow() {
    if (!scene_) {
        scene_ = std::make_unique<Scene>(application_, ThemeManager::shared());
        scene_->window.signal_hide().connect([this] { application_->quit(); });
    }
    scene_->window.present();
}

void TessaroApp::presentRefusal() {
    if (!refusal_) {
        refusal_ = std::make_unique<Gtk::MessageDialog>(
            refusal, false, Gtk::MessageType::ERROR, Gtk::ButtonsType::NONE);
        refusal_->set_title("Tessaro");
        refusal_->add_button("OK", Gtk::ResponseType::OK);
        accessible::nameButtonsByLabel(GTK_WIDGET(refusal_->gobj()));
        refusal_->signal_response().connect([this](int) { application_->quit(); });
        application_->add_window(*refusal_);
    }
    refusal_->present();
}

} // namespace tessaro
