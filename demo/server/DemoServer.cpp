#include "DemoServer.h"

#include "GraphSite.h"

#include <string_view>

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
    SoupMessageHeaders* headers = soup_server_message_get_response_headers(message);
    // A change to the demo must show at once, so nothing may come from a cache.
    soup_message_headers_replace(headers, "Cache-Control", "no-store");
    if (!reply.attachment.empty()) {
        const GHashTablePtr parameters(g_hash_table_new(g_str_hash, g_str_equal));
        char name[] = "filename";
        g_hash_table_insert(parameters.get(), name, const_cast<char*>(reply.attachment.c_str()));
        soup_message_headers_set_content_disposition(headers, "attachment", parameters.get());
    }
    if (!reply.location.empty()) {
        soup_server_message_set_redirect(message, reply.status, reply.location.c_str());
        return;
    }
    soup_server_message_set_status(message, reply.status, nullptr);
    soup_server_message_set_response(
        message, reply.contentType.c_str(), SOUP_MEMORY_COPY, reply.body.data(), reply.body.size());
}

/// The site that answers this path, by the name that hold and release use. Empty when none does.
std::string siteOf(std::string_view path) {
    if (path.starts_with("/v"))
        return "graph";
    // Only the page itself is held back. Its parts are answered at once.
    if (path == "/latest/inbox/all")
        return "inbox";
    return path.starts_with("/api/") ? "support" : "";
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
    writeReply(message, self->answer(readRequest(message, path, query, self->origin_)));
    if (const auto held = self->held_.find(siteOf(path)); held != self->held_.end()) {
        soup_server_message_pause(message);
        held->second.push_back(GObjectPtr<SoupServerMessage>::share(message));
    }
}

void DemoServer::release(const std::string& site) {
    for (const auto& message : held_[site])
        soup_server_message_unpause(message.get());
    held_.erase(site);
}

Reply DemoServer::answer(const Request& request) {
    const auto below = [&](const char* folder) { return request.path.starts_with(folder); };
    if (below("/v"))
        return answerGraph(request);
    if (below("/latest/inbox/"))
        return inbox_.answer(request);
    if (below("/api/"))
        return support_.answer(request);
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
    if (request.path == "/demo/hold" && request.method == "POST") {
        hold(request.value("site"));
        return Reply::json({{"success", true}});
    }
    if (request.path == "/demo/release" && request.method == "POST") {
        release(request.value("site"));
        return Reply::json({{"success", true}});
    }
    return Reply::notFound();
}

} // namespace tessaro::demo
