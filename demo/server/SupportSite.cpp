#include "SupportSite.h"

#include "Platform/JsonReader.h"

namespace tessaro::demo {

Reply SupportSite::answer(const Request& request) {
    if (request.path == "/api/update/check")
        return Reply::json(
            {{"version", "1.3.0"},
             {"url", request.origin + "/links/update"},
             {"notes", "• Mở hộp thư nhanh hơn\n• Sửa lỗi hiển thị ảnh đại diện của Page"}});
    if (request.path == "/api/support/upload-log" && request.method == "POST")
        return takeUpload(request);
    return Reply::json({{"error", "Không tìm thấy."}}, 404);
}

Reply SupportSite::takeUpload(const Request& request) {
    const auto body = parseJson(request.body);
    if (!body)
        return Reply::json({{"error", "Yêu cầu không phải là JSON."}}, 400);
    JsonReader reader(*body);
    auto upload =
        reader.finish(Upload{reader.text("uuid"), reader.text("filename"), reader.text("content")});
    if (!upload)
        return Reply::json({{"error", "Yêu cầu thiếu dữ liệu."}}, 400);
    uploads_.push_back(std::move(*upload));
    return Reply::json({{"success", true}, {"message", "Đã nhận."}});
}

} // namespace tessaro::demo
