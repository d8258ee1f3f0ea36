#include "Views/Inbox/DownloadRow.h"

#include "Views/Widgets/Accessible.h"
#include "Views/Widgets/Layout.h"

#include <glibmm/convert.h>

#include <algorithm>

namespace tessaro {

namespace {

std::string sizeText(std::uint64_t bytes) {
    return takeString(g_format_size(bytes));
}

std::string outcome(const WebDownload& download) {
    const std::string folder = Glib::filename_display_name(download.file().parent_path().string());
    switch (download.state()) {
    case WebDownload::State::finished:
        return "Đã lưu vào " + folder;
    case WebDownload::State::unwritable:
        return "Không lưu được tệp vào " + folder +
               ". Hãy kiểm tra dung lượng còn trống và quyền ghi rồi tải lại.";
    default:
        return "Tải xuống không thành công vì kết nối bị gián đoạn. Hãy tải lại.";
    }
}

} // namespace

DownloadRow::DownloadRow(std::shared_ptr<WebDownload> download, Desktop& desktop)
    : Gtk::Box(Gtk::Orientation::HORIZONTAL, 10),
      download_(std::move(download)),
      symbol_("arrow.down.circle.fill", 16),
      texts_(Gtk::Orientation::VERTICAL, 4),
      close_("xmark.circle.fill", 14, "Hủy tải xuống") {
    property_accessible_role() = Gtk::Accessible::Role::STATUS;
    layOut();
    openFolder_.signal_clicked().connect(
        [this, &desktop] { desktop.openFile(download_->file().parent_path()); });
    openFile_.signal_clicked().connect([this, &desktop] { desktop.openFile(download_->file()); });
    close_.signal_clicked().connect([this] { dismiss(); });
    changed_ = download_->signalChanged().connect([this] { show(); });
    show();
}

void DownloadRow::layOut() {
    add_css_class("download-row");
    name_.set_css_classes({"points-12", "medium"});
    name_.set_ellipsize(Pango::EllipsizeMode::MIDDLE);
    name_.set_xalign(0);
    detail_.set_css_classes({"points-11", "secondary-text"});
    detail_.set_xalign(0);
    detail_.set_wrap();
    detail_.set_wrap_mode(Pango::WrapMode::WORD_CHAR);
    accessible::setName(progress_, "Tiến độ tải xuống");
    texts_.set_hexpand();
    texts_.set_valign(Gtk::Align::CENTER);
    appendAll(texts_, name_, progress_, detail_);
    for (auto* const button : {&openFolder_, &openFile_}) {
        button->set_valign(Gtk::Align::CENTER);
        button->add_css_class("points-12");
        accessible::nameButtonsByLabel(GTK_WIDGET(button->gobj()));
    }
    close_.set_valign(Gtk::Align::CENTER);
    appendAll(*this, symbol_, texts_, openFolder_, openFile_, close_);
}

void DownloadRow::show() {
    const auto state = download_->state();
    name_.set_text(Glib::filename_display_basename(download_->file().string()));
    name_.set_tooltip_text(Glib::filename_display_name(download_->file().string()));
    name_.set_visible(!download_->file().empty());
    progress_.set_visible(isUnderWay());
    openFolder_.set_visible(hasLanded());
    openFile_.set_visible(hasLanded());
    if (isUnderWay()) {
        showProgress();
        return;
    }
    detail_.set_text(outcome(*download_));
    symbol_.setSymbol(hasLanded() ? "checkmark.circle.fill" : "exclamationmark.triangle.fill");
    set_css_classes({"download-row", hasLanded() ? "landed" : "failed"});
    accessible::setTooltip(close_, "Đóng");
    if (state == WebDownload::State::cancelled)
        set_visible(false);
}

void DownloadRow::showProgress() {
    const auto received = download_->received();
    const auto expected = download_->expected();
    if (expected == 0) {
        progress_.pulse();
        detail_.set_text("Đang tải xuống: " + sizeText(received));
        return;
    }
    const double fraction = std::min(1.0, double(received) / double(expected));
    progress_.set_fraction(fraction);
    detail_.set_text(
        "Đang tải xuống: " + sizeText(received) + " / " + sizeText(expected) + " (" +
        std::to_string(int(fraction * 100)) + "%)");
}

void DownloadRow::dismiss() {
    set_visible(false);
    if (isUnderWay())
        download_->cancel();
}

} // namespace tessaro
