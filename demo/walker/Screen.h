#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

using Display = struct _XDisplay; // Of the display's own header, which defines words as macros.

namespace tessaro::demo {

/// The X display that the program is shown on: its picture, its clipboard, its keyboard and
/// pointer.
class Screen {
public:
    struct Area {
        int x = 0, y = 0, width = 0, height = 0;
    };

    /// Opens the display that DISPLAY names; check isOpen().
    Screen();
    bool isOpen() const { return display_ != nullptr; }

    /// The area of the largest window whose title ends with `title` (a count may stand before it),
    /// without its shadow. Nothing while there is no such window.
    std::optional<Area> findWindow(const std::string& title) const;
    /// That area, grown to hold the menus and popovers that are open.
    Area withPopovers(Area area) const;
    /// Paints what lies behind all windows (0xRRGGBB).
    void paintGround(unsigned long color) const;

    /// Writes what is seen in the area, whatever window it belongs to. False when it cannot.
    bool writePng(const Area& area, const std::filesystem::path& file) const;
    /// Waits until nothing in the area has moved for a quarter of a second, `limit` at most.
    void waitForRest(const Area& area, std::chrono::milliseconds limit) const;
    /// How many pixels of the area have exactly this colour (0xRRGGBB).
    int countPixels(const Area& area, unsigned long color) const;

    /// The clipboard's plain text, as its owner hands it out.
    std::optional<std::string> clipboardText() const;

    /// Presses and releases a key while the modifier, if there is one, is held. Both are named as
    /// in X11/keysymdef.h.
    void typeKey(const char* keysym, const char* modifier = nullptr) const;
    /// Moves the pointer, in the display's coordinates, and clicks there.
    void movePointer(int x, int y) const;
    void click(int x, int y, unsigned button = 1) const;
    void pressButton(unsigned button = 1) const;
    void releaseButton(unsigned button = 1) const;

private:
    struct CloseDisplay {
        void operator()(Display* display) const;
    };
    std::unique_ptr<Display, CloseDisplay> display_;
};

} // namespace tessaro::demo
