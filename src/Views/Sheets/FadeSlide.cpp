#include "Views/Sheets/FadeSlide.h"

#include <algorithm>
#include <cmath>

namespace tessaro {

FadeSlide::FadeSlide(Gtk::Widget& child, std::chrono::milliseconds duration) : child_(child) {
    child_.set_parent(*this);
    set_overflow(Gtk::Overflow::HIDDEN);
    // The animation follows this widget's frame clock and ends with it.
    AdwAnimationTarget* target = adw_callback_animation_target_new(
        [](double value, gpointer self) { static_cast<FadeSlide*>(self)->moveTo(value); }, this,
        nullptr);
    animation_ = GObjectPtr<AdwAnimation>::share(
        adw_timed_animation_new(gobj(), 0, 1, guint(duration.count()), target));
    adw_timed_animation_set_easing(ADW_TIMED_ANIMATION(animation_.get()), ADW_EASE_IN_OUT_CUBIC);
    moveTo(0);
}

FadeSlide::~FadeSlide() {
    adw_animation_reset(animation_.get());
    child_.unparent();
}

void FadeSlide::reveal(bool revealed) {
    if (revealed == revealed_)
        return;
    revealed_ = revealed;
    auto* timed = ADW_TIMED_ANIMATION(animation_.get());
    adw_animation_pause(animation_.get());
    adw_timed_animation_set_value_from(timed, progress_);
    adw_timed_animation_set_value_to(timed, revealed ? 1 : 0);
    adw_animation_reset(animation_.get());
    adw_animation_play(animation_.get());
}

void FadeSlide::moveTo(double progress) {
    progress_ = progress;
    child_.set_visible(progress > 0);
    child_.set_opacity(progress);
    queue_resize();
}

Gtk::SizeRequestMode FadeSlide::get_request_mode_vfunc() const {
    return child_.get_request_mode();
}

void FadeSlide::measure_vfunc(
    Gtk::Orientation orientation, int forSize, int& minimum, int& natural, int& minimumBaseline,
    int& naturalBaseline) const {
    if (orientation == Gtk::Orientation::VERTICAL) {
        child_.measure(orientation, forSize, minimum, natural, minimumBaseline, naturalBaseline);
        minimum = int(std::lround(minimum * progress_));
        natural = int(std::lround(natural * progress_));
    } else {
        child_.measure(orientation, -1, minimum, natural, minimumBaseline, naturalBaseline);
    }
    minimumBaseline = naturalBaseline = -1;
}

void FadeSlide::size_allocate_vfunc(int width, int height, int) {
    if (!child_.get_visible())
        return;
    int minimum = 0, natural = 0, minimumBaseline = 0, naturalBaseline = 0;
    child_.measure(
        Gtk::Orientation::VERTICAL, width, minimum, natural, minimumBaseline, naturalBaseline);
    const int full = std::max(natural, height);
    child_.size_allocate(Gtk::Allocation(0, height - full, width, full), -1);
}

} // namespace tessaro
