#pragma once

#include "Screen.h"
#include "outside/Running.h"
#include "outside/Site.h"

#include <chrono>
#include <memory>
#include <utility>

namespace tessaro::bench {

/// The program itself, used with the pointer and the keyboard.
class Tessaro {
public:
    static constexpr int accountCount = 20, pageCount = 50;

    /// Before a click, so that none falls into what a load has left to do: the script that hides
    /// the site's navigation runs again 0.5, 1.5, 3, 6 and 10 seconds after it, for some 20 ms.
    static constexpr std::chrono::milliseconds rest{1250};

    /// Starts it over so many accounts, the first of which has all the Pages, and waits until its
    /// window is drawn.
    explicit Tessaro(const Site& site);

    const Running& process() const { return *process_; }
    double millisecondsToFirstFrame() const { return toFirstFrame_; }

    /// Clicks on the first account and lets everything that follows from that happen.
    void showPages();
    /// Rests, points at the first or second Page, clicks on it and waits for its script to run. The
    /// milliseconds from the click to that.
    double openPage(int index);
    /// Opens the Page below the one that was opened last, with the keyboard.
    void openNextPage();

private:
    /// Of a point in the window, in the display's coordinates.
    std::pair<int, int> onDisplay(int x, int y) const;

    const Site& site_;
    demo::Screen screen_;
    std::unique_ptr<Running> process_;
    double toFirstFrame_ = 0;
};

} // namespace tessaro::bench
