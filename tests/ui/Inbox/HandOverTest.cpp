#include "OtherProgram.h"
#include "ui/Inbox/InboxWorld.h"

#include "Views/Widgets/InboxCommands.h"
#include "support/Gtk/Keyboard.h"
#include "support/Gtk/Pictures.h"
#include "support/Gtk/Pointer.h"
#include "support/Gtk/Widgets.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tessaro::test {
namespace {

using namespace std::chrono_literals;
using demo::OtherProgram;

/// A page whose field takes files, and a frame of another site with the same. Both tell the page
/// what happens there; of a file "paste|drop HOST ELEMENT NAME TYPE SIZE CHECKSUM".
constexpr const char* site = R"html(<title>inbox</title><script>
    const tell = (...what) => top.postMessage([...what].join(' '), '*');
    const told = [];
    addEventListener('message', event => {
        told.push(event.data);
        document.title = event.data;
    });
    for (const type of ['paste', 'dragenter', 'dragover', 'dragleave', 'drop'])
        addEventListener(type, event => {
            const data = event.clipboardData ?? event.dataTransfer;
            // For a drag what lies there is asked for, which shows that the place is right.
            const element = type === 'paste' ? event.target
                : document.elementFromPoint(event.clientX, event.clientY);
            const place = location.hostname + ' ' + element?.closest('[id]')?.id;
            if (!data.types.includes('Files'))
                return tell(type, place, 'other', event.isTrusted,
                    type === 'drop' ? data.getData('text/uri-list') : '');
            if (type !== 'paste' && element?.id !== 'field')
                return tell(type, place);
            event.preventDefault();
            if (type !== 'paste' && type !== 'drop')
                return tell(type, place);
            [...data.files].forEach(async file => {
                let sum = 0;
                for (const each of new Uint8Array(await file.arrayBuffer()))
                    sum = (Math.imul(sum, 31) + each) >>> 0;
                tell(type, place, file.name, file.type, file.size, sum);
            });
        });
    </script><body id=body style="margin: 0; height: 100vh"><div id=field contenteditable
        style="position: absolute; left: 100px; top: 20px; width: 200px; height: 60px"></div>
    <p id=own draggable=true ondragstart="event.dataTransfer.effectAllowed = 'copy', event.dataTransfer.setData('text/uri-list', this.title)"
        style="position: absolute; left: 400px; top: 20px; width: 90px; height: 60px">x</p>)html";

std::string described(const std::string& name, const std::string& type, const std::string& bytes) {
    std::uint32_t sum = 0;
    for (const char byte : bytes)
        sum = sum * 31 + static_cast<unsigned char>(byte);
    return name + " " + type + " " + std::to_string(bytes.size()) + " " + std::to_string(sum);
}

class HandOver : public testing::Test {
protected:
    HandOver() {
        other.answer("/frame", InboxWorld::page(site));
        const std::string frame = "http://localhost:" + std::to_string(other.port()) + "/frame";
        world.server.answer(
            InboxWorld::inboxPath, InboxWorld::page(
                                       site + ("<iframe src='" + frame +
                                               "' style='position: absolute; left: 100px; "
                                               "top: 100px; width: 300px; height: 120px; "
                                               "border: 0'></iframe>")));
        browser.emplace(world);
        browser->window.present();
        EXPECT_TRUE(runUntil([&] { return browser->window.is_active(); }));
    }

