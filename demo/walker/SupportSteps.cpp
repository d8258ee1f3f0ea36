#include "Steps.h"

namespace tessaro::demo {

void walkSupport(Walk& walk) {
    walk.step("Send today's log to the support server");
    walk.press(button("Hỗ trợ"));
    walk.see(dialog("Hỗ Trợ Kỹ Thuật"));
    walk.picture("support-alert");
    const auto uploads = walk.server().uploads();
    if (uploads.size() != 1)
        throw WalkFailure("the server has " + std::to_string(uploads.size()) + " logs");
    const auto& upload = uploads[0];
    const auto file = walk.places().data / "logs" / upload["filename"].get<std::string>();
    if (const auto log = readFile(file); log.empty() || upload["content"] != log)
        throw WalkFailure("what was sent is not what stands in " + file.string());

    walk.step("The computer's identifier is on the clipboard");
    const std::string identifier = upload["uuid"];
    if (walk.screen().clipboardText() != identifier)
        throw WalkFailure("the clipboard holds something else");
    walk.press(button("OK"));
    walk.seeGone(dialog("Hỗ Trợ Kỹ Thuật"));
    walk.expectOpened("/links/telegram");

    walk.step("Open a contact link");
    walk.press(button("Website"));
    walk.expectOpened("/links/website");
}

} // namespace tessaro::demo
