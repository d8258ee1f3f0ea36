#include "Platform/Gtk/DigitKey.h"

#include <string_view>

namespace tessaro {

namespace {
// From the left, as X11 and Wayland both number keys.
constexpr guint firstOfRow = 10;
constexpr std::string_view row = "1234567890";
// As many as a keyboard can switch between.
constexpr int layouts = 4;
} // namespace

std::string digitByPlace(GdkDisplay* display, guint keycode) {
    if (keycode < firstOfRow || keycode - firstOfRow >= row.size())
        return {};
    const char digit = row[keycode - firstOfRow];
    for (int layout = 0; layout < layouts; ++layout) {
        guint typed = 0;
        if (gdk_display_translate_key(
                display, keycode, GdkModifierType{}, layout, &typed, nullptr, nullptr, nullptr) &&
            typed == static_cast<guint>(digit))
            return {};
    }
    return {digit};
}

} // namespace tessaro
