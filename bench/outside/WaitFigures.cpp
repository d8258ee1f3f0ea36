// What a user waits for.

#include "Figure.h"
#include "Table.h"
#include "outside/FirstFrame.h"
#include "outside/Peers.h"
#include "outside/Tessaro.h"

#include <thread>

namespace tessaro::bench {

namespace {

constexpr int switches = 6;

double bareStart() {
    FirstFrame frame;
    const Running window(peers::bareWindow());
    frame.wait();
    return millisecondsSince(window.started());
}

double firstPage(const Site& site) {
    Tessaro tessaro(site);
    tessaro.showPages();
    return tessaro.openPage(0);
}

double chromiumStart(const Site& site) {
    const auto before = site.runs();
    const Running chromium(peers::chromiumApp(site.inbox(1)));
    site.waitForRunAfter(before);
    return millisecondsSince(chromium.started());
}

double pageSwitch(const Site& site) {
    Tessaro tessaro(site);
    tessaro.showPages();
    tessaro.openPage(0);
    std::vector<double> taken;
    for (int i = 1; i <= switches; ++i)
        taken.push_back(tessaro.openPage(i % 2));
    return median(std::move(taken));
}

double bareSwitch(const Site& site) {
    const Running view(peers::bareView());
    std::vector<double> taken;
    for (int i = 0; i <= switches; ++i) {
        const auto before = site.runs();
        const auto start = Clock::now();
        view.write(site.inbox(i % 2));
        site.waitForRunAfter(before);
        if (i > 0) // The first switch starts the engine.
            taken.push_back(millisecondsSince(start));
        std::this_thread::sleep_for(Tessaro::rest);
    }
    return median(std::move(taken));
}

} // namespace

Figures waitFigures(const std::shared_ptr<const Site>& site) {
    return {
        {"start to the first frame",
         "ms",
         [=] { return Tessaro(*site).millisecondsToFirstFrame(); },
         {{1.25, "bare window", bareStart}}},
        {"click on the first Page to its script running",
         "ms",
         [=] { return firstPage(*site); },
         {{0.3, "Chromium's start", [=] { return chromiumStart(*site); }}}},
        {"switch to another Page, click to its script running",
         "ms",
         [=] { return pageSwitch(*site); },
         {{1.2, "bare view's load", [=] { return bareSwitch(*site); }}}},
    };
}

} // namespace tessaro::bench
