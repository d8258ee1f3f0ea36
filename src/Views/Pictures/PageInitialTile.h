#pragma once

#include <gtkmm/widget.h>

#include <string>

namespace tessaro {

/// The letter that stands in for a Page's missing picture, on a tinted square with continuous
/// corners.
class PageInitialTile : public Gtk::Widget {
public:
    /// @param size  of the square, in points
    PageInitialTile(const std::string& name, int size);

    /// How round the corners of a square of that size are.
    static double cornerRadius(int size) { return size > 40 ? 8 : 6; }

protected:
    void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

private:
    const int size_;
    const std::string initial_;
};

} // namespace tessaro
