#pragma once

#include "Platform/GHandle.h"
#include "Platform/NotificationCenter.h"
#include "Services/AccountRoutes.h"
#include "Services/DataStore.h"

#include <gdkmm/texture.h>
#include <glibmm/refptr.h>

#include <functional>
#include <string>

namespace tessaro {

/// A picture's address in the web, and the account by whose way it is asked for.
struct WebPicture {
    std::string url; ///< May hold a token; never shown or logged.
    AccountId account;

    bool operator==(const WebPicture&) const = default;
};

/// The one source of pictures: the cache, and the web. Decodes them to the size at which they are
/// drawn, in the background. Every failure is an empty pointer. UI thread.
class ImageLoader {
public:
    using Picture = Glib::RefPtr<Gdk::Texture>;
    /// Makes of a decoded picture what is drawn. Called in the background.
    using Finish = std::function<GObjectPtr<GdkTexture>(GdkTexture& decoded)>;

    /// All of them outlive this.
    ImageLoader(DataStore& store, NotificationCenter& notifications, AccountRoutes& routes);

    /// The cached picture of that id, scaled to fill `pixels` by `pixels` with its aspect ratio
    /// kept.
    Task<Picture> loadCached(std::string id, int pixels, Cancellation cancellation, Finish finish);
    /// Calls with the id when a picture was written to the cache.
    ScopedConnection observeCache(std::function<void(const std::string& id)> written);

    /// The answer that holds a picture, from whoever else has it now, or asked for by the account's
    /// way. None without the account, which alone knows the way.
    Task<PictureQueue::Answer> fetch(WebPicture picture);
    /// The picture in it, to the size of `loadCached`.
    Task<Picture>
    decode(PictureQueue::Answer answer, int pixels, Cancellation cancellation, Finish finish);

private:
    DataStore& store_;
    NotificationCenter& notifications_;
    AccountRoutes& routes_;
};

} // namespace tessaro
