#include "DemoServer.h"

#include "GraphSite.h"

#include "Platform/Clock.h"

#include <cstdlib>

namespace tessaro::demo {

namespace {

Request readRequest(
    SoupServerMessage* message, const char* path, GHashTable* query, const std::string& origin) {
    Request request{soup_server_message_get_method(message), path, {}, {}, origin};
    if (query) {
        GHashTableIter members;
        gpointer key = nullptr;
        gpointer value = nullptr;
        g_hash_table_iter_init(&members, query);
        while (g_hash_table_iter_next(&members, &key, &value))
            request.query[static_cast<char*>(key)] = static_cast<char*>(value);
    }
    const GBytesPtr body(soup_message_body_flatten(soup_server_message_get_request_body(message)));
    gsize size = 0;
    const auto* data = static_cast<const char*>(g_bytes_get_data(body.get(), &size));
    if (size)
        request.body.assign(data, size);
    return request;
}

void writeReply(SoupServerMessage* message, const Reply& reply) {
    // A demo is looked at again and again: nothing of it may come from a cache.
    soup_message_headers_replace(
        soup_server_message_get_response_headers(message), "Cache-Control", "no-store");
    if (!reply.location.empty()) {
        soup_server_message_set_redirect(message, reply.status, reply.location.c_str());
        return;
    }
    soup_server_message_set_status(message, reply.status, nullptr);
    soup_server_message_set_response(
        message, reply.contentType.c_str(), SOUP_MEMORY_COPY, reply.body.data(), reply.body.size());
}

} // namespace

DemoServer::DemoServer()
    : server_(GObjectPtr<SoupServer>::adopt(
          soup_server_new("server-header", "tessaro-demo", nullptr))) {
    soup_server_add_handler(server_.get(), nullptr, &DemoServer::onRequest, this, nullptr);
}

DemoServer::~DemoServer() {
    soup_server_disconnect(server_.get());
}

Result<void> DemoServer::listen(unsigned port) {
    GErrorSlot error;
    if (!soup_server_listen_local(server_.get(), port, SOUP_SERVER_LISTEN_IPV4_ONLY, error.out()))
        return failure("DemoServer", error->code, error.message());
    GSList* addresses = soup_server_get_uris(server_.get());
    origin_ =
        "http://127.0.0.1:" + std::to_string(g_uri_get_port(static_cast<GUri*>(addresses->data)));
    g_slist_free_full(addresses, reinterpret_cast<GDestroyNotify>(g_uri_unref));
    return {};
}

void DemoServer::onRequest(
    SoupServer*, SoupServerMessage* message, const char* path, GHashTable* query,
    gpointer data) noexcept {
    auto* self = static_cast<DemoServer*>(data);
    Delay delay{0};
    writeReply(message, self->answer(readRequest(message, path, query, self->origin_), delay));
    if (delay.count() > 0) {
        soup_server_message_pause(message);
        const auto held = GObjectPtr<SoupServerMessage>::share(message);
        SystemClock::shared().post(delay, [held] { soup_server_message_unpause(held.get()); });
    }
}

Reply DemoServer::answer(const Request& request, Delay& delay) {
    const auto below = [&](const char* folder) { return request.path.starts_with(folder); };
    if (below("/v")) {
        delay = delays_["graph"];
        return answerGraph(request);
    }
    if (below("/latest/inbox/")) {
        // Only the page itself waits: its parts arrive as one would expect.
        if (request.path == "/latest/inbox/all")
            delay = delays_["inbox"];
        return inbox_.answer(request);
    }
    if (below("/api/")) {
        delay = delays_["support"];
        return support_.answer(request);
    }
    if (below("/cdn/"))
        return answerPicture(request);
    if (below("/links/"))
        return answerLink(request);
    if (below("/demo/"))
        return control(request);
    return request.path == "/" ? answerFrontPage() : Reply::notFound();
}

Reply DemoServer::control(const Request& request) {
    if (request.path == "/demo/uploads") {
        nlohmann::json all = nlohmann::json::array();
        for (const auto& upload : support_.uploads())
            all.push_back(
                {{"uuid", upload.uuid},
                 {"filename", upload.filename},
                 {"content", upload.content}});
        return Reply::json(all);
    }
    if (request.path == "/demo/view")
        return Reply::json(inbox_.view());
    if (request.path == "/demo/delay" && request.method == "POST") {
        delays_[request.value("site")] = Delay(std::atoi(request.value("ms").c_str()));
        return Reply::json({{"success", true}});
    }
    return Reply::notFound();
}

} // namespace tessaro::demo
