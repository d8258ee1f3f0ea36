#include "outside/Site.h"

#include "DemoPages.h"
#include "GraphSite.h"
#include "InboxSite.h"

#include <stdexcept>
#include <thread>

namespace tessaro::bench {

namespace {

constexpr auto firstAskedFor = "/latest/inbox/conversations";

} // namespace

Site::Site() {
    const auto serve = [this](demo::Reply reply, const std::string& path) {
        server_.answer(
            path, {static_cast<int>(reply.status),
                   std::move(reply.body),
                   {{"Content-Type", reply.contentType}, {"Cache-Control", "no-store"}}});
    };
    const auto& page = demo::demoPages().front();
    demo::InboxSite inbox;
    for (const std::string path :
         {"/latest/inbox/all", "/latest/inbox/inbox.css", "/latest/inbox/inbox.js", firstAskedFor})
        serve(inbox.answer({"GET", path, {{"asset_id", page.id}}, {}, origin()}), path);
    const auto picture = "/cdn/" + page.id + ".png";
    serve(demo::answerPicture({"GET", picture, {{"size", "100"}}, {}, origin()}), picture);
    server_.answer("/latest/inbox/view", "");
}

std::string Site::inbox(int pageId) const {
    return origin() + "/latest/inbox/all?asset_id=" + std::to_string(pageId);
}

std::size_t Site::runs() const {
    return server_.requestCount(firstAskedFor);
}

void Site::waitForRunAfter(std::size_t count) const {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (runs() <= count) {
        if (std::chrono::steady_clock::now() > deadline)
            throw std::runtime_error("the page was not loaded");
        // Short compared with what is measured, and long enough to leave the processor free.
        std::this_thread::sleep_for(std::chrono::microseconds(300));
    }
}

} // namespace tessaro::bench
