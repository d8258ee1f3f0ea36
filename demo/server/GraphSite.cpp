#include "GraphSite.h"

#include "DemoPages.h"
#include "PagePicture.h"

#include <glib.h>

#include <algorithm>
#include <cstdlib>
#include <string>

namespace tessaro::demo {

namespace {

using nlohmann::json;

constexpr std::string_view version = "/v25.0";
constexpr std::size_t pagesAtOnce = 25;

/// The Graph API's error body; everything it refuses is a 400.
Reply refuse(const std::string& message, const std::string& type, int code) {
    static constexpr std::string_view letters =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-";
    std::string trace = "A";
    while (trace.size() < 23)
        trace += letters[static_cast<std::size_t>(g_random_int_range(0, letters.size()))];
    return Reply::json(
        {{"error", {{"message", message}, {"type", type}, {"code", code}, {"fbtrace_id", trace}}}},
        400);
}

bool wants(const Request& request, std::string_view field) {
    const std::string fields = "," + request.value("fields") + ",";
    return fields.find("," + std::string(field) + ",") != std::string::npos;
}

std::string pictureAddress(const Request& request, const std::string& id, int size) {
    return request.origin + "/cdn/" + id + ".png?size=" + std::to_string(size);
}

json describe(const Request& request, const std::string& id, const std::string& name) {
    json object{{"id", id}, {"name", name}};
    if (wants(request, "picture"))
        object["picture"]["data"] = {
            {"height", 50},
            {"width", 50},
            {"is_silhouette", false},
            {"url", pictureAddress(request, id, 50)}};
    return object;
}

Reply accounts(const Request& request, const TokenOwner& owner) {
    if (owner.page)
        return refuse(
            "(#100) Tried accessing nonexisting field (accounts) on node type (Page)",
            "OAuthException", 100);
    // A cursor is the number of Pages before its part.
    const auto count = owner.managed.size();
    const auto begin = std::min(std::size_t(std::atoi(request.value("after").c_str())), count);
    const auto end = std::min(begin + pagesAtOnce, count);
    json data = json::array();
    for (auto i = begin; i < end; ++i) {
        const DemoPage& page = *owner.managed[i];
        data.push_back(describe(request, page.id, page.name));
        if (wants(request, "access_token"))
            data.back()["access_token"] = page.token;
    }
    json paging{{"cursors", {{"before", std::to_string(begin)}, {"after", std::to_string(end)}}}};
    if (end < count) // Nobody listens there: the program asks by the cursor.
        paging["next"] = "http://127.0.0.1:9" + request.path;
    return Reply::json({{"data", data}, {"paging", paging}});
}

} // namespace

Reply answerGraph(const Request& request) {
    if (!request.path.starts_with(std::string(version) + "/"))
        return refuse("Unknown path components: " + request.path, "OAuthException", 2500);
    const std::string path = request.path.substr(version.size());
    const std::string token = request.value("access_token");
    if (token.empty())
        return refuse(
            "An active access token must be used to query information about the current user.",
            "OAuthException", 2500);
    const TokenOwner* owner = findOwner(token);
    if (!owner)
        return refuse(
            "Invalid OAuth access token - Cannot parse access token", "OAuthException", 190);
    if (path == "/me")
        return Reply::json(describe(request, owner->id, owner->name));
    if (path == "/me/accounts")
        return accounts(request, *owner);
    if (path.ends_with("/picture")) {
        const std::string id = path.substr(1, path.size() - 1 - std::string("/picture").size());
        if (findPage(id))
            return Reply::redirect(
                pictureAddress(request, id, request.value("type") == "large" ? 200 : 100));
    }
    return refuse(
        "Unsupported get request. Object does not exist, cannot be loaded due to missing "
        "permissions, or does not support this operation.",
        "GraphMethodException", 100);
}

Reply answerPicture(const Request& request) {
    const std::string name = request.path.substr(std::string("/cdn/").size());
    const DemoPage* page =
        name.ends_with(".png") ? findPage(name.substr(0, name.size() - 4)) : nullptr;
    if (!page || page->motif == Motif::none)
        return Reply::notFound();
    const int size = std::atoi(request.value("size").c_str());
    return {200, "image/png", drawPicture(page->motif, size > 0 && size <= 400 ? size : 100), {}};
}

} // namespace tessaro::demo
