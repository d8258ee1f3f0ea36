#include "ui/Inbox/InboxWorld.h"

#include "Platform/FileStore.h"
#include "Views/Inbox/DownloadBar.h"
#include "Views/Widgets/InboxCommands.h"
#include "support/Gtk/Keyboard.h"
#include "support/Gtk/Pictures.h"
#include "support/Gtk/Pointer.h"
#include "support/Gtk/Widgets.h"
#include "support/ScopedEnvironment.h"

#include <gmock/gmock.h>

#include <atomic>
#include <fstream>

namespace tessaro::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre, testing::IsEmpty;

/// A browser and its download bar, with a private download folder.
class FileTransfer : public testing::Test {
protected:
    FileTransfer() {
        window.set_default_size(700, 200);
        window.set_child(bar);
        window.present();
    }
    ~FileTransfer() override { mayGoOn = true; }

    fs::path nameDownloadFolder() {
        const fs::path named = home / "Tải xuống";
        std::ofstream(home / "user-dirs.dirs") << "XDG_DOWNLOAD_DIR=" << named << "\n";
        environment.set("XDG_CONFIG_HOME", home.path());
        g_reload_user_special_dirs_cache();
        return named;
    }
    /// Starts a download. Half of the file comes at once, the other half when the test allows it.
    void startDownload(bool breaksOff = false) {
        world.server.handle("/file", [=, this](ServerConnection& connection, const auto&) {
            const std::string half(1'000'000, 'x');
            connection.write(
                "HTTP/1.1 200 OK\r\nContent-Type: application/pdf\r\nConnection: close\r\n"
                "Content-Disposition: attachment; filename*=UTF-8''B%C3%A1o%20gi%C3%A1.pdf\r\n"
                "Content-Length: 2000000\r\n\r\n" +
                half);
            while (!mayGoOn && connection.pause(std::chrono::milliseconds(5))) {
            }
            wasGivenUp = !mayGoOn;
            if (!breaksOff)
                connection.write(half);
        });
        browser.leaveFor(world.server.origin() + "/file");
    }
    bool waitForText(const std::string& wanted) {
        return runUntil([&] { return showsText(bar, wanted); });
    }
    std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder))
            names.push_back(entry.path().filename().string());
        return names;
    }
    std::string contentOf(const std::string& name) { return readFile(folder / name).value_or(""); }

    std::atomic<bool> mayGoOn = false;
    std::atomic<bool> wasGivenUp = false;
    TempFolder home;
    ScopedEnvironment environment;
    const fs::path folder = nameDownloadFolder();
    DemoWorld world;
    DownloadBar bar{world.desktop};
    const ScopedConnection started =
        world.session->observeDownloads([this](auto download) { bar.add(std::move(download)); });
    Gtk::Window window;
    InboxBrowser browser{world, DemoWorld::flowers};
};

TEST_F(FileTransfer, TellsHowFarADownloadIsAndWhereItLanded) {
    EXPECT_FALSE(bar.get_visible());
    startDownload();
    ASSERT_TRUE(waitForText(" / 2.0\u00A0MB ("));
    EXPECT_TRUE(showsText(bar, "Báo giá.pdf"));
    EXPECT_FALSE(find(bar, "Mở thư mục"));
    mayGoOn = true;
    ASSERT_TRUE(waitForText("Đã lưu vào " + folder.string()));
    EXPECT_EQ(contentOf("Báo giá.pdf").size(), 2'000'000u);
    EXPECT_THAT(files(), ElementsAre("Báo giá.pdf"));
    EXPECT_EQ(browser.ask("location.pathname"), InboxWorld::inboxPath) << "The web page stays.";

    press(bar, "Mở thư mục");
    press(bar, "Mở tệp");
    EXPECT_THAT(world.desktop.openedFiles, ElementsAre(folder, folder / "Báo giá.pdf"));
    press(bar, "Đóng");
    EXPECT_FALSE(bar.get_visible());
}

