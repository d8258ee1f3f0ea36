#pragma once

#include "Platform/Cancellation.h"
#include "Platform/GHandle.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Task.h"
#include "Services/DataStore.h"
#include "Services/PictureQueue.h"

#include <gdkmm/texture.h>
#include <glibmm/refptr.h>

#include <functional>
#include <string>

namespace tessaro {

class AccountRoutes;

/// The web address of a picture, and the account through whose proxy it is fetched.
struct WebPicture {
    std::string url; ///< May contain a token, so it is never shown or logged.
    AccountId account;

    bool operator==(const WebPicture&) const = default;
};

/// The only source of pictures. It reads them from the cache or fetches them from the web, and
/// decodes them in the background to the size at which they are drawn. Every failure gives an empty
/// pointer. UI thread only.
class ImageLoader {
public:
    using Picture = Glib::RefPtr<Gdk::Texture>;
    /// Turns a decoded picture into the one that is drawn. Called in a background thread.
    using Finish = std::function<GObjectPtr<GdkTexture>(GdkTexture& decoded)>;

    /// All arguments outlive this.
    ImageLoader(DataStore& store, NotificationCenter& notifications, AccountRoutes& routes);

    /// Loads the cached picture of that id.
    /// @param pixels  side of the square that the picture fills with its aspect ratio kept
    Task<Picture> loadCached(std::string id, int pixels, Cancellation cancellation, Finish finish);
    /// Calls `written` with the id of each picture that is written to the cache.
    ScopedConnection observeCache(std::function<void(const std::string& id)> written);

    /// Fetches a picture through the account's proxy. Requests for the same picture at the same
    /// time share one answer. Empty when the account no longer exists, since its proxy is unknown
    /// then.
    Task<PictureQueue::Answer> fetch(WebPicture picture);
    /// Decodes the picture in the answer; `pixels` is as in loadCached().
    Task<Picture>
    decode(PictureQueue::Answer answer, int pixels, Cancellation cancellation, Finish finish);

private:
    DataStore& store_;
    NotificationCenter& notifications_;
    AccountRoutes& routes_;
};

} // namespace tessaro
