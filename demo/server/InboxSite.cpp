#include "InboxSite.h"

#include "DemoPages.h"
#include "PagePicture.h"

#include "Platform/GHandle.h"
#include "Platform/JsonReader.h"

namespace tessaro::demo {

namespace {

/// A file of the folder "site", compiled into the server; empty when there is none.
std::string siteFile(const std::string& name) {
    const GBytesPtr bytes(g_resources_lookup_data(
        ("/com/vandel/Tessaro/demo/" + name).c_str(), G_RESOURCE_LOOKUP_FLAGS_NONE, nullptr));
    if (!bytes)
        return {};
    gsize size = 0;
    const auto* data = static_cast<const char*>(g_bytes_get_data(bytes.get(), &size));
    return {data, size};
}

struct SiteFile {
    const char* name;
    const char* contentType;
};

/// By the last part of the address.
const std::map<std::string, SiteFile> siteFiles{
    {"all", {"inbox.html", "text/html; charset=utf-8"}},
    {"inbox.css", {"inbox.css", "text/css; charset=utf-8"}},
    {"inbox.js", {"inbox.js", "text/javascript; charset=utf-8"}},
    {"video.mp4", {"video.mp4", "video/mp4"}},
    {"voice.m4a", {"voice.m4a", "audio/mp4"}},
    {"voice.ogg", {"voice.ogg", "audio/ogg"}},
};

/// The plain page with this heading and sentence. Both are the server's own texts, so nothing is
/// escaped.
Reply plainPage(const std::string& title, const std::string& text) {
    std::string page = siteFile("plain.html");
    for (const auto& [mark, value] : {std::pair{"{{title}}", title}, std::pair{"{{text}}", text}})
        for (auto at = page.find(mark); at != std::string::npos; at = page.find(mark))
            page.replace(at, std::string_view(mark).size(), value);
    return Reply::html(page);
}

Reply conversations(const std::string& pageId) {
    const DemoPage* page = findPage(pageId);
    const auto all = parseJson(siteFile("conversations.json"));
    if (!page || !all || !all->contains(pageId))
        return Reply::json({{"error", "Không có Page này."}}, 404);
    return Reply::json(
        {{"name", page->name},
         {"picture", page->motif == Motif::none ? "" : "/cdn/" + page->id + ".png"},
         {"conversations", all->at(pageId)}});
}

constexpr const char* filesFolder = "files/";

} // namespace

InboxSite::InboxSite() : files_{{"Mẫu hoa.png", drawPicture(Motif::flower, 600)}} {}

Reply InboxSite::answer(const Request& request) {
    const std::string name = request.path.substr(std::string("/latest/inbox/").size());
    if (const auto found = siteFiles.find(name); found != siteFiles.end())
        return {200, found->second.contentType, siteFile(found->second.name), {}};
    if (name == "conversations")
        return conversations(request.value("asset_id"));
    if (name == "help")
        return plainPage(
            "Trợ giúp về hộp thư",
            "Chọn một cuộc trò chuyện ở bên trái, viết câu trả lời rồi nhấn Enter.");
    if (name == "invoice")
        return plainPage("Hóa đơn", "Ba bó hoa hồng, giao ngày mai: 600.000 đồng.");
    if (name == "Bảng giá.docx") // Without a word that it is to be saved.
        return {
            200,
            "application/vnd.openxmlformats-officedocument.wordprocessingml.document",
            "Hoa hồng: 20.000 đồng",
            {}};
    if (name == "view" && request.method == "POST") {
        if (auto view = parseJson(request.body))
            view_ = std::move(*view);
        return Reply::json({{"success", true}});
    }
    if (name.starts_with(filesFolder))
        return answerFile(request, name.substr(std::string_view(filesFolder).size()));
    return Reply::notFound();
}

Reply InboxSite::answerFile(const Request& request, const std::string& name) {
    if (request.method == "POST") {
        files_[name] = request.body;
        return Reply::json({{"success", true}});
    }
    const auto found = files_.find(name);
    if (found == files_.end())
        return Reply::notFound();
    return {200, "application/octet-stream", found->second, {}, name};
}

Reply answerLink(const Request& request) {
    static const std::map<std::string, std::string> names{
        {"messenger", "Messenger"}, {"telegram", "Telegram"}, {"zalo", "Zalo"},
        {"website", "Website"},     {"donate", "Donate"},     {"update", "Bản cập nhật"},
    };
    const auto found = names.find(request.path.substr(std::string("/links/").size()));
    if (found == names.end())
        return Reply::notFound();
    return plainPage(found->second, "Nơi mà liên kết này của chương trình sẽ dẫn tới.");
}

Reply answerFrontPage() {
    return plainPage(
        "Máy chủ minh họa",
        "Đóng vai Graph API, trang hộp thư và máy chủ hỗ trợ. Các token để thử: "
        "<code>demo-user-token</code>, <code>demo-chain-token</code>, "
        "<code>demo-single-token</code>, "
        "<code>demo-page-token</code>.");
}

} // namespace tessaro::demo