TEST_F(FileTransfer, NeverReplacesAFileByAnotherOne) {
    fs::create_directories(folder);
    std::ofstream(folder / "Mẫu hoa.png") << "mine";
    ASSERT_TRUE(browser.waitForConversations());
    // All at once, as a web page with many pictures does.
    browser.ask("Array(30).fill(document.querySelector('.file').href).forEach(file => "
                "document.body.appendChild(document.createElement('iframe')).src = file)");
    const auto rows = [this] { return widgetsOf<DownloadRow>(bar); };
    ASSERT_TRUE(runUntil([&] { return fs::exists(folder / "Mẫu hoa (30).png"); }));
    ASSERT_TRUE(runUntil([&] { return std::ranges::all_of(rows(), &DownloadRow::hasLanded); }));
    EXPECT_EQ(contentOf("Mẫu hoa.png"), "mine");
    for (int i = 1; i <= 30; ++i)
        EXPECT_TRUE(contentOf("Mẫu hoa (" + std::to_string(i) + ").png").starts_with("\x89PNG"));

    browser.ask("document.querySelector('.file').click()");
    EXPECT_TRUE(runUntil([&] { return fs::exists(folder / "Mẫu hoa (31).png"); }));
    EXPECT_EQ(rows().size(), 1u) << "A download that has ended makes room.";
}

TEST_F(FileTransfer, SavesWhatTheEngineCannotShowUnderItsOwnName) {
    const auto serve = [&](const std::string& path, const std::string& type, int status = 200) {
        world.server.answer(
            path, {.status = status, .body = type, .headers = {{"Content-Type", type}}});
    };
    serve(
        "/B%C3%A1o%20gi%C3%A1.docx",
        "application/vnd.openxmlformats-officedocument.wordprocessingml.document");
    serve("/all.zip", "application/zip");
    serve("/gone.zip", "application/zip", 404);
    serve("/notes", "application/x-of-nobody");
    const std::string origin = world.server.origin();
    browser.leaveFor(origin + "/gone.zip");
    for (const char* path : {"/B%C3%A1o%20gi%C3%A1.docx", "/all.zip", "/notes"}) {
        browser.ask("window.open('" + origin + path + "')");
        ASSERT_TRUE(runUntil([&] { return world.server.requestCount(path) == 1; }));
        ASSERT_TRUE(runUntil([&] { return !browser.webView().isAwaitingPage(); }));
    }
    browser.ask("Object.assign(document.createElement('a'), {download: 'blob.txt', href: "
                "URL.createObjectURL(new Blob(['blob']))}).click()");
    browser.ask("Object.assign(document.createElement('a'), {download: 'data.txt', href: "
                "'data:application/octet-stream,data'}).click()");
    EXPECT_TRUE(runUntil([&] { return fs::exists(folder) && files().size() == 5; }));
    EXPECT_THAT(
        files(),
        testing::UnorderedElementsAre("Báo giá.docx", "all.zip", "notes", "blob.txt", "data.txt"));
    EXPECT_TRUE(runUntil(
        [&] { return contentOf("data.txt") == "data" && contentOf("blob.txt") == "blob"; }));
    EXPECT_EQ(browser.ask("location.pathname"), InboxWorld::inboxPath);
}

