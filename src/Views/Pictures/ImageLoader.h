#pragma once

#include "Platform/Cancellation.h"
#include "Platform/GHandle.h"
#include "Platform/HttpClient.h"
#include "Platform/Lifetime.h"
#include "Platform/Task.h"

#include <gdkmm/texture.h>
#include <glibmm/refptr.h>

#include <filesystem>
#include <functional>
#include <string>

namespace tessaro {

/// Turns pictures into textures of the size at which they are drawn, off the drawing path. A
/// picture that claims more than 4096 by 4096 pixels, or that is none, is refused before it is
/// decoded. Every failure is an empty pointer. UI thread only.
class ImageLoader {
public:
    /// Makes of a decoded picture what is drawn, in the background.
    using Finish = std::function<GObjectPtr<GdkTexture>(GdkTexture& decoded)>;

    /// @param options  how remote pictures are carried, six at a time in the whole program
    explicit ImageLoader(HttpOptions options = {});

    /// A stored picture, read and decoded in the background, scaled to fill `pixels` by `pixels`
    /// with its aspect ratio kept.
    Task<Glib::RefPtr<Gdk::Texture>>
    loadFile(std::filesystem::path file, int pixels, Cancellation cancellation, Finish finish = {});
    /// A picture from the web. The address may hold a token and is never shown or logged.
    Task<Glib::RefPtr<Gdk::Texture>>
    loadUrl(std::string url, int pixels, Cancellation cancellation, Finish finish = {});

private:
    HttpClient http_;
    Lifetime lifetime_;
};

} // namespace tessaro
