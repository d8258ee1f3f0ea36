#pragma once

#include "Screen.h"
#include "outside/Running.h"
#include "outside/Site.h"

#include <memory>

namespace tessaro::bench {

/// The program itself, used with the pointer and the keyboard.
class Tessaro {
public:
    static constexpr int accountCount = 20, pageCount = 50;

    /// Starts it over so many accounts, the first of which has all the Pages, and waits until its
    /// window is drawn.
    explicit Tessaro(const Site& site);

    const Running& process() const { return *process_; }
    double millisecondsToFirstFrame() const { return toFirstFrame_; }

    /// Clicks on the first account and lets everything that follows from that happen.
    void showPages();
    /// Clicks on the first or second Page and waits for its script to run. The milliseconds that
    /// this took.
    double openPage(int index);
    /// Opens the Page below the one that was opened last, with the keyboard.
    void openNextPage();

private:
    void click(int x, int y) const;

    const Site& site_;
    demo::Screen screen_;
    std::unique_ptr<Running> process_;
    double toFirstFrame_ = 0;
};

} // namespace tessaro::bench
