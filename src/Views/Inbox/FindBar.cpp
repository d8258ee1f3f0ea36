#include "Views/Inbox/FindBar.h"

#include "Views/Widgets/Accessible.h"
#include "Views/Widgets/Keys.h"
#include "Views/Widgets/Layout.h"

namespace tessaro {

FindBar::FindBar(std::shared_ptr<WebView> webView)
    : webView_(std::move(webView)), finder_(webView_->finder()) {
    add_css_class("find-bar");
    set_spacing(4);
    set_visible(false);

    constexpr const char* name = "Tìm trong trang";
    entry_.set_property("placeholder-text", Glib::ustring(name));
    accessible::setName(entry_, name);
    entry_.set_size_request(260);
    entry_.signal_changed().connect([this] { search(); });
    count_.set_xalign(0);
    count_.set_hexpand();
    count_.set_css_classes({"points-12", "secondary-text"});
    previous_.signal_clicked().connect([this] { finder_.findPrevious(); });
    next_.signal_clicked().connect([this] { finder_.findNext(); });
    close_.signal_clicked().connect([this] { close(); });
    appendAll(*this, entry_, previous_, next_, count_, close_);

    // Before the entry, which has uses of its own for some of the keys.
    addKeys(*this, Gtk::PropagationPhase::CAPTURE, sigc::mem_fun(*this, &FindBar::onKeyPressed));
    counted_ = finder_.signalCounted().connect([this](unsigned count) { showCount(count); });
}

void FindBar::open() {
    set_visible(true);
    entry_.grab_focus();
    entry_.select_region(0, -1); // So that typing replaces it.
    search();
}

void FindBar::close() {
    if (!get_visible())
        return;
    finder_.end();
    if (get_focus_child())
        webView_->widget().grab_focus();
    set_visible(false);
}

void FindBar::search() {
    const auto text = entry_.get_text();
    if (text.empty()) {
        count_.set_text("");
        entry_.remove_css_class("error");
    }
    finder_.find(text);
}

void FindBar::showCount(unsigned count) {
    count_.set_text(count ? std::to_string(count) + " kết quả" : "Không tìm thấy");
    if (count)
        entry_.remove_css_class("error");
    else
        entry_.add_css_class("error");
}

bool FindBar::onKeyPressed(guint key, guint, Gdk::ModifierType modifiers) {
    const bool isReturn = key == GDK_KEY_Return || key == GDK_KEY_KP_Enter;
    const bool inEntry = get_focus_child() == &entry_;
    if (key == GDK_KEY_Escape) {
        close();
    } else if (isReturn && inEntry) {
        const bool backwards = (modifiers & Gdk::ModifierType::SHIFT_MASK) != Gdk::ModifierType{};
        backwards ? finder_.findPrevious() : finder_.findNext();
    } else {
        return false;
    }
    return true;
}

} // namespace tessaro
