#pragma once

#include "Platform/GHandle.h"

#include <adwaita.h>
#include <gtkmm/widget.h>

#include <chrono>

namespace tessaro {

/// Shows and hides its child by fading it while it slides in from the top, with an ease-in-out
/// curve. While hidden it takes no room and no focus. Changes at once while it is
/// not on screen and when the desktop asks for reduced motion.
class FadeSlide : public Gtk::Widget {
public:
    /// @param child  stays the caller's or is managed; dies no sooner than this
    FadeSlide(Gtk::Widget& child, std::chrono::milliseconds duration);
    ~FadeSlide() override;

    void reveal(bool revealed);

protected:
    Gtk::SizeRequestMode get_request_mode_vfunc() const override;
    void measure_vfunc(
        Gtk::Orientation orientation, int forSize, int& minimum, int& natural, int& minimumBaseline,
        int& naturalBaseline) const override;
    void size_allocate_vfunc(int width, int height, int baseline) override;

private:
    void moveTo(double progress);

    Gtk::Widget& child_;
    GObjectPtr<AdwAnimation> animation_;
    double progress_ = 0;
    bool revealed_ = false;
};

} // namespace tessaro
