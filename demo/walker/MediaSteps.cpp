#include "Steps.h"

namespace tessaro::demo {

void walkMedia(Walk& walk) {
    walk.step("Play the video and the voice messages of a customer");
    walk.screen().typeKey("k", control);
    expectView(walk, "the cursor is in its search field", {{"focus", "search"}});
    for (const char* key : {"l", "o", "n", "g", "Return"})
        walk.screen().typeKey(key);
    expectView(walk, "the conversation", {{"conversation", "Phạm Đức Long"}, {"focus", "answer"}});
    for (int played = 1; played <= 3; ++played) {
        if (played == 1)
            focusOn(walk, "play");
        else
            walk.screen().typeKey("Tab", shift);
        expectView(walk, "a button to play is in focus", {{"focus", "play"}});
        walk.screen().typeKey("Return");
        expectView(walk, "it was played to its end", {{"played", played}});
    }
    walk.picture("inbox-media");

    walk.step("Record a voice message: the program asks, and a dot shows that the page records");
    focusOn(walk, "record");
    const int messages = walk.server().view()["messages"];
    walk.screen().typeKey("Return");
    walk.see(dialog("Cho phép dùng micrô?"));
    walk.picture("microphone-question");
    walk.press(button("Cho phép"));
    walk.see(label("Trang đang ghi âm"));
    walk.expect("sound", [&] { return walk.server().view().value("recorded", 0) > 0; });
    walk.picture("inbox-recording");
    walk.screen().typeKey("Return");
    expectView(walk, "one message more", {{"messages", messages + 1}});
}

} // namespace tessaro::demo
