#include "outside/Peers.h"

#include <unistd.h>

#include <cstdlib>

namespace tessaro::bench::peers {

namespace {

/// Starts Chromium on a private profile, which is kept from start to start. Its own background
/// services are switched off, because the figures are about the web page.
Command chromium() {
    Command command{
        "chromium",
        "--user-data-dir=" + std::string(std::getenv("XDG_DATA_HOME")) + "/chromium",
        "--window-size=1200,760",
        "--password-store=basic",
        "--no-first-run",
        "--no-default-browser-check",
        "--disable-background-networking",
        "--disable-component-update",
        "--disable-default-apps",
        "--disable-sync",
    };
    // As root Chromium does not run in its sandbox. That saves it work which the program does.
    if (geteuid() == 0)
        command.emplace_back("--no-sandbox");
    return command;
}

} // namespace

Command bareWindow() {
    return {BENCH_BARE_WINDOW};
}

Command bareView() {
    return {BENCH_BARE_VIEW};
}

Command miniBrowser(const std::string& address) {
    return {BENCH_MINI_BROWSER, "--geometry=1200x760", address};
}

Command chromiumApp(const std::string& address) {
    auto command = chromium();
    command.push_back("--app=" + address);
    return command;
}

Command chromiumTabs(const std::vector<std::string>& addresses) {
    auto command = chromium();
    command.insert(command.end(), addresses.begin(), addresses.end());
    return command;
}

} // namespace tessaro::bench::peers
