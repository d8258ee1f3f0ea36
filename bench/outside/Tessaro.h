#pragma once

#include "Screen.h"
#include "outside/Running.h"
#include "outside/Site.h"

#include <chrono>
#include <memory>
#include <utility>

namespace tessaro::bench {

/// The program, used with the pointer and the keyboard.
class Tessaro {
public:
    static constexpr int accountCount = 20, pageCount = 50;

    /// The rest before a click, so that the load before has nothing left to do. The script that
    /// hides the site's navigation runs again 0.5, 1.5, 3, 6 and 10 seconds after a load, each time
    /// for some 20 ms.
    static constexpr std::chrono::milliseconds rest{1250};

    /// Starts the program with that many accounts, of which the first has all the Pages, and waits
    /// until its window is drawn.
    explicit Tessaro(const Site& site);

    const Running& process() const { return *process_; }
    double millisecondsToFirstFrame() const { return toFirstFrame_; }

    /// Clicks on the first account and waits until everything that follows has happened.
    void showPages();
    /// Rests, points at the first or second Page, clicks on it and waits for its script to run.
    /// Returns the milliseconds from the click to the script.
    double openPage(int index);
    /// Opens the Page below the last one with the keyboard.
    void openNextPage();

private:
    /// A point of the window, in the display's coordinates.
    std::pair<int, int> onDisplay(int x, int y) const;

    const Site& site_;
    demo::Screen screen_;
    std::unique_ptr<Running> process_;
    double toFirstFrame_ = 0;
};

} // namespace tessaro::bench
