#include "Views/Pictures/SafeAvatarView.h"

#include "Platform/Gtk/SmoothRectangle.h"
#include "Platform/HttpClient.h"
#include "Platform/Text.h"

#include <gdkmm/general.h>
#include <gtkmm/snapshot.h>
#include <pangomm/layout.h>

#include <cmath>
#include <utility>

namespace tessaro {

namespace {

constexpr double initialToSize = 0.4;
/// Pango's points are 1/72 inch, CSS pixels 1/96.
constexpr double pangoPoints = 0.75;

} // namespace

SafeAvatarView::SafeAvatarView(
    ImageLoader& images, ThemeManager& theme, double size, AvatarShape shape, std::string nameless)
    : Glib::ObjectBase("TessaroSafeAvatarView"),
      images_(images),
      theme_(theme),
      size_(size),
      shape_(shape),
      nameless_(std::move(nameless)) {
    g_object_set(gobj(), "accessible-role", GTK_ACCESSIBLE_ROLE_PRESENTATION, nullptr);
    // Another monitor may have another number of pixels per point.
    property_scale_factor().signal_changed().connect(
        sigc::mem_fun(*this, &SafeAvatarView::loadLocalImage));
}

SafeAvatarView::~SafeAvatarView() {
    loading_.cancel();
}

void SafeAvatarView::setAvatar(
    std::string id, std::string name, std::optional<WebPicture> fallbackUrl) {
    const bool otherId = id != id_;
    const bool otherUrl = fallbackUrl != fallbackUrl_;
    id_ = std::move(id);
    name_ = std::move(name);
    fallbackUrl_ = std::move(fallbackUrl);
    if (otherId)
        localImage_.reset();
    if (otherId || otherUrl) {
        remoteAnswer_.reset();
        remoteImage_.reset();
        loadLocalImage();
    }
    queue_draw();
}

void SafeAvatarView::loadLocalImage() {
    loading_.cancel();
    loading_ = Cancellation();
    if (get_mapped())
        load(loading_).detach();
}

Task<void> SafeAvatarView::load(Cancellation loading) {
    const auto alive = lifetime_.watch();
    if (!id_.empty()) {
        auto reading = images_.loadCached(id_, pixels(), loading, cutter());
        auto local = co_await std::move(reading);
        if (!alive || loading.isCancelled())
            co_return;
        localImage_ = std::move(local);
        queue_draw();
    }
    if (localImage_ || !fallbackUrl_)
        co_return;
    if (!remoteAnswer_) {
        auto fetching = images_.fetch(*fallbackUrl_);
        auto answer = co_await std::move(fetching);
        if (!alive || loading.isCancelled() || !answer)
            co_return;
        remoteAnswer_ = std::move(answer);
    }
    auto decoding = images_.decode(remoteAnswer_, pixels(), loading, cutter());
    auto remote = co_await std::move(decoding);
    if (!alive || loading.isCancelled())
        co_return;
    remoteImage_ = std::move(remote);
    queue_draw();
}

std::string SafeAvatarView::initial() const {
    return name_.empty() ? nameless_ : firstCharacterUpperCased(name_);
}

int SafeAvatarView::pixels() const {
    return static_cast<int>(std::ceil(size_ * get_scale_factor()));
}

void SafeAvatarView::measure_vfunc(
    Gtk::Orientation, int, int& minimum, int& natural, int&, int&) const {
    minimum = natural = static_cast<int>(std::ceil(size_));
}

void SafeAvatarView::on_map() {
    Gtk::Widget::on_map();
    avatarDownloaded_ = images_.observeCache([this](const std::string& id) {
        if (id == id_)
            loadLocalImage();
    });
    themeChanged_ = theme_.observe([this] { queue_draw(); });
    loadLocalImage();
}

void SafeAvatarView::on_unmap() {
    avatarDownloaded_.disconnect();
    themeChanged_.disconnect();
    loading_.cancel();
    Gtk::Widget::on_unmap();
}

ImageLoader::Finish SafeAvatarView::cutter() const {
    return [shape = shape_, side = pixels(), size = size_](GdkTexture& picture) {
        return shape.cut(picture, side, side / size);
    };
}

void SafeAvatarView::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) {
    const auto size = static_cast<float>(size_);
    const graphene_rect_t bounds = GRAPHENE_RECT_INIT(
        (static_cast<float>(get_width()) - size) / 2, (static_cast<float>(get_height()) - size) / 2,
        size, size);
    if (const auto& picture = localImage_ ? localImage_ : remoteImage_) {
        snapshot->append_texture(picture, &bounds);
        return;
    }

    const auto context = snapshot->append_cairo(&bounds);
    context->translate(bounds.origin.x, bounds.origin.y);
    Gdk::Cairo::set_source_rgba(context, theme_.themePrimaryLight());
    addSmoothRectangle(context, 0, 0, size_, size_, shape_.cornerRadius);
    context->fill();

    const auto layout = create_pango_layout(initial());
    auto font = get_pango_context()->get_font_description();
    font.set_weight(Pango::Weight::BOLD);
    font.set_size(static_cast<int>(size_ * initialToSize * pangoPoints * Pango::SCALE));
    layout->set_font_description(font);
    int width = 0;
    int height = 0;
    layout->get_pixel_size(width, height);
    Gdk::Cairo::set_source_rgba(context, theme_.themePrimary());
    context->move_to((size_ - width) / 2, (size_ - height) / 2);
    layout->show_in_cairo_context(context);
}

} // namespace tessaro
