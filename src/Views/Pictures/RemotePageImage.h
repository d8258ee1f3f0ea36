#pragma once

#include "Platform/Lifetime.h"
#include "Views/Pictures/ImageLoader.h"
#include "Views/Pictures/PageInitialTile.h"

#include <optional>

namespace tessaro {

/// A Page's picture from the web, cut to a square with continuous corners; the initial of the
/// Page's name until it has come, and when there is none.
class RemotePageImage : public PageInitialTile {
public:
    /// @param images  outlives this
    RemotePageImage(
        ImageLoader& images, const std::string& name, const std::optional<std::string>& url,
        int size);
    ~RemotePageImage() override;

    bool hasPicture() const { return static_cast<bool>(texture_); }

protected:
    void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

private:
    static Task<void>
    load(RemotePageImage* self, Lifetime::Watch alive, ImageLoader& images, std::string url);
    int pixels() const;

    const int side_;
    Glib::RefPtr<Gdk::Texture> texture_;
    Cancellation stop_;
    Lifetime lifetime_;
};

} // namespace tessaro
