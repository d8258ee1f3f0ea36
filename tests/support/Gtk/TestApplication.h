#pragma once

#include <gtkmm/application.h>

namespace tessaro::test {

/// The application that windows under test belong to. One for all tests: it stays on the bus until
/// the process ends.
inline const Glib::RefPtr<Gtk::Application>& application() {
    static const auto registered = [] {
        auto result = Gtk::Application::create(
            "com.vandel.Tessaro.Test", Gio::Application::Flags::NON_UNIQUE);
        result->register_application();
        return result;
    }();
    return registered;
}

} // namespace tessaro::test
