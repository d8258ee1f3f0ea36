#include "DemoServer.h"

#include <glib-unix.h>

#include <charconv>
#include <cstring>
#include <iostream>
#include <optional>

namespace {

std::optional<unsigned> readPort(int argc, char** argv) {
    if (argc != 3 || std::strcmp(argv[1], "--port") != 0)
        return std::nullopt;
    unsigned port = 0;
    const char* end = argv[2] + std::strlen(argv[2]);
    const auto read = std::from_chars(argv[2], end, port);
    return read.ec == std::errc() && read.ptr == end && port <= 65535 ? std::optional(port)
                                                                      : std::nullopt;
}

gboolean quit(gpointer loop) {
    g_main_loop_quit(static_cast<GMainLoop*>(loop));
    return G_SOURCE_CONTINUE;
}

} // namespace

int main(int argc, char** argv) {
    const auto port = readPort(argc, argv);
    if (!port) {
        std::cerr << "usage: tessaro-demo-server --port N   (0 picks a free port)\n";
        return 2;
    }
    tessaro::demo::DemoServer server;
    if (const auto listening = server.listen(*port); !listening) {
        std::cerr << "tessaro-demo-server: " << listening.error().message << "\n";
        return 1;
    }
    std::cout << "listening on " << server.origin() << std::endl;

    const tessaro::GMainLoopPtr loop(g_main_loop_new(nullptr, FALSE));
    g_unix_signal_add(SIGTERM, &quit, loop.get());
    g_unix_signal_add(SIGINT, &quit, loop.get());
    g_main_loop_run(loop.get());
    return 0;
}
