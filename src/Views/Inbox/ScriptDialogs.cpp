#include "Views/Inbox/ScriptDialogs.h"

#include <utility>

namespace tessaro {

void ScriptDialogs::ask(
    ModalAlert question, std::size_t button, std::function<void(bool)> completion) {
    modals_.show(
        std::move(question),
        [button, completion = std::move(completion)](std::optional<std::size_t> pressed) {
            completion(pressed == button);
        });
}

void ScriptDialogs::runScriptAlert(const std::string& message, std::function<void()> completion) {
    ask({.message = message, .buttons = {"OK"}}, 0,
        [completion = std::move(completion)](bool) { completion(); });
}

void ScriptDialogs::runScriptConfirm(
    const std::string& message, std::function<void(bool)> completion) {
    ask({.message = message, .buttons = {"OK", "Hủy"}}, 0, std::move(completion));
}

void ScriptDialogs::runLeaveConfirm(std::function<void(bool)> completion) {
    ask({.title = "Rời trang này?",
         .message =
             "Trang báo rằng có nội dung chưa được gửi hoặc chưa được lưu, chẳng hạn một câu "
             "trả lời viết dở. Rời trang thì nội dung đó sẽ mất.",
         .buttons = {"Ở lại", "Rời trang"}},
        1, std::move(completion));
}

} // namespace tessaro
