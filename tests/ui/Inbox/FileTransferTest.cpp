#include "ui/Inbox/InboxWorld.h"

#include "Views/DownloadBar.h"
#include "support/Gtk/Widgets.h"
#include "support/ScopedEnvironment.h"

#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include <atomic>
#include <fstream>
#include <iterator>

namespace tessaro::test {
namespace {

namespace fs = std::filesystem;

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Lets the desktop name a download folder for as long as it lives.
class DownloadFolder {
public:
    explicit DownloadFolder(const fs::path& folder) {
        environment_.set("XDG_CONFIG_HOME", config_.path().string());
        std::ofstream(config_ / "user-dirs.dirs") << "XDG_DOWNLOAD_DIR=" << folder << "\n";
        g_reload_user_special_dirs_cache();
    }

private:
    TempFolder config_;
    ScopedEnvironment environment_;
};

class FileTransfer : public testing::Test {
protected:
    FileTransfer() {
        bar.follow(*world.session);
        window.set_default_size(700, 200);
        window.set_child(bar);
        window.present();
    }
    ~FileTransfer() override { mayGoOn = true; }

    /// Half of the file comes at once, the other one when it may.
    void serveInHalves(const std::string& path, bool breaksOff = false) {
        world.server.handle(path, [=, this](ServerConnection& connection, const auto&) {
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
    }
    bool waitForText(const std::string& wanted) {
        return runUntil([&] {
            return std::ranges::any_of(textsOnScreen(bar), [&](const std::string& text) {
                return text.find(wanted) != std::string::npos;
            });
        });
    }
    std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }

    std::atomic<bool> mayGoOn = false;
    std::atomic<bool> wasGivenUp = false;
    TempFolder home;
    const fs::path folder = home / "Tải xuống";
    DownloadFolder named{folder};
    DemoWorld world;
    DownloadBar bar{world.desktop};
    Gtk::Window window;
};

TEST_F(FileTransfer, TellsHowFarADownloadIsAndWhereItLanded) {
    serveInHalves("/file");
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    EXPECT_FALSE(bar.get_visible());

    browser.follow(world.server.origin() + "/file");
    ASSERT_TRUE(waitForText(" / 2.0\u00A0MB ("));
    EXPECT_TRUE(waitForText("Đang tải xuống: "));
    EXPECT_TRUE(find(bar, "Báo giá.pdf"));
    const auto* progress = widgetsOf<Gtk::ProgressBar>(bar).at(0);
    // The engine tells of the last bytes late.
    EXPECT_TRUE(runUntil([&] { return progress->get_fraction() > 0; }));
    EXPECT_LE(progress->get_fraction(), 0.5);
    EXPECT_FALSE(find(bar, "Mở thư mục"));
    mayGoOn = true;
    ASSERT_TRUE(waitForText("Đã lưu vào " + folder.string()));
    EXPECT_EQ(fs::file_size(folder / "Báo giá.pdf"), 2'000'000u);
    EXPECT_EQ(files().size(), 1u);
    EXPECT_EQ(browser.ask("location.pathname"), InboxWorld::inboxPath); // The page stays.

    press(bar, "Mở thư mục");
    EXPECT_EQ(world.desktop.openedFolders, std::vector<fs::path>{folder});
    press(bar, "Đóng");
    EXPECT_FALSE(bar.get_visible());
}

TEST_F(FileTransfer, NeverReplacesAFileByAnotherOne) {
    fs::create_directories(folder);
    std::ofstream(folder / "Mẫu hoa.png") << "mine";
    InboxBrowser browser(world, DemoWorld::flowers);
    ASSERT_TRUE(browser.waitForConversations());
    // All at once, as a page does that hands out a lot of pictures.
    browser.ask("Array(30).fill(document.querySelector('.file').href).forEach(file => "
                "document.body.appendChild(document.createElement('iframe')).src = file)");
    const auto rows = [this] { return widgetsOf<DownloadRow>(bar); };
    ASSERT_TRUE(runUntil([&] { return fs::exists(folder / "Mẫu hoa (30).png"); }));
    ASSERT_TRUE(runUntil([&] { return std::ranges::all_of(rows(), &DownloadRow::hasLanded); }));
    EXPECT_EQ(contentOf(folder / "Mẫu hoa.png"), "mine");
    for (int i = 1; i <= 30; ++i)
        EXPECT_TRUE(
            contentOf(folder / ("Mẫu hoa (" + std::to_string(i) + ").png")).starts_with("\x89PNG"))
            << i;

    browser.ask("document.querySelector('.file').click()");
    EXPECT_TRUE(runUntil([&] { return fs::exists(folder / "Mẫu hoa (31).png"); }));
    EXPECT_EQ(rows().size(), 1u) << "What has landed makes room.";
}

TEST_F(FileTransfer, SaysWhyADownloadFailedUntilThatIsDismissed) {
    mayGoOn = true;
    serveInHalves("/cut", true);
    serveInHalves("/file");
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    browser.follow(world.server.origin() + "/cut");
    ASSERT_TRUE(waitForText("kết nối bị gián đoạn"));
    EXPECT_FALSE(find(bar, "Mở thư mục"));
    EXPECT_EQ(files(), std::vector<std::string>{});

    fs::remove(folder);
    std::ofstream(folder) << "in the way";
    browser.follow(world.server.origin() + "/file");
    ASSERT_TRUE(waitForText("Không lưu được tệp vào " + folder.string()));
    EXPECT_TRUE(waitForText("kết nối bị gián đoạn"));
    press(bar, "Đóng");
    press(bar, "Đóng");
    EXPECT_FALSE(bar.get_visible());
}

TEST_F(FileTransfer, EndsADownloadThatIsCancelled) {
    serveInHalves("/file");
    InboxBrowser browser(world);
    ASSERT_TRUE(browser.waitForLoads(1));
    browser.follow(world.server.origin() + "/file");
    ASSERT_TRUE(waitForText(" / 2.0\u00A0MB ("));
    press(bar, "Hủy tải xuống");
    EXPECT_FALSE(bar.get_visible());
    EXPECT_TRUE(runUntil([&] { return wasGivenUp.load(); }));
    EXPECT_TRUE(runUntil([&] { return files().empty(); }));
}

TEST_F(FileTransfer, UploadsWhatThePersonChoosesAndGetsItBack) {
    const fs::path chosen = home / "ảnh.txt";
    std::ofstream(chosen) << "bytes of a picture";
    InboxBrowser browser(world, DemoWorld::flowers);
    ASSERT_TRUE(browser.waitForConversations());
    browser.ask("document.querySelector('.attach').click()");

    // The engine asks with the toolkit's own dialog.
    const auto chooser = []() -> Gtk::Window* {
        for (auto* each : Gtk::Window::list_toplevels())
            if (GTK_IS_FILE_CHOOSER(each->gobj()) && each->get_mapped())
                return each;
        return nullptr;
    };
    ASSERT_TRUE(runUntil([&] { return chooser() != nullptr; }));
    auto* const dialog = chooser()->gobj();
    const auto file = GObjectPtr<GFile>::adopt(g_file_new_for_path(chosen.c_str()));
    ASSERT_TRUE(gtk_file_chooser_set_file(GTK_FILE_CHOOSER(dialog), file.get(), nullptr));
    ASSERT_TRUE(runUntil([&] {
        const auto picked =
            GObjectPtr<GFile>::adopt(gtk_file_chooser_get_file(GTK_FILE_CHOOSER(dialog)));
        return picked && g_file_equal(picked.get(), file.get());
    }));
    gtk_dialog_response(GTK_DIALOG(dialog), GTK_RESPONSE_ACCEPT);

    ASSERT_TRUE(browser.waitUntil("document.querySelectorAll('.file').length === 2"));
    browser.ask("document.querySelectorAll('.file')[1].click()");
    ASSERT_TRUE(waitForText("Đã lưu vào "));
    EXPECT_EQ(contentOf(folder / "ảnh.txt"), "bytes of a picture");
}

} // namespace
} // namespace tessaro::test
