#pragma once

#include "Platform/Cancellation.h"
#include "Platform/Lifetime.h"
#include "Views/Pictures/AvatarShape.h"
#include "Views/Pictures/ImageLoader.h"
#include "Views/Theme/ThemeManager.h"

#include <gtkmm/widget.h>

#include <optional>
#include <string>

namespace tessaro {

/// The square or round picture of a Page. It shows the picture from the cache, or else the one from
/// the web, or else the first letter of the Page's name on the accent's tint.
///
/// Assistive technology ignores it as decoration. A list reuses the view for other Pages: a new
/// avatar cancels the loading of the previous one. UI thread only.
class SafeAvatarView : public Gtk::Widget {
public:
    /// @param images, theme  outlive this
    /// @param size           width and height in points
    /// @param nameless       shown in place of the letter when the name is empty
    SafeAvatarView(
        ImageLoader& images, ThemeManager& theme, double size, AvatarShape shape,
        std::string nameless = "?");
    ~SafeAvatarView() override;

    /// @param id           the key of the cached picture; empty when the cache cannot have it
    /// @param name         the Page's name, whose first letter is shown without a picture
    /// @param fallbackUrl  the picture's web address
    void setAvatar(std::string id, std::string name, std::optional<WebPicture> fallbackUrl);

    /// Reads the cached picture again. The view does so by itself when it appears, when its id or
    /// its number of pixels changes, and when a picture of its id was written to the cache.
    void loadLocalImage();

    /// The cached picture; empty when there is none.
    const ImageLoader::Picture& localImage() const { return localImage_; }
    /// The letter that is drawn when there is no picture.
    std::string initial() const;

protected:
    void measure_vfunc(
        Gtk::Orientation orientation, int forSize, int& minimum, int& natural, int& minimumBaseline,
        int& naturalBaseline) const override;
    void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;
    void on_map() override;
    void on_unmap() override;

private:
    Task<void> load(Cancellation loading);
    ImageLoader::Finish cutter() const;
    int pixels() const;

    ImageLoader& images_;
    ThemeManager& theme_;
    const double size_;
    const AvatarShape shape_;
    const std::string nameless_;
    std::string id_;
    std::string name_;
    std::optional<WebPicture> fallbackUrl_;
    ImageLoader::Picture localImage_;
    PictureQueue::Answer remoteAnswer_; ///< Kept to decode it again when the scale factor changes.
    ImageLoader::Picture remoteImage_;
    Cancellation loading_;
    ScopedConnection avatarDownloaded_;
    ScopedConnection themeChanged_;
    Lifetime lifetime_;
};

} // namespace tessaro
