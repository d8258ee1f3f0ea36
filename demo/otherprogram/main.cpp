#include <gdkmm/clipboard.h>
#include <gdkmm/contentprovider.h>
#include <giomm/contenttype.h>
#include <giomm/file.h>
#include <glibmm/fileutils.h>
#include <glibmm/main.h>
#include <gtk/gtk.h>
#include <gtkmm/dragsource.h>
#include <gtkmm/init.h>
#include <gtkmm/label.h>
#include <gtkmm/window.h>

#include <iostream>
#include <string>
#include <vector>

namespace {

using Offer = Glib::RefPtr<Gdk::ContentProvider>;

Offer offerBytes(const Glib::ustring& type, const std::string& bytes) {
    return Gdk::ContentProvider::create(type, Glib::Bytes::create(bytes.data(), bytes.size()));
}

/// The files, as a file manager offers them.
Offer offerFiles(const std::vector<std::string>& files) {
    std::string list;
    for (const auto& file : files)
        list += Gio::File::create_for_path(file)->get_uri() + "\r\n";
    return offerBytes("text/uri-list", list);
}

/// A picture, as a picture viewer offers it.
Offer offerPicture(const std::string& file) {
    const std::string bytes = Glib::file_get_contents(file);
    bool isUncertain = false;
    return offerBytes(
        Gio::content_type_get_mime_type(Gio::content_type_guess(file, bytes, isUncertain)), bytes);
}

/// A link, as a browser offers it.
Offer offerLink(const std::string& address) {
    return Gdk::ContentProvider::create(
        {offerBytes("text/uri-list", address + "\r\n"),
         offerBytes("text/plain;charset=utf-8", address)});
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv, argv + argc);
    if (argc < 4) {
        std::cerr
            << "usage: tessaro-demo-other-program copy|drag files|picture|link WHAT…\n\n"
               "Stands in for another program on the desktop. It puts files, a picture or a\n"
               "link on the clipboard, or shows a window from which they can be dragged, says\n"
               "\"ready\", and runs until it is ended.\n";
        return 2;
    }
    gtk_init();
    Gtk::init_gtkmm_internals();
    const Offer offer = words[2] == "files"     ? offerFiles({words.begin() + 3, words.end()})
                        : words[2] == "picture" ? offerPicture(words[3])
                                                : offerLink(words[3]);
    const auto tell = [] { std::cout << "ready" << std::endl; };
    Gtk::Window window;
    Gtk::Label handle("Kéo từ đây");
    if (words[1] == "copy") {
        Gdk::Display::get_default()->get_clipboard()->set_content(offer);
        Gdk::Display::get_default()->sync();
        tell();
    } else {
        const auto source = Gtk::DragSource::create();
        source->set_content(offer);
        source->set_actions(Gdk::DragAction::COPY);
        handle.add_controller(source);
        window.set_title("Chương trình khác");
        window.set_default_size(200, 160);
        window.set_child(handle);
        // Once it has been drawn where the window manager has put it.
        handle.add_tick_callback([&, frames = 0](const auto&) mutable {
            const bool isReady = window.is_active() && ++frames == 3;
            if (isReady)
                tell();
            return !isReady;
        });
        window.present();
    }
    Glib::MainLoop::create()->run();
}
