#pragma once

#include <gtkmm/application.h>
#include <gtkmm/messagedialog.h>

#include <memory>

namespace tessaro {

/// The application: makes the services, opens the window and runs the main loop. One process serves
/// a desktop session; a second start brings the first one's window to the front. One process uses a
/// data folder; a second one, from another session, says so and does not touch the data.
class TessaroApp {
public:
    static constexpr const char* applicationId = "com.vandel.Tessaro";

    TessaroApp();
    ~TessaroApp();

    /// Returns the exit code after the window was closed; 1 when another session has the data.
    int run(int argc, char** argv);

private:
    class Instance;
    struct Scene;

    void presentWindow();
    void presentRefusal();

    Glib::RefPtr<Gtk::Application> application_;
    std::shared_ptr<void> dataLock_; ///< Null when another process has the data.
    std::unique_ptr<Scene> scene_;   ///< In the process that owns the window, once it was opened.
    std::unique_ptr<Gtk::MessageDialog> refusal_;
};

} // namespace tessaro
