// The memory and the wake-ups of the program and its processes while a user only looks.

#include "Figure.h"
#include "outside/Peers.h"
#include "outside/Tessaro.h"

#include <thread>

namespace tessaro::bench {

namespace {

using std::chrono::seconds;

/// A load leaves work to do, and memory that is soon freed.
constexpr seconds toCalmDown{2};
/// The script that hides the site's navigation runs for the last time ten seconds after a load.
constexpr seconds toIdle{12};
/// An engine that was made ready and not used gives memory back for this long.
constexpr seconds toEngineIdle{40};
constexpr seconds idleTime{5};
/// A web page's script and the engine's allocator wake up at irregular times.
constexpr seconds idleTimeWithPage{10};

double memoryOf(const Running& process) {
    std::this_thread::sleep_for(toCalmDown);
    return process.memory();
}

double wakeUpsOf(const Running& process, seconds after, seconds during = idleTime) {
    std::this_thread::sleep_for(after);
    return process.wakeUps(during);
}

/// The program with one inbox open.
Tessaro withInbox(const Site& site) {
    Tessaro tessaro(site);
    tessaro.showPages();
    tessaro.openPage(0);
    return tessaro;
}

/// @param afterOne  set to the memory of the same run after the first Page
double memoryAfterManyPages(const Site& site, double& afterOne) {
    auto tessaro = withInbox(site);
    afterOne = memoryOf(tessaro.process());
    for (int i = 1; i < Tessaro::pageCount; ++i)
        tessaro.openNextPage();
    return memoryOf(tessaro.process());
}

/// The memory of a browser with that many web pages, in MiB.
double memoryOfBrowser(const Site& site, const peers::Command& command, std::size_t pages = 1) {
    const auto before = site.runs();
    const Running browser(command);
    site.waitForRunAfter(before + pages - 1);
    return memoryOf(browser);
}

double memoryOfTabs(const Site& site) {
    std::vector<std::string> addresses;
    for (int i = 0; i < Tessaro::pageCount; ++i)
        addresses.push_back(site.inbox(i));
    return memoryOfBrowser(site, peers::chromiumTabs(addresses), addresses.size());
}

double idleWithPages(const Site& site) {
    Tessaro tessaro(site);
    tessaro.showPages();
    return wakeUpsOf(tessaro.process(), toEngineIdle);
}

double idleBareView(const Site& site) {
    const Running view(peers::bareView());
    const auto before = site.runs();
    view.write(site.inbox(1));
    site.waitForRunAfter(before);
    return wakeUpsOf(view, toIdle, idleTimeWithPage);
}

} // namespace

Figures holdFigures(const std::shared_ptr<const Site>& site) {
    const auto afterOne = std::make_shared<double>();
    return {
        {"memory with one inbox",
         "MiB",
         [=] { return memoryOf(withInbox(*site).process()); },
         {{0.7, "Chromium",
           [=] { return memoryOfBrowser(*site, peers::chromiumApp(site->inbox(1))); }},
          {1.1, "MiniBrowser",
           [=] { return memoryOfBrowser(*site, peers::miniBrowser(site->inbox(1))); }}}},
        {"memory after 50 Pages",
         "MiB",
         [=] { return memoryAfterManyPages(*site, *afterOne); },
         {{1.15, "after one Page", [=] { return *afterOne; }},
          {1, "Chromium with 50 tabs", [=] { return memoryOfTabs(*site); }}}},
        {"idle, no account selected, wake-ups",
         "/s",
         [=] { return wakeUpsOf(Tessaro(*site).process(), toCalmDown); },
         {{2, {}, {}}}},
        {"idle, an account's Pages shown, wake-ups",
         "/s",
         [=] { return idleWithPages(*site); },
         {{2, {}, {}}}},
        {"idle with an inbox open, wake-ups",
         "/s",
         [=] { return wakeUpsOf(withInbox(*site).process(), toIdle, idleTimeWithPage); },
         {{1.2, "bare view", [=] { return idleBareView(*site); }}}},
    };
}

} // namespace tessaro::bench