TEST_F(FileTransfer, ShowsAPictureAndADocumentOfANewWindowFromWhichHomeLeadsBack) {
    std::string document = "%PDF-1.4\n";
    std::vector<std::size_t> places;
    for (const char* object :
         {"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
          "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 200] >>"}) {
        places.push_back(document.size());
        document += std::to_string(places.size()) + " 0 obj\n" + object + "\nendobj\n";
    }
    const auto table = document.size();
    document += "xref\n0 4\n0000000000 65535 f \n";
    for (const auto place : places) {
        const auto digits = std::to_string(place);
        document += std::string(10 - digits.size(), '0') + digits + " 00000 n \n";
    }
    document +=
        "trailer\n<< /Size 4 /Root 1 0 R >>\nstartxref\n" + std::to_string(table) + "\n%%EOF";
    world.server.answer(
        "/a.pdf", {.body = document, .headers = {{"Content-Type", "application/pdf"}}});
    world.server.answer(
        "/a.png",
        {.body = pngPicture(30, 20, 0xff0000ff), .headers = {{"Content-Type", "image/png"}}});
    for (const auto& [path, isShown] :
         {std::pair("/a.png", "document.images[0]?.naturalWidth === 30"),
          std::pair(
              "/a.pdf", "(() => { try { return !frames[0].document; } catch { return frames.length "
                        "> 0; } })()")}) {
        ASSERT_TRUE(browser.waitForConversations());
        browser.ask("window.open('" + world.server.origin() + path + "')");
        EXPECT_TRUE(browser.waitUntil(isShown))
            << browser.ask("document.documentElement.outerHTML").substr(0, 500);
        world.notifications.post(webViewGoHome);
        EXPECT_TRUE(browser.waitUntil(
            std::string("location.pathname === '") + InboxWorld::inboxPath + "'"));
    }
    EXPECT_FALSE(bar.get_visible());
}

TEST_F(FileTransfer, SaysWhyADownloadFailedUntilThatIsDismissed) {
    mayGoOn = true;
    startDownload(true);
    ASSERT_TRUE(waitForText("kết nối bị gián đoạn"));
    EXPECT_FALSE(find(bar, "Mở thư mục"));
    EXPECT_THAT(files(), IsEmpty());

    fs::remove(folder);
    std::ofstream(folder) << "in the way";
    startDownload();
    ASSERT_TRUE(waitForText("Không lưu được tệp vào " + folder.string()));
    EXPECT_TRUE(showsText(bar, "kết nối bị gián đoạn"));
    press(bar, "Đóng");
    press(bar, "Đóng");
    EXPECT_FALSE(bar.get_visible());
}

TEST_F(FileTransfer, AttachesTheFileThatThePersonChoosesInADialog) {
    const fs::path chosen = home / "bao-gia.txt";
    std::ofstream(chosen) << "hoa hồng 20.000";
    ASSERT_TRUE(browser.waitForConversations());
    browser.window.present();
    ASSERT_TRUE(runUntil([&] { return browser.window.is_active(); }));
    clickOn(browser.webView(), ".attach");
    const auto isChoosing = [] {
        for (auto* each : Gtk::Window::list_toplevels())
            if (GTK_IS_FILE_CHOOSER(each->gobj()))
                return each->is_active();
        return false;
    };
    ASSERT_TRUE(runUntil(isChoosing));
    gdk_clipboard_set_text(gdk_display_get_clipboard(gdk_display_get_default()), chosen.c_str());
    Keyboard::press(GDK_KEY_l, GDK_KEY_Control_L); // Shows the field for a file's name.
    Keyboard::press(GDK_KEY_v, GDK_KEY_Control_L);
    Keyboard::press(GDK_KEY_Return);
    ASSERT_TRUE(browser.waitUntil(
        "document.querySelector('.messages li:last-child').innerText.includes('bao-gia.txt')"));
    browser.ask("fetch('/latest/inbox/files/bao-gia.txt').then(answer => answer.text())"
                ".then(text => window.arrived = text)");
    EXPECT_TRUE(browser.waitUntil("window.arrived === 'hoa hồng 20.000'"));
    EXPECT_FALSE(isChoosing());
}

TEST_F(FileTransfer, EndsADownloadThatIsCancelled) {
    startDownload();
    ASSERT_TRUE(waitForText(" / 2.0\u00A0MB ("));
    press(bar, "Hủy tải xuống");
    EXPECT_FALSE(bar.get_visible());
    EXPECT_TRUE(runUntil([&] { return wasGivenUp.load(); }));
    EXPECT_TRUE(runUntil([&] { return files().empty(); }));
}

} // namespace
} // namespace tessaro::test
