#pragma once

#include "Platform/Clock.h"

#include <gtkmm/box.h>
#include <gtkmm/label.h>
#include <gtkmm/overlay.h>
#include <gtkmm/picture.h>
#include <gtkmm/spinner.h>

namespace tessaro {

/// Covers a page while it loads: a tint and a spinner above what was there before, out of focus.
/// Hidden until it covers something.
class LoadingVeil : public Gtk::Overlay {
public:
    explicit LoadingVeil(Clock& clock);

    /// Covers everything until lift(). `page` lies below and must stay until then. It shines
    /// through; after a moment out of focus, as it looks at that time. Without one there is nothing
    /// to see.
    void cover(Gtk::Widget* page);
    void lift();

private:
    Clock& clock_;
    ScopedConnection pictureTimer_;
    Gtk::Picture backdrop_;
    Gtk::Box column_{Gtk::Orientation::VERTICAL, 12};
    Gtk::Spinner spinner_;
    Gtk::Label text_{"Đang tải hộp thư..."};
};

} // namespace tessaro