    std::string save(const std::string& name, const std::string& bytes) {
        std::ofstream(folder / name, std::ios::binary) << bytes;
        return folder / name;
    }
    /// Lets another program offer this; see its usage.
    void offer(const std::vector<std::string>& words) {
        program.reset();
        ASSERT_TRUE(runUntil([&] { return !screen.findWindow(OtherProgram::windowTitle); }));
        program.emplace(TESSARO_OTHER_PROGRAM, folder / "output", words);
        ASSERT_TRUE(runUntil([&] { return program->isReady(); }));
    }
    /// The same for the clipboard, which then has that type.
    void offerCopy(
        const std::string& what, const std::vector<std::string>& files, const std::string& type) {
        std::vector<std::string> words{"copy", what};
        words.insert(words.end(), files.begin(), files.end());
        offer(words);
        ASSERT_TRUE(runUntil([&] {
            return gdk_content_formats_contain_mime_type(
                gdk_clipboard_get_formats(clipboard), type.c_str());
        }));
    }
    void clickField(bool inFrame = false) {
        Pointer::click(browser->webView().widget(), 250, inFrame ? 150 : 50);
        EXPECT_TRUE(browser->waitUntil(
            std::string("document.activeElement === ") +
            (inFrame ? "document.querySelector('iframe')" : "field")));
    }
    void paste() { Keyboard::press(GDK_KEY_v, GDK_KEY_Control_L); }
    void pasteByMenu() {
        const auto place = placeOnDisplay(browser->webView().widget());
        screen.click(place.get_x() + 250, place.get_y() + 50, 3);
        Gtk::Widget* entry = nullptr;
        ASSERT_TRUE(runUntil(
            [&] { return (entry = find<Gtk::Widget>(browser->webView().widget(), "Paste")); }));
        entry->get_parent()->activate();
    }
    /// Moves what is held to that point of the page, as it lies there at the present zoom.
    void dragTo(double x, double y, const std::string& expected) {
        const auto place = placeOnDisplay(browser->webView().widget());
        const double zoom = browser->webView().pageZoom();
        int moves = 0;
        EXPECT_TRUE(runUntil([&] {
            screen.movePointer(
                place.get_x() + int(x * zoom) + moves++ % 2, place.get_y() + int(y * zoom));
            return wasTold(expected);
        })) << browser->ask("told.join('\\n')");
    }
    bool wasTold(const std::string& what) {
        return browser->ask("told.includes('" + what + "')") == "true";
    }
    void expectTold(const std::string& what) {
        EXPECT_TRUE(runUntil([&] { return wasTold(what); })) << what << "\namong\n"
                                                             << browser->ask("told.join('\\n')");
    }
    void forget() { browser->ask("told.length = 0"); }

    TempFolder folder;
    InboxWorld world;
    LoopbackServer other;
    std::optional<InboxBrowser> browser;
    std::optional<OtherProgram> program;
    demo::Screen screen;
    GdkClipboard* const clipboard = gdk_display_get_clipboard(gdk_display_get_default());
};

TEST_F(HandOver, PastesPicturesAndCopiedFilesIntoThePageAndItsFrames) {
    const std::string png = pngPicture(20, 20, 0xff0000ff);
    const std::string picture = save("a.png", png);
    const std::string report = save("Báo giá.docx", std::string("a\0b\xff", 4));
    const std::string docx = described(
        "Báo giá.docx", "application/vnd.openxmlformats-officedocument.wordprocessingml.document",
        std::string("a\0b\xff", 4));
    offerCopy("picture", {picture}, "image/png");
    clickField();
    paste();
    expectTold("paste 127.0.0.1 field " + described("image.png", "image/png", png));
    forget();
    pasteByMenu();
    expectTold("paste 127.0.0.1 field " + described("image.png", "image/png", png));
    for (const std::string type : {"jpeg", "webp"}) {
        const std::string bytes = "not really a " + type;
        offerCopy("picture", {save("a." + type, bytes)}, "image/" + type);
        paste();
        expectTold("paste 127.0.0.1 field " + described("image." + type, "image/" + type, bytes));
    }

    offerCopy(
        "files", {report, folder.path(), picture, folder / "gone", save("empty.txt", "")},
        "text/uri-list");
    clickField(true);
    Keyboard::press(GDK_KEY_Insert, GDK_KEY_Shift_L);
    expectTold("paste localhost field " + docx);
    expectTold("paste localhost field " + described("a.png", "image/png", png));
    expectTold("paste localhost field " + described("empty.txt", "text/plain", ""));
    EXPECT_EQ(browser->ask("told.filter(each => each.includes('localhost')).length"), "3");
}

TEST_F(HandOver, HandsOverMuchWithoutHoldingUpTheWindow) {
    std::string video(25 << 20, 'x');
    for (std::size_t i = 0; i < video.size(); i += 7)
        video[i] = static_cast<char>(i);
    offerCopy("files", {save("video.mp4", video)}, "text/uri-list");
    clickField();
    const std::string expected =
        "paste 127.0.0.1 field " + described("video.mp4", "video/mp4", video);
    paste();
    EXPECT_LT(longestTurnUntil([&] { return browser->webView().title() == expected; }), 200ms);
}

