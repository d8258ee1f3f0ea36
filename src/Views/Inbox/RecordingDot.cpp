#include "Views/Inbox/RecordingDot.h"

#include "Views/Widgets/Accessible.h"

namespace tessaro {

RecordingDot::RecordingDot(const InboxSignals& inbox)
    : changed_(inbox.recording.observe([this, &inbox] { show(*inbox.recording); })) {
    add_css_class("recording-dot");
    set_halign(Gtk::Align::END);
    set_valign(Gtk::Align::START);
    show(*inbox.recording);
}

void RecordingDot::show(WebPermissions::Recording recording) {
    set_visible(recording.microphone || recording.camera);
    accessible::setTooltip(
        *this, recording.microphone && recording.camera ? "Trang đang ghi âm và ghi hình"
               : recording.camera                       ? "Trang đang ghi hình"
                                                        : "Trang đang ghi âm");
}

} // namespace tessaro
