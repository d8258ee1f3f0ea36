#include "Views/Pictures/ImageLoader.h"

#include "Platform/FileStore.h"
#include "Platform/Gtk/PictureDecoder.h"
#include "Services/PictureDownloads.h"

#include <glibmm/wrap.h>

#include <system_error>
#include <utility>

namespace tessaro {

namespace {

using TexturePtr = Glib::RefPtr<Gdk::Texture>;

constexpr std::uintmax_t longestFile = 16 * 1024 * 1024;

/// Lives in the coroutine that waits for it; between start and end only the worker touches it.
struct Job {
    std::filesystem::path file; ///< Read in place of `bytes` unless it is empty.
    std::string bytes;
    int pixels;
    Cancellation cancellation;
    ImageLoader::Finish finish; ///< May be empty.
    GObjectPtr<GdkTexture> texture;
};

std::string readPicture(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error) ||
        std::filesystem::file_size(file, error) > longestFile)
        return {};
    return readFile(file).value_or(std::string());
}

void work(GTask* task, gpointer, gpointer data, GCancellable*) noexcept {
    auto* job = static_cast<Job*>(data);
    if (!job->cancellation.isCancelled()) {
        if (!job->file.empty())
            job->bytes = readPicture(job->file);
        job->texture = decodePicture(job->bytes, job->pixels, job->cancellation);
        if (job->texture && job->finish)
            job->texture = job->finish(*job->texture.get());
    }
    g_task_return_boolean(task, TRUE);
}

Task<TexturePtr> decode(Job job) {
    co_await AsyncCall(
        [&job](GAsyncReadyCallback ready, gpointer data) {
            const auto task = GObjectPtr<GTask>::adopt(g_task_new(nullptr, nullptr, ready, data));
            g_task_set_task_data(task.get(), &job, nullptr);
            g_task_run_in_thread(task.get(), &work);
        },
        [](GObject*, GAsyncResult* result) {
            return g_task_propagate_boolean(reinterpret_cast<GTask*>(result), nullptr);
        });
    if (!job.texture || job.cancellation.isCancelled())
        co_return TexturePtr();
    co_return Glib::wrap(job.texture.get(), true);
}

} // namespace

ImageLoader::ImageLoader(HttpOptions options) : http_(std::move(options)) {}

Task<TexturePtr> ImageLoader::loadFile(
    std::filesystem::path file, int pixels, Cancellation cancellation, Finish finish) {
    return decode({std::move(file), {}, pixels, std::move(cancellation), std::move(finish), {}});
}

Task<TexturePtr>
ImageLoader::loadUrl(std::string url, int pixels, Cancellation cancellation, Finish finish) {
    const auto alive = lifetime_.watch();
    const auto place = co_await pictureDownloads().acquire();
    if (!alive || cancellation.isCancelled())
        co_return TexturePtr();
    auto request = http_.send({.url = std::move(url)}, cancellation);
    auto response = co_await std::move(request);
    if (!response || response->status < 200 || response->status > 299 || cancellation.isCancelled())
        co_return TexturePtr();
    auto decoding =
        decode({{}, std::move(response->body), pixels, cancellation, std::move(finish), {}});
    co_return co_await std::move(decoding);
}

} // namespace tessaro
