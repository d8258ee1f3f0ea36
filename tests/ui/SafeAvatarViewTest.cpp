#include "Views/SafeAvatarView.h"

#include "Platform/FileStore.h"
#include "support/Gtk/Pictures.h"
#include "support/Gtk/ScreenWorld.h"
#include "support/Gtk/WidgetPicture.h"
#include "support/LoopbackServer.h"
#include "support/MainLoop.h"

#include <gtest/gtest.h>
#include <gtkmm/window.h>

#include <atomic>

using namespace tessaro;

namespace {

constexpr Rgba red{1, 0, 0, 1};
constexpr Rgba blue{0, 0, 1, 1};

/// An avatar of 40 points in a shown window, on a server that has a blue picture under "/blue".
class SafeAvatarViewTest : public testing::Test {
protected:
    SafeAvatarViewTest() {
        server_.answer("/blue", test::pngPicture(80, 80, 0x0000FFFF));
        avatar_.set_halign(Gtk::Align::CENTER);
        avatar_.set_valign(Gtk::Align::CENTER);
        window_.set_child(avatar_);
        window_.present();
    }

    std::string address(const std::string& path) const { return server_.origin() + path; }
    void writeLocal(const std::string& id, const std::string& bytes) {
        const auto file = world_.store.localAvatarURL(id);
        ASSERT_TRUE(ensureFolder(file.parent_path()));
        ASSERT_TRUE(replaceFile(file, bytes));
    }
    void announce(std::map<std::string, std::string> userInfo) {
        world_.notifications.post(DataStore::avatarDownloaded, std::move(userInfo));
    }
    bool showsInTheMiddle(const Rgba& color) {
        return test::runUntil(
            [&] { return test::nearlyEqual(test::WidgetPicture(avatar_).at(20, 30), color); });
    }
    bool showsRemote() {
        return test::runUntil([&] { return avatar_.remoteImage() != nullptr; });
    }
    bool showsLocal() {
        return test::runUntil([&] { return avatar_.localImage() != nullptr; });
    }

    test::ScreenWorld world_;
    test::LoopbackServer server_;
    Gtk::Window window_;
    SafeAvatarView avatar_{world_.context, 40, AvatarShape::roundedRectangle(8)};
};

} // namespace

TEST_F(SafeAvatarViewTest, FallsBackToTheFirstPerceivedCharacterInUpperCase) {
    avatar_.setAvatar("1", "a\u0301nh", {});
    EXPECT_EQ(avatar_.initial(), "A\u0301");
    avatar_.setAvatar("1", "\u00DFtra\u00DFe", {});
    EXPECT_EQ(avatar_.initial(), "SS");
    avatar_.setAvatar("1", "", {});
    EXPECT_EQ(avatar_.initial(), "?");
}

TEST_F(SafeAvatarViewTest, DrawsTheInitialOnTheTintAndFollowsThePreset) {
    avatar_.setAvatar("1", ".", {});
    ASSERT_TRUE(test::runUntil([&] { return avatar_.get_mapped(); }));
    const auto showsTint = [&] {
        return test::runUntil([&] {
            const test::WidgetPicture picture(avatar_);
            return test::nearlyEqual(picture.at(20, 4), world_.theme.themePrimaryLight()) &&
                   picture.at(0.5, 0.5).alpha == 0;
        });
    };
    EXPECT_TRUE(showsTint());
    world_.theme.setActivePresetId("crimson");
    EXPECT_TRUE(showsTint());
    world_.theme.setAppearanceMode("dark");
    EXPECT_TRUE(showsTint());
}

TEST_F(SafeAvatarViewTest, PrefersTheCachedPictureToTheOneFromTheWeb) {
    avatar_.setAvatar("1", "Trang", address("/blue"));
    ASSERT_TRUE(showsRemote());
    EXPECT_TRUE(showsInTheMiddle(blue));

    writeLocal("1", test::pngPicture(120, 60, 0xFF0000FF));
    announce({{"id", "1"}});
    ASSERT_TRUE(showsLocal());
    EXPECT_TRUE(showsInTheMiddle(red));
    const int pixels = 40 * avatar_.get_scale_factor();
    EXPECT_EQ(avatar_.localImage()->get_width(), pixels) << "kept at the size drawn";
    EXPECT_EQ(test::WidgetPicture(avatar_).at(0.5, 0.5).alpha, 0) << "cut by the shape";

    std::filesystem::remove(world_.store.localAvatarURL("1"));
    announce({{"id", "1"}});
    EXPECT_TRUE(test::runUntil([&] { return !avatar_.localImage(); }));
    EXPECT_TRUE(showsInTheMiddle(blue));
}

TEST_F(SafeAvatarViewTest, HearsOnlyOfItsOwnPicture) {
    avatar_.setAvatar("1", "Trang", address("/blue"));
    ASSERT_TRUE(showsRemote());
    writeLocal("1", test::pngPicture(40, 40, 0xFF0000FF));
    announce({});
    announce({{"id", "2"}});
    announce({{"name", "1"}});
    // Whatever was begun now would be done before this one, which takes the same road.
    EXPECT_TRUE(test::await(world_.images.loadFile(world_.store.localAvatarURL("1"), 40, {})));
    EXPECT_FALSE(avatar_.localImage());
}

TEST_F(SafeAvatarViewTest, TakesTheWebsPictureWhenTheCachedFileIsNone) {
    writeLocal("1", "<html>");
    avatar_.setAvatar("1", "Trang", address("/blue"));
    EXPECT_TRUE(showsRemote());
    EXPECT_FALSE(avatar_.localImage());
}

TEST_F(SafeAvatarViewTest, NeverShowsThePictureOfTheRowBefore) {
    std::atomic<bool> released = false;
    server_.handle("/slow", [&](test::ServerConnection& connection, const auto&) {
        while (!released && connection.pause(std::chrono::milliseconds(1))) {
        }
        const std::string body = test::pngPicture(80, 80, 0xFF0000FF);
        connection.write(
            "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" +
            body);
    });
    avatar_.setAvatar("1", "Trang", address("/slow"));
    ASSERT_TRUE(test::runUntil([&] { return server_.requestCount("/slow") == 1; }));
    avatar_.setAvatar("2", "Khác", address("/blue"));
    released = true;
    ASSERT_TRUE(showsRemote());
    EXPECT_TRUE(showsInTheMiddle(blue));

    avatar_.setAvatar("3", "Không ảnh", {});
    EXPECT_FALSE(avatar_.remoteImage());
}

TEST_F(SafeAvatarViewTest, ReadsTheFileAgainEachTimeItAppears) {
    avatar_.setAvatar("1", "Trang", {});
    writeLocal("1", test::pngPicture(40, 40, 0xFF0000FF));
    window_.set_visible(false);
    announce({{"id", "1"}});
    window_.set_visible(true);
    EXPECT_TRUE(showsLocal());
}
