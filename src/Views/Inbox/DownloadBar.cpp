#include "Views/Inbox/DownloadBar.h"

#include <algorithm>

namespace tessaro {

namespace {
constexpr int greatestHeight = 168; ///< In points; of three rows.
}

DownloadBar::DownloadBar(Desktop& desktop) : desktop_(desktop), list_(Gtk::Orientation::VERTICAL) {
    add_css_class("download-bar");
    set_policy(Gtk::PolicyType::NEVER, Gtk::PolicyType::AUTOMATIC);
    set_propagate_natural_height();
    set_max_content_height(greatestHeight);
    set_child(list_);
    set_visible(false);
}

void DownloadBar::add(std::shared_ptr<WebDownload> download) {
    // What has landed makes room for what comes; a failure stays until it was seen.
    std::erase_if(rows_, [this](const auto& row) {
        if (!row->hasLanded() && row->get_visible())
            return false;
        list_.remove(*row);
        return true;
    });
    rows_.push_back(std::make_unique<DownloadRow>(std::move(download), desktop_));
    rows_.back()->signal_hide().connect([this] { showOrHide(); });
    list_.append(*rows_.back());
    showOrHide();
}

bool DownloadBar::isBusy() const {
    return std::ranges::any_of(rows_, [](const auto& row) { return row->isUnderWay(); });
}

void DownloadBar::showOrHide() {
    set_visible(std::ranges::any_of(rows_, [](const auto& row) { return row->get_visible(); }));
}

} // namespace tessaro
