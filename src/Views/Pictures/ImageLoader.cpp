#include "Views/Pictures/ImageLoader.h"

#include "Platform/Background.h"
#include "Platform/FileStore.h"
#include "Platform/Gtk/PictureDecoder.h"
#include "Services/AccountRoutes.h"

#include <glibmm/wrap.h>

#include <system_error>
#include <utility>

namespace tessaro {

namespace {

constexpr std::uintmax_t longestFile = 16 * 1024 * 1024;

std::string readPicture(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error) ||
        std::filesystem::file_size(file, error) > longestFile)
        return {};
    return readFile(file).value_or(std::string());
}

/// Runs `decode` and `finish` in a background thread and wraps the result on the UI thread.
template <typename Decode>
Task<ImageLoader::Picture>
decodeInBackground(Decode decode, Cancellation cancellation, ImageLoader::Finish finish) {
    auto work = [&] {
        auto texture = cancellation.isCancelled() ? nullptr : decode(cancellation);
        return texture ? finish(*texture.get()) : texture;
    };
    auto decoding = inBackground(std::move(work));
    const auto texture = co_await std::move(decoding);
    if (!texture || cancellation.isCancelled())
        co_return ImageLoader::Picture();
    co_return Glib::wrap(texture.get(), true);
}

} // namespace

ImageLoader::ImageLoader(DataStore& store, NotificationCenter& notifications, AccountRoutes& routes)
    : store_(store), notifications_(notifications), routes_(routes) {}

Task<ImageLoader::Picture>
ImageLoader::loadCached(std::string id, int pixels, Cancellation cancellation, Finish finish) {
    return decodeInBackground(
        [file = store_.localAvatarURL(id), pixels](const Cancellation& stop) {
            return decodePicture(readPicture(file), pixels, stop);
        },
        std::move(cancellation), std::move(finish));
}

ScopedConnection ImageLoader::observeCache(std::function<void(const std::string& id)> written) {
    return notifications_.observe(
        DataStore::avatarDownloaded, [written = std::move(written)](const Announcement& posted) {
            if (const auto id = posted.userInfo.find("id"); id != posted.userInfo.end())
                written(id->second);
        });
}

Task<PictureQueue::Answer> ImageLoader::fetch(WebPicture picture) {
    const auto account = store_.account(picture.account);
    if (!account)
        co_return nullptr;
    auto fetching = routes_.of(account)->pictures.fetchOnce(std::move(picture.url));
    const auto answer = co_await std::move(fetching);
    co_return *answer && (*answer)->isSuccess() ? answer : nullptr;
}

Task<ImageLoader::Picture> ImageLoader::decode(
    PictureQueue::Answer answer, int pixels, Cancellation cancellation, Finish finish) {
    return decodeInBackground(
        [answer = std::move(answer), pixels](const Cancellation& stop) {
            return decodePicture((*answer)->body, pixels, stop);
        },
        std::move(cancellation), std::move(finish));
}

} // namespace tessaro
