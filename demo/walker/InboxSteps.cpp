#include "Steps.h"

namespace tessaro::demo {

namespace {

// The colours of the demo site's own bars.
constexpr unsigned long navBarColor = 0x7a1fa2;
constexpr unsigned long sideNavColor = 0xad1457;
// How much of the page's left edge is cut off, in points.
constexpr int clip = 60;
// What stands left of the inbox: two columns of 56 points and a divider after each.
constexpr int columns = 2 * (56 + 1);
// What the window draws around itself on a display without transparency, at most.
constexpr int borders = 12;

} // namespace

void walkInbox(Walk& walk) {
    walk.step("Open the flower shop's inbox: the site's own navigation is cut off and hidden");
    walk.press(button("Tiệm Hoa Nắng Mai"));
    expectView(
        walk, "its bars are hidden",
        {{"assetId", "100231450000101"},
         {"navBar", false},
         {"sideNav", false},
         {"dark", false},
         {"notifications", "default"},
         {"conversation", "Nguyễn Thu Hà"}});
    walk.seeGone(label("Đang tải hộp thư..."));
    walk.picture("inbox-light");
    const auto window = walk.window();
    if (walk.screen().countPixels(window, navBarColor) > 0 ||
        walk.screen().countPixels(window, sideNavColor) > 0)
        throw WalkFailure("the site's navigation is seen");
    const auto look = walk.look();
    const int width = walk.server().view()["width"];
    const double visible = (width - clip) * look.text;
    const int room = window.width / look.scale - columns;
    if (visible > room + look.text || visible < room - borders)
        throw WalkFailure(
            "the page is " + std::to_string(width) + " points wide in a window of " +
            std::to_string(window.width));

    walk.step("The site's count of what is unread stands at its Page and in the window's title");
    walk.see(button("Tiệm Hoa Nắng Mai, 2 chưa đọc"));
    walk.see({Wanted::Kind::window, "(2) Tessaro"});

    walk.step("The site asks whether it may notify, and is allowed to");
    walk.screen().typeKey("k", control);
    expectView(walk, "the cursor is in its search field", {{"focus", "search"}});
    walk.screen().typeKey("Tab", shift);
    walk.screen().typeKey("Return");
    walk.see(dialog("Cho phép hiện thông báo?"));
    walk.picture("notification-question");
    walk.press(button("Cho phép"));
    expectView(walk, "it may", {{"notifications", "granted"}});

    walk.step("Write an answer in the page: a customer replies");
    clickAnswer(walk);
    for (const char* key : {"c", "h", "a", "o", "Return"})
        walk.screen().typeKey(key);
    expectView(walk, "two messages more", {{"sent", 1}, {"messages", 7}});
    walk.picture("inbox-answered");

    walk.step("Download a file that is attached to a message");
    focusOn(walk, "file");
    walk.screen().typeKey("Return");
    walk.see(button("Mở thư mục"));
    walk.screen().movePointer(
        window.x + window.width / 2, window.y + 20 * look.scale); // No tooltip there.
    walk.picture("inbox-download");
    walk.press(button("Đóng"));
    walk.seeGone(button("Mở thư mục"));

    walk.step("Find in the page: the places are counted");
    walk.screen().typeKey("f", control);
    for (const char* key : {"b", "o"})
        walk.screen().typeKey(key);
    walk.see(label("8 kết quả"));
    walk.screen().typeKey("Return");
    walk.picture("inbox-find");
    walk.screen().typeKey("Escape");
    walk.seeGone(label("8 kết quả"));

    walk.step("Search for a conversation and open it: nothing is unread any more");
    walk.screen().typeKey("k", control);
    expectView(walk, "the cursor is in its search field", {{"focus", "search"}});
    for (const char* key : {"l", "o", "n", "g", "Return"})
        walk.screen().typeKey(key);
    expectView(walk, "the conversation", {{"conversation", "Phạm Đức Long"}});
    walk.seeGone({Wanted::Kind::window, "(2) Tessaro"});

    walk.step("Zoom in and out, and load the page again");
    walk.press(button("Phóng to"));
    walk.expect("a narrower page", [&] { return walk.server().view()["width"] < width; });
    walk.press(button("Thu nhỏ"));
    expectView(walk, "its former width", {{"width", width}});
    walk.press(button("Tải lại trang"));
    expectView(walk, "a fresh start, bars hidden", {{"sent", 0}, {"navBar", false}});
}

} // namespace tessaro::demo
