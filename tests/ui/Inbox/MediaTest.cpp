#include "ui/Inbox/InboxWorld.h"

#include <gmock/gmock.h>

namespace tessaro::test {
namespace {

using testing::HasSubstr;

TEST(Media, OfCustomersIsPlayedFromFilesAndFromMediaSources) {
    DemoWorld world;
    InboxBrowser browser(world);
    const auto plays = [&](const std::string& source) {
        browser.ask(
            "(window.media = document.createElement('video'), media.src = " + source +
            ", document.body.append(media), media.play().catch(() => {}), 1)");
        EXPECT_TRUE(browser.waitUntil("media.ended || !!media.error")) << source;
        return browser.ask(
            "[media.error?.message ?? 'played', media.currentTime > 1.9, media.videoWidth]");
    };
    EXPECT_EQ(plays("'/latest/inbox/video.mp4'"), "played,true,320");
    EXPECT_EQ(plays("'/latest/inbox/voice.m4a'"), "played,true,0");
    EXPECT_EQ(plays("'/latest/inbox/voice.ogg'"), "played,true,0");

    constexpr const char* type = R"('video/mp4; codecs="avc1.42E01E, mp4a.40.2"')";
    EXPECT_EQ(browser.ask("MediaSource.isTypeSupported(" + std::string(type) + ")"), "true");
    browser.ask(
        "(window.pieces = new MediaSource(), pieces.onsourceopen = async () => {"
        "    const buffer = pieces.addSourceBuffer(" +
        std::string(type) +
        ");"
        "    buffer.onupdateend = () => pieces.endOfStream();"
        "    buffer.appendBuffer(await (await fetch('/latest/inbox/video.mp4')).arrayBuffer());"
        "}, 1)");
    EXPECT_EQ(plays("URL.createObjectURL(pieces)"), "played,true,320");

    const std::string decodable = loadedEngine()->decodableMedia();
    for (const char* codec : {"H.264", "AAC", "Opus", "MP3", "VP9"})
        EXPECT_THAT(decodable, HasSubstr(codec));
}

} // namespace
} // namespace tessaro::test
