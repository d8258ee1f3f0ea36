#pragma once

#include <gdk/gdk.h>

#include <string>

namespace tessaro {

/// The digit that a key of the digit row stands for where the keyboard's layout has none there: a
/// Vietnamese layout has letters in their place, a French one has digits with Shift only. The
/// toolkit's shortcuts miss those.
/// @param keycode  the hardware's, as key events carry it
/// @return "0" to "9"; empty for a key elsewhere, and where one of the layouts has the digit there
std::string digitByPlace(GdkDisplay* display, guint keycode);

} // namespace tessaro
