#pragma once

#include "Platform/Lifetime.h"
#include "Views/Pictures/AvatarShape.h"
#include "Views/Pictures/ImageLoader.h"
#include "Views/Theme/ThemeManager.h"

#include <gtkmm/widget.h>

#include <optional>
#include <string>

namespace tessaro {

/// The square or round picture of a Page: the copy in the picture cache, else the one from the web,
/// else the first letter of its name on a tint of the accent.
///
/// It is decoration to assistive technology. A list's row hands it one avatar after the other: each
/// ends the loading of the one before. UI thread only.
class SafeAvatarView : public Gtk::Widget {
public:
    /// @param images, theme  outlive this
    /// @param size           width and height in points
    /// @param nameless       what stands for the letter of an empty name
    SafeAvatarView(
        ImageLoader& images, ThemeManager& theme, double size, AvatarShape shape,
        std::string nameless = "?");
    ~SafeAvatarView() override;

    /// @param id           the key of the cached picture; empty for a picture that has none
    /// @param name         gives the letter
    /// @param fallbackUrl  where the picture is in the web
    void setAvatar(std::string id, std::string name, std::optional<WebPicture> fallbackUrl);

    /// Reads the cached picture again. Happens by itself when the view appears, when its id or its
    /// number of pixels changes and when a picture of that id was written.
    void loadLocalImage();

    /// The cached picture that is shown; empty when there is none.
    const ImageLoader::Picture& localImage() const { return localImage_; }
    /// What is drawn without a picture.
    std::string initial() const;

protected:
    void measure_vfunc(
        Gtk::Orientation orientation, int forSize, int& minimum, int& natural, int& minimumBaseline,
        int& naturalBaseline) const override;
    void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;
    void on_map() override;
    void on_unmap() override;

private:
    static Task<void> load(SafeAvatarView* self, Lifetime::Watch alive, Cancellation loading);
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
    PictureQueue::Answer remoteAnswer_; ///< To be decoded again for another number of pixels.
    ImageLoader::Picture remoteImage_;
    Cancellation loading_;
    ScopedConnection avatarDownloaded_;
    ScopedConnection themeChanged_;
    Lifetime lifetime_;
};

} // namespace tessaro
