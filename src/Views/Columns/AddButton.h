#pragma once

#include <gtkmm/button.h>

namespace tessaro {

/// The button at the end of a column: a plus sign in a dashed outline.
class AddButton : public Gtk::Button {
public:
    enum class Shape { circle, roundedSquare };
    static constexpr int side = 38; ///< Width and height in points of every button in a column.

    AddButton(Shape shape, const Glib::ustring& tooltip);

protected:
    void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

private:
    const Shape shape_;
};

} // namespace tessaro
