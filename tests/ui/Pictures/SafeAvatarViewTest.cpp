#include "Views/Pictures/SafeAvatarView.h"

#include "support/Gtk/Pictures.h"
#include "support/Gtk/ScreenWorld.h"
#include "support/Gtk/WidgetPicture.h"
#include "support/LoopbackServer.h"
#include "support/MainLoop.h"

#include <gtest/gtest.h>
#include <gtkmm/window.h>

#include <fstream>

// This include comes last, because its macros would change other headers.
#include <gdk/x11/gdkx.h>

using namespace tessaro;
using namespace tessaro::test;

namespace {

const Gdk::RGBA red{1, 0, 0, 1};
const Gdk::RGBA blue{0, 0, 1, 1};

/// An avatar of 40 points in a shown window, and a server with a blue picture at "/blue".
class SafeAvatarViewTest : public testing::Test {
protected:
    SafeAvatarViewTest() {
        world_.store.saveAccounts({account_});
        server_.answer("/blue", pngPicture(80, 80, 0x0000FFFF));
        avatar_.set_halign(Gtk::Align::CENTER);
        avatar_.set_valign(Gtk::Align::CENTER);
        window_.set_child(avatar_);
        window_.present();
    }

    /// Writes a red picture into the cache, which announces it one turn later.
    void saveRed(const std::string& id) {
        world_.store.saveAvatarData(id, pngPicture(120, 60, 0xFF0000FF));
        world_.clock.advance(std::chrono::milliseconds(0));
    }
    bool shows(const Gdk::RGBA& color) {
        return runUntil([&] { return nearlyEqual(WidgetPicture(avatar_).at(20, 4), color); });
    }
    bool showsTint() { return shows(world_.theme.themePrimaryLight()); }

    ScreenWorld world_;
    LoopbackServer server_;
    const Account account_ = makeAccount();
    const WebPicture blue_{server_.origin() + "/blue", account_.id};
    Gtk::Window window_;
    SafeAvatarView avatar_{world_.images, world_.theme, 40, AvatarShape::roundedRectangle(8)};
};

} // namespace

TEST_F(SafeAvatarViewTest, DrawsTheFirstPerceivedCharacterOnTheTintOfThePreset) {
    avatar_.setAvatar("1", "a\u0301nh", {});
    EXPECT_EQ(avatar_.initial(), "A\u0301");
    avatar_.setAvatar("1", "", {});
    EXPECT_EQ(avatar_.initial(), "?");
    for (const char* preset : {"emerald", "crimson"}) {
        world_.theme.setActivePresetId(preset);
        EXPECT_TRUE(showsTint()) << preset;
    }
}

TEST_F(SafeAvatarViewTest, PrefersItsOwnCachedPictureToTheOneFromTheWeb) {
    avatar_.setAvatar("1", "Trang", blue_);
    EXPECT_TRUE(shows(blue));
    saveRed("1");
    EXPECT_TRUE(shows(red));
    EXPECT_EQ(avatar_.localImage()->get_width(), 40) << "kept at the size drawn";
    EXPECT_EQ(WidgetPicture(avatar_).at(0.5, 0.5).get_alpha(), 0) << "cut by the shape";

    std::ofstream(world_.store.localAvatarURL("1")) << "<html>";
    world_.notifications.post(DataStore::avatarDownloaded, {{"id", "1"}});
    EXPECT_TRUE(shows(blue));
}

TEST_F(SafeAvatarViewTest, NeverShowsThePictureOfTheRowBefore) {
    server_.answer("/slow", pngPicture(80, 80, 0xFF0000FF));
    server_.hold("/slow");
    avatar_.setAvatar("1", "Trang", WebPicture{server_.origin() + "/slow", account_.id});
    ASSERT_TRUE(runUntil([&] { return server_.requestCount("/slow") == 1; }));
    avatar_.setAvatar("2", "Khác", blue_);
    EXPECT_TRUE(shows(blue));
    server_.release();
    ASSERT_TRUE(runUntil([&] { return server_.openConnections() == 0; }));
    EXPECT_TRUE(shows(blue));
    avatar_.setAvatar("3", "Không ảnh", {});
    EXPECT_TRUE(showsTint());
}

TEST_F(SafeAvatarViewTest, IsSharpOnAMonitorOfAnotherScale) {
    avatar_.setAvatar("1", "Trang", {});
    saveRed("1");
    EXPECT_TRUE(shows(red));
    const auto setScale = [](int scale) {
        gdk_x11_display_set_surface_scale(gdk_display_get_default(), scale);
    };
    setScale(2);
    EXPECT_TRUE(runUntil([&] { return avatar_.localImage()->get_width() == 80; }));
    setScale(1);
}

TEST_F(SafeAvatarViewTest, IsNotAskedForWithoutItsAccount) {
    world_.store.saveAccounts({});
    avatar_.setAvatar("1", "Trang", blue_);
    EXPECT_TRUE(showsTint());
    runPending();
    EXPECT_EQ(server_.connectionCount(), 0u);
}

TEST_F(SafeAvatarViewTest, ReadsTheFileAgainEachTimeItAppears) {
    avatar_.setAvatar("1", "Trang", {});
    window_.unset_child();
    saveRed("1");
    window_.set_child(avatar_);
    EXPECT_TRUE(shows(red));
}
