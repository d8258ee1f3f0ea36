#pragma once

#include "Engine/WebDownload.h"

#include "Platform/Desktop.h"
#include "Views/Inbox/DownloadRow.h"

#include <gtkmm/box.h>
#include <gtkmm/scrolledwindow.h>

#include <memory>
#include <vector>

namespace tessaro {

/// Below the inbox: the files that its pages hand out, on their way and where they landed. Takes no
/// room while there are none.
class DownloadBar : public Gtk::ScrolledWindow {
public:
    explicit DownloadBar(Desktop& desktop);

    void add(std::shared_ptr<WebDownload> download);
    /// Whether a file is still on its way.
    bool isBusy() const;

private:
    void showOrHide();

    Desktop& desktop_;
    Gtk::Box list_;
    std::vector<std::unique_ptr<DownloadRow>> rows_;
};

} // namespace tessaro
