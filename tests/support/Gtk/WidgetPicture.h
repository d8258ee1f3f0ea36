#pragma once

#include "Platform/Rgba.h"

#include <cairomm/surface.h>
#include <gtkmm/widget.h>

namespace tessaro::test {

/// What a widget in a shown window drew last.
class WidgetPicture {
public:
    explicit WidgetPicture(Gtk::Widget& widget);

    /// The pixel at that point of the widget; transparent outside of it.
    Rgba at(double x, double y) const;

private:
    Cairo::RefPtr<Cairo::ImageSurface> surface_;
};

/// Whether two colours are the same to the eye: no component, weighted by opacity,
/// differs by more than two steps of a byte.
bool nearlyEqual(const Rgba& one, const Rgba& other);

} // namespace tessaro::test
