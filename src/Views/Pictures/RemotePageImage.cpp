#include "Views/Pictures/RemotePageImage.h"

#include <gtk/gtk.h>
#include <gtkmm/snapshot.h>

#include <algorithm>

namespace tessaro {

RemotePageImage::RemotePageImage(
    ImageLoader& images, const std::string& name, const std::optional<std::string>& url, int size)
    : PageInitialTile(name, size), side_(size) {
    if (url)
        load(this, lifetime_.watch(), images, *url).detach();
}

RemotePageImage::~RemotePageImage() {
    stop_.cancel();
}

Task<void> RemotePageImage::load(
    RemotePageImage* self, Lifetime::Watch alive, ImageLoader& images, std::string url) {
    auto fetching = images.loadUrl(std::move(url), self->pixels(), self->stop_);
    auto texture = co_await std::move(fetching);
    if (!alive)
        co_return;
    self->texture_ = std::move(texture);
    self->queue_draw();
}

/// Enough for a display with two pixels to the point, whichever the window is on later.
int RemotePageImage::pixels() const {
    return side_ * 2;
}

void RemotePageImage::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) {
    if (!texture_) {
        PageInitialTile::snapshot_vfunc(snapshot);
        return;
    }
    const float side = float(side_), radius = float(cornerRadius(side_));
    const graphene_rect_t square{{0, 0}, {side, side}};
    GskRoundedRect clip;
    gsk_rounded_rect_init_from_rect(&clip, &square, radius);
    gtk_snapshot_push_rounded_clip(snapshot->gobj(), &clip);
    const float width = float(texture_->get_width()), height = float(texture_->get_height());
    const float scale = side / std::min(width, height);
    const graphene_rect_t filled{
        {(side - width * scale) / 2, (side - height * scale) / 2}, {width * scale, height * scale}};
    snapshot->append_texture(texture_, &filled);
    snapshot->pop();
}

} // namespace tessaro
