#include "Views/Inbox/LoadingVeil.h"

#include "support/Gtk/TestScreen.h"

#include <gtest/gtest.h>

namespace tessaro::test {

TEST(LoadingVeil, IsSeenAboveAPageOnlyWhenItsLoadTakesLongAndAtOnceWhereNoneIs) {
    TestScreen screen;
    Gtk::Overlay ground;
    Gtk::Label page{"hộp thư"};
    LoadingVeil veil(screen.clock);
    ground.set_child(page);
    ground.add_overlay(veil);
    screen.show(ground);
    screen.settle();
    const auto isSeen = [&] { return veil.get_mapped() && veil.get_opacity() == 1.0; };
    const auto showsPage = [&] {
        return bool(dynamic_cast<Gtk::Picture&>(*veil.get_child()).get_paintable());
    };

    veil.cover(&page);
    EXPECT_TRUE(veil.get_mapped()) << "it takes the clicks";
    EXPECT_FALSE(isSeen());
    screen.clock.advance(std::chrono::milliseconds(100));
    EXPECT_TRUE(isSeen());
    EXPECT_TRUE(showsPage());
    veil.cover(&page);
    EXPECT_TRUE(isSeen()) << "one load follows another";

    veil.lift();
    EXPECT_FALSE(veil.get_mapped());
    EXPECT_FALSE(showsPage()) << "the picture takes memory";

    veil.cover(&page);
    veil.lift();
    veil.cover(nullptr);
    EXPECT_TRUE(isSeen()) << "there is nothing to see below";
    screen.clock.advance(std::chrono::seconds(1));
    EXPECT_FALSE(showsPage()) << "the load before has ended";
}

} // namespace tessaro::test
