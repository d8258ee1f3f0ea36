#pragma once

#include "Platform/Rgba.h"

#include <gtkmm/snapshot.h>
#include <gtkmm/widget.h>

#include <string>

/// The parts that the faces of the columns' buttons are drawn of. Measures are points.
namespace tessaro::face {

inline constexpr int size = 38; ///< Across, of every button in a column.

inline constexpr Rgba orange{1.0, 0.584, 0.0, 1.0};
inline constexpr Rgba green{0.204, 0.78, 0.349, 1.0};
inline constexpr Rgba grey{0.557, 0.557, 0.576, 1.0};

/// Text in the middle of the widget, in the font and colour of its style.
void drawText(Gtk::Widget& widget, Gtk::Snapshot& snapshot, const std::string& text);

/// The small dot at the lower right of the widget's middle, in a ring of the window's colour.
void drawStatusDot(Gtk::Widget& widget, Gtk::Snapshot& snapshot, const Rgba& color);

} // namespace tessaro::face
