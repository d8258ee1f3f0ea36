#include "support/GnomeKeyring.h"

#include "support/MainLoop.h"

#include <stdexcept>

namespace tessaro::test {

GnomeKeyring::GnomeKeyring(const PrivateSessionBus& bus)
    : connection_(connectToBus(bus.address())) {
    const auto folder = files_.path().string();
    const auto launcher = GObjectPtr<GSubprocessLauncher>::adopt(
        g_subprocess_launcher_new(static_cast<GSubprocessFlags>(
            G_SUBPROCESS_FLAGS_STDIN_PIPE | G_SUBPROCESS_FLAGS_STDOUT_SILENCE |
            G_SUBPROCESS_FLAGS_STDERR_SILENCE)));
    for (const char* variable :
         {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        g_subprocess_launcher_setenv(launcher.get(), variable, folder.c_str(), TRUE);
    GErrorSlot error;
    daemon_ = GObjectPtr<GSubprocess>::adopt(g_subprocess_launcher_spawn(
        launcher.get(), error.out(), "gnome-keyring-daemon", "--foreground", "--unlock",
        "--components=secrets", ("--control-directory=" + folder).c_str(), nullptr));
    if (!daemon_)
        throw std::runtime_error("cannot start gnome-keyring-daemon: " + error.message());
    g_output_stream_write_all(
        g_subprocess_get_stdin_pipe(daemon_.get()), "password", 8, nullptr, nullptr, nullptr);
    g_output_stream_close(g_subprocess_get_stdin_pipe(daemon_.get()), nullptr, nullptr);

    if (!runUntil([this] { return bool(call("ReadAlias", g_variant_new("(s)", "default"))); }))
        throw std::runtime_error("gnome-keyring-daemon does not come up");
}

GnomeKeyring::~GnomeKeyring() {
    g_subprocess_force_exit(daemon_.get());
    g_subprocess_wait(daemon_.get(), nullptr, nullptr);
}

GVariantPtr GnomeKeyring::call(const char* method, GVariant* arguments) const {
    return GVariantPtr(g_dbus_connection_call_sync(
        connection_.get(), "org.freedesktop.secrets", "/org/freedesktop/secrets",
        "org.freedesktop.Secret.Service", method, arguments, nullptr, G_DBUS_CALL_FLAGS_NONE, -1,
        nullptr, nullptr));
}

void GnomeKeyring::lock() {
    const GVariantPtr alias(call("ReadAlias", g_variant_new("(s)", "default")));
    const char* collection = nullptr;
    g_variant_get(alias.get(), "(&o)", &collection);
    if (!call("Lock", g_variant_new_parsed("([%o],)", collection)))
        throw std::runtime_error("the keyring does not lock");
}

} // namespace tessaro::test
