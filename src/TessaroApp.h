#pragma once

#include "Engine/Engine.h"

#include "Views/Theme/ThemeManager.h"

#include <gtkmm/application.h>

#include <memory>

namespace tessaro {

/// The application: makes every service, opens the one window and runs the main loop. One process
/// serves a desktop session; a second start brings the first one's window to the front.
class TessaroApp {
public:
    static constexpr const char* applicationId = "com.vandel.Tessaro";

    TessaroApp();
    ~TessaroApp();

    /// Returns the exit code once the window was closed.
    int run(int argc, char** argv);

private:
    struct Scene;

    void startToolkit();
    void presentWindow();

    ThemeManager& themeManager_;
    const std::unique_ptr<Engine> engine_; ///< Outlives the scene: it keeps the sessions.
    Glib::RefPtr<Gtk::Application> application_;
    std::unique_ptr<Scene> scene_; ///< In the process that owns the window, once it was opened.
    ScopedConnection started_;
    ScopedConnection activated_;
};

} // namespace tessaro
