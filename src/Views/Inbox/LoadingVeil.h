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
    /// through out of focus, as it looks a tenth of a second later, when the veil begins to be
    /// seen. Without a page there is only a plain ground, at once.
    /// @param atOnce  whether it is seen from the beginning
    void cover(Gtk::Widget* page, bool atOnce = false);
    void lift();

private:
    void appear();
    void appearAbove(Gtk::Widget& page);

    Clock& clock_;
    ScopedConnection delay_;
    Gtk::Picture backdrop_;
    Gtk::Box column_{Gtk::Orientation::VERTICAL, 12};
    Gtk::Spinner spinner_;
    Gtk::Label text_{"Đang tải hộp thư..."};
};

} // namespace tessaro
