#pragma once

#include "Platform/Lifetime.h"
#include "Views/Pictures/AvatarShape.h"
#include "Views/ScreenContext.h"

#include <gdkmm/texture.h>
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
    /// @param size  width and height in points
    SafeAvatarView(const ScreenContext& context, double size, AvatarShape shape);
    ~SafeAvatarView() override;

    /// @param id           the key of the cached picture
    /// @param name         gives the letter; "?" stands for an empty one
    /// @param fallbackUrl  the picture's address in the web
    void setAvatar(std::string id, std::string name, std::optional<std::string> fallbackUrl);

    /// Reads the cached picture again. Happens by itself when the view appears, when its id
    /// changes and when a picture of that id was written.
    void loadLocalImage();

    /// The cached picture that is shown; empty when there is none.
    const Glib::RefPtr<Gdk::Texture>& localImage() const { return localImage_; }
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

    const ScreenContext& context_;
    const double size_;
    const AvatarShape shape_;
    std::string id_;
    std::string name_;
    std::optional<std::string> fallbackUrl_;
    Glib::RefPtr<Gdk::Texture> localImage_;
    Glib::RefPtr<Gdk::Texture> remoteImage_;
    Cancellation loading_;
    ScopedConnection avatarDownloaded_;
    ScopedConnection themeChanged_;
    Lifetime lifetime_;
};

} // namespace tessaro
