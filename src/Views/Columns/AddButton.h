#pragma once

#include <gtkmm/button.h>
#include <gtkmm/drawingarea.h>
#include <gtkmm/overlay.h>

namespace tessaro {

/// The button at the end of a column: a plus sign in a dashed outline.
class AddButton : public Gtk::Button {
public:
    enum class Shape { circle, roundedSquare };

    AddButton(Shape shape, const Glib::ustring& tooltip);

private:
    void drawOutline(const Cairo::RefPtr<Cairo::Context>& cairo);

    const Shape shape_;
    Gtk::Overlay face_;
    Gtk::DrawingArea outline_;
};

} // namespace tessaro