TEST_F(HandOver, LeavesTextAndWhatPagesCopyAsItIs) {
    const auto bytes = [](const char* type, const std::string& text) {
        const GBytesPtr content(g_bytes_new(text.data(), text.size()));
        return gdk_content_provider_new_for_bytes(type, content.get());
    };
    clickField();
    GdkContentProvider* both[] = {
        gdk_content_provider_new_typed(G_TYPE_STRING, "chào"), bytes("text/html", "<b>chào</b>")};
    const auto marked =
        GObjectPtr<GdkContentProvider>::adopt(gdk_content_provider_new_union(both, 2));
    gdk_clipboard_set_content(clipboard, marked.get());
    paste();
    expectTold("paste 127.0.0.1 field other true ");
    EXPECT_TRUE(browser->waitUntil("field.querySelector('b')?.innerText === 'chào'"));

    browser->ask("field.innerHTML = ''");
    clickField();
    const auto html = GObjectPtr<GdkContentProvider>::adopt(
        bytes("text/html", "<i>nhé</i><img src=x onerror='owned = true'>"));
    gdk_clipboard_set_content(clipboard, html.get());
    paste();
    EXPECT_TRUE(browser->waitUntil("field.querySelector('i')?.innerText === 'nhé'"));
    EXPECT_EQ(browser->ask("window.owned"), "undefined");
}

TEST_F(HandOver, GivesAPageNothingThatThePersonDidNotPasteIntoIt) {
    const std::string secret = save("secret", "secret");
    offerCopy("files", {secret}, "text/uri-list");
    EXPECT_EQ(browser->ask("window.webkit?.messageHandlers?.files"), "undefined");
    browser->ask("onclick = () => { document.execCommand('paste');"
                 " field.dispatchEvent(new ClipboardEvent('paste', {bubbles: true}));"
                 " field.dispatchEvent(new DragEvent('drop', {bubbles: true, dataTransfer: new "
                 "DataTransfer})); tell('clicked'); }");
    clickField();
    expectTold("clicked");
    // It names a file when the person copies, and when the person drags.
    browser->ask(
        "oncopy = event => { event.preventDefault(); tell('copied');"
        " event.clipboardData.setData('text/uri-list', 'file://" +
        secret + "'); }");
    browser->ask("own.title = 'file://" + secret + "'");
    Keyboard::press(GDK_KEY_c, GDK_KEY_Control_L);
    expectTold("copied");
    paste();
    expectTold("paste 127.0.0.1 field other false ");
    forget();
    const auto place = placeOnDisplay(browser->webView().widget());
    screen.movePointer(place.get_x() + 440, place.get_y() + 50);
    screen.pressButton();
    dragTo(250, 50, "dragover 127.0.0.1 field other true ");
    screen.releaseButton();
    expectTold("drop 127.0.0.1 field other true ");
    EXPECT_EQ(browser->ask("told.filter(each => each.includes(' secret text/')).length"), "0");
}

TEST_F(HandOver, DropsFilesWhereTheyFallAtEachZoomAndNothingElsewhere) {
    const std::string png = pngPicture(20, 20, 0xff0000ff);
    offer({"drag", "files", save("a.png", png), save("b.txt", "b")});
    const auto grab = [&] {
        forget();
        ASSERT_TRUE(runUntil([&] { return program->grab(screen); }));
    };
    for (const double zoom : {0.5, 1.0, 1.7}) {
        SCOPED_TRACE(zoom);
        browser->webView().setPageZoom(zoom);
        for (const std::string host : {"127.0.0.1", "localhost"}) {
            grab();
            dragTo(250, host == "localhost" ? 150 : 50, "dragover " + host + " field");
            screen.releaseButton();
            expectTold("drop " + host + " field " + described("a.png", "image/png", png));
            expectTold("drop " + host + " field " + described("b.txt", "text/plain", "b"));
        }
    }
    browser->webView().setPageZoom(1);
    grab();
    dragTo(440, 150, "dragover 127.0.0.1 body");
    screen.releaseButton();
    expectTold("dragleave 127.0.0.1 body");
    EXPECT_EQ(browser->ask("told.filter(each => each.startsWith('drop')).length"), "0");
    EXPECT_EQ(browser->ask("location.pathname"), InboxWorld::inboxPath);

    offer({"drag", "link", "https://example.org/x"});
    grab();
    dragTo(250, 50, "dragover 127.0.0.1 field other true ");
    screen.releaseButton();
    expectTold("drop 127.0.0.1 field other true https://example.org/x");
}

} // namespace
} // namespace tessaro::test
