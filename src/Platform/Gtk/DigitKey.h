#pragma once

#include <gdk/gdk.h>

#include <string>

namespace tessaro {

/// The digit at the place of a key in the digit row, when no keyboard layout types that digit there
/// without Shift. A Vietnamese layout has letters there and a French one signs, so that the
/// toolkit's shortcuts with digits do not see the key.
/// @param keycode  the hardware key code of the key event
/// @return "0" to "9"; empty for a key elsewhere, and where one of the layouts has the digit there
std::string digitByPlace(GdkDisplay* display, guint keycode);

} // namespace tessaro
