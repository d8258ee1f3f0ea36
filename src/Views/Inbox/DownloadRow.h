#pragma once

#include "Engine/WebDownload.h"

#include "Platform/Desktop.h"
#include "Views/Widgets/Symbol.h"
#include "Views/Widgets/SymbolButton.h"

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/label.h>
#include <gtkmm/progressbar.h>

#include <memory>

namespace tessaro {

/// One download: what it is called, how far it is, and where it landed or why it did not. Hides
/// itself when it is dismissed or cancelled.
class DownloadRow : public Gtk::Box {
public:
    DownloadRow(std::shared_ptr<WebDownload> download, Desktop& desktop);

    bool isUnderWay() const { return download_->state() == WebDownload::State::underWay; }
    bool hasLanded() const { return download_->state() == WebDownload::State::finished; }

private:
    void layOut();
    void show();
    void showProgress();
    void dismiss();

    const std::shared_ptr<WebDownload> download_;
    Symbol symbol_;
    Gtk::Box texts_;
    Gtk::Label name_;
    Gtk::ProgressBar progress_;
    Gtk::Label detail_;
    Gtk::Button openFolder_{"Mở thư mục"};
    Gtk::Button openFile_{"Mở tệp"};
    SymbolButton close_;
    ScopedConnection changed_;
};

} // namespace tessaro
