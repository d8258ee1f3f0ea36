#include "outside/Tessaro.h"

#include "Records.h"
#include "outside/FirstFrame.h"

#include <stdexcept>
#include <thread>

namespace tessaro::bench {

namespace {

/// The time from pointing at a button to the click. After half a second a tooltip would show.
constexpr std::chrono::milliseconds pointing(250);

// The middles of the first buttons in the two columns, below the header bar.
constexpr int accountColumn = 28, pageColumn = 85, firstRow = 74, rowHeight = 44;

void storeRecords(const std::string& origin) {
    const auto accounts = makeAccounts(Tessaro::accountCount);
    writeRecords(accounts, makePages({accounts.front()}, Tessaro::pageCount), origin);
}

} // namespace

Tessaro::Tessaro(const Site& site) : site_(site) {
    storeRecords(site.origin());
    FirstFrame frame;
    process_ = std::make_unique<Running>(std::vector<std::string>{TESSARO_PROGRAM});
    frame.wait();
    toFirstFrame_ = millisecondsSince(process_->started());
}

std::pair<int, int> Tessaro::onDisplay(int x, int y) const {
    const auto window = screen_.findWindow("Tessaro");
    if (!window)
        throw std::runtime_error("the window is gone");
    return {window->x + x, window->y + y};
}

void Tessaro::showPages() {
    std::this_thread::sleep_for(std::chrono::seconds(1));
    const auto [x, y] = onDisplay(accountColumn, firstRow);
    screen_.click(x, y);
    std::this_thread::sleep_for(std::chrono::seconds(2));
}

double Tessaro::openPage(int index) {
    const auto [x, y] = onDisplay(pageColumn, firstRow + index * rowHeight);
    std::this_thread::sleep_for(rest - pointing);
    screen_.movePointer(x, y);
    std::this_thread::sleep_for(pointing);
    const auto before = site_.runs();
    const auto start = Clock::now();
    screen_.click(x, y);
    site_.waitForRunAfter(before);
    return millisecondsSince(start);
}

void Tessaro::openNextPage() {
    const auto before = site_.runs();
    screen_.typeKey("Down");
    screen_.typeKey("space");
    site_.waitForRunAfter(before);
}

} // namespace tessaro::bench
