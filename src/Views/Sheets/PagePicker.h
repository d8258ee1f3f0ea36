#pragma once

#include "ViewModels/AddPageFlow.h"
#include "Views/Sheets/PagePickerRow.h"

#include <gtkmm/box.h>

#include <vector>

namespace tessaro {

/// The Pages of a user token, one of which is to be picked.
class PagePicker : public Gtk::Box {
public:
    /// @param context, flow  outlive this
    PagePicker(const ScreenContext& context, AddPageFlow& flow);

    /// Gives the focus to the first Page; false when there is none.
    bool focusFirst();

private:
    void showPages();
    void showSelection();

    const ScreenContext& context_;
    AddPageFlow& flow_;
    std::vector<PagePickerRow*> rows_;
    std::vector<ScopedConnection> connections_;
};

} // namespace tessaro
