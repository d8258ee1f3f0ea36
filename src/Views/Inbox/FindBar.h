#pragma once

#include "Engine/WebView.h"

#include "Platform/ScopedConnection.h"
#include "Views/Widgets/SymbolButton.h"

#include <gtkmm/box.h>
#include <gtkmm/label.h>
#include <gtkmm/searchentry.h>

namespace tessaro {

/// Finds a text in the page next to it: Return goes to the next place, Shift+Return to the one
/// before, Escape closes the bar. Closed until it is opened.
class FindBar : public Gtk::Box {
public:
    explicit FindBar(std::shared_ptr<WebView> webView);

    /// Shows the bar with the keyboard in it and looks again for the text of the last time.
    void open();
    /// Hides the bar; where the keyboard was in it, it goes to the page. The text stays.
    void close();

private:
    void search();
    void showCount(unsigned count);
    bool onKeyPressed(guint key, guint code, Gdk::ModifierType modifiers);

    const std::shared_ptr<WebView> webView_;
    PageFinder& finder_;
    Gtk::SearchEntry entry_;
    SymbolButton previous_{"chevron.up", 14, "Kết quả trước"};
    SymbolButton next_{"chevron.down", 14, "Kết quả tiếp theo"};
    Gtk::Label count_;
    SymbolButton close_{"xmark", 12, "Đóng tìm kiếm"};
    ScopedConnection counted_;
};

} // namespace tessaro
