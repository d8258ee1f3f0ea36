#include "OtherProgram.h"
#include "Steps.h"

#include <fstream>

namespace tessaro::demo {

namespace {

OtherProgram startOther(const Walk& walk, const std::vector<std::string>& words) {
    return {
        walk.places().program.parent_path() / "tessaro-demo-other-program",
        walk.places().pictures / "other-program.txt", words};
}

/// What the page says of a file that it was given.
std::string attached(const std::filesystem::path& file, const std::string& name, const char* type) {
    return name + " " + type + " " + std::to_string(std::filesystem::file_size(file));
}

void expectAttached(const Walk& walk, const std::vector<std::string>& files) {
    expectView(walk, "it was given " + files.back(), {{"attached", files}});
}

void walkPaste(Walk& walk, const std::filesystem::path& picture) {
    walk.step("Copy a picture in another program and paste it into the answer");
    const auto other = startOther(walk, {"copy", "picture", picture});
    walk.expect("the picture to be copied", [&] { return other.isReady(); });
    clickAnswer(walk);
    walk.screen().typeKey("v", control);
    expectAttached(walk, {attached(picture, "image.png", "image/png")});
    walk.picture("inbox-pasted");
}

void walkDrop(Walk& walk, const std::filesystem::path& picture, const std::filesystem::path& list) {
    walk.step("Drag two files from another program and drop them on the conversation");
    const auto other = startOther(walk, {"drag", "files", picture, list});
    walk.expect("the other program's window", [&] { return other.isReady(); });
    walk.expect("something to drag", [&] { return other.grab(walk.screen()); });
    const auto window = walk.window();
    int moves = 0;
    walk.expect("the page to offer a place for them", [&] {
        walk.screen().movePointer(
            window.x + window.width * 2 / 3 + moves++ % 2, window.y + window.height / 2);
        return walk.server().view().value("dropping", false);
    });
    walk.picture("inbox-dropping");
    walk.screen().releaseButton();
    expectAttached(
        walk, {attached(picture, "image.png", "image/png"),
               attached(picture, picture.filename(), "image/png"),
               attached(list, list.filename(), "text/plain")});
    expectView(walk, "the place is gone again", {{"dropping", false}});
    walk.picture("inbox-dropped");
}

void walkLinks(Walk& walk) {
    walk.step("Follow a link to a document that the engine cannot show: it is saved");
    focusOn(walk, "prices");
    walk.screen().typeKey("Return");
    walk.see(button("Mở thư mục"));
    walk.see(label("Bảng giá.docx"));
    walk.press(button("Đóng"));
    walk.seeGone(button("Mở thư mục"));

    walk.step("A link to the mail program goes to the desktop, a new window into the same view");
    focusOn(walk, "mail");
    walk.screen().typeKey("Return");
    walk.expectOpened("mailto:khach@example.org");
    focusOn(walk, "invoice");
    walk.screen().typeKey("Return");
    expectView(walk, "it is the invoice", {{"title", "Hóa đơn – Trang minh họa"}});
    walk.picture("inbox-new-window");
    walk.press(button("Quay về Hộp thư"));
    expectView(walk, "it is the inbox", {{"conversation", "Nguyễn Thu Hà"}});
    walk.seeGone(label("Đang tải hộp thư..."));
}

void walkLeaving(Walk& walk) {
    walk.step("Load the page again with half an answer in it: it asks, and stays");
    clickAnswer(walk);
    walk.screen().typeKey("c");
    expectView(walk, "there is half an answer", {{"draft", "c"}});
    walk.press(button("Tải lại trang"));
    walk.see(dialog("Rời trang này?"));
    walk.picture("inbox-leaving");
    walk.press(button("Ở lại"));
    walk.seeGone(dialog("Rời trang này?"));
    clickAnswer(walk);
    walk.screen().typeKey("BackSpace");
    expectView(walk, "the answer is empty", {{"draft", ""}});
}

} // namespace

void walkFiles(Walk& walk) {
    const auto picture = walk.places().pictures / "màn hình.png";
    const auto list = walk.places().pictures / "đơn hàng.txt";
    if (!walk.screen().writePng(walk.window(), picture))
        throw WalkFailure("no picture could be taken");
    std::ofstream(list) << "Ba bó hoa hồng";
    walkPaste(walk, picture);
    walkDrop(walk, picture, list);
    walkLinks(walk);
    walkLeaving(walk);
}

} // namespace tessaro::demo
