#pragma once

#include "Views/Widgets/InboxCommands.h"

#include <gtkmm/label.h>

namespace tessaro {

/// A red dot that is seen while a page records sound or pictures, and says which. UI thread only.
class RecordingDot : public Gtk::Label {
public:
    /// @param inbox  outlives this
    explicit RecordingDot(const InboxSignals& inbox);

private:
    void show(WebPermissions::Recording recording);

    ScopedConnection changed_;
};

} // namespace tessaro
