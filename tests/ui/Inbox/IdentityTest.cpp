#include "ui/Inbox/InboxWorld.h"

namespace tessaro::test {
namespace {

/// Compares what a script can see of the browser with the identity in its requests, as sites do.
constexpr const char* look = R"js(<script>
    const hints = navigator.userAgentData;
    const version = /Chrome\/(\d+)/.exec(navigator.userAgent)[1];
    const seen = [
        navigator.platform, navigator.vendor, hints.platform, hints.mobile,
        hints.brands.filter(brand => brand.version === version).length,
        JSON.stringify(hints) === JSON.stringify(
            {brands: hints.brands, mobile: hints.mobile, platform: hints.platform}),
        typeof chrome, typeof requestIdleCallback, typeof navigator.storage.estimate,
        Object.getOwnPropertyNames(navigator).length].join();
    parent.postMessage(seen, '*');
</script>)js";

TEST(Identity, IsTheSameInRequestsInPagesAndInTheirFrames) {
    InboxWorld world;
    world.server.answer(
        InboxWorld::inboxPath,
        InboxWorld::page(
            "<script>const told = []; onmessage = event => told.push(event.data);"
            "</script>" +
            std::string(look)));
    world.otherServer.answer("/frame", InboxWorld::page(look));
    InboxBrowser browser(world);
    EXPECT_EQ(
        world.server.requests().back().headers["user-agent"], browser.ask("navigator.userAgent"));

    constexpr const char* agreed =
        "MacIntel,Google Inc.,macOS,false,2,true,object,function,function,0";
    EXPECT_TRUE(browser.waitUntil("told.length === 1"));
    const std::string other = "http://localhost:" + std::to_string(world.otherServer.port());
    browser.ask(
        "(document.body.append(document.createElement('iframe')), frames[0].location = '" + other +
        "/frame')");
    EXPECT_TRUE(browser.waitUntil("told.length === 2"));
    browser.ask("(window.inner = document.createElement('iframe'), "
                "document.body.append(inner), told.push(inner.contentWindow.navigator.platform))");
    browser.ask(
        "navigator.userAgentData.getHighEntropyValues(['uaFullVersion', 'platformVersion'])"
        ".then(hints => told.push([hints.uaFullVersion, hints.platformVersion, hints.model]))");
    EXPECT_TRUE(browser.waitUntil("told.length === 4"));
    EXPECT_EQ(browser.ask("told[0]"), agreed);
    EXPECT_EQ(browser.ask("told[1]"), agreed) << "In a frame of another site.";
    EXPECT_EQ(browser.ask("told[2]"), "MacIntel") << "In a frame that is empty yet.";
    EXPECT_EQ(browser.ask("told[3]"), "125.0.0.0,10.15.7,");
}

} // namespace
} // namespace tessaro::test
