#pragma once

#include "ViewModels/AddPageFlow.h"
#include "Views/Sheets/PagePickerRow.h"
#include "Views/Widgets/BusyButton.h"

#include <gtkmm/box.h>
#include <gtkmm/entry.h>
#include <gtkmm/label.h>

#include <functional>
#include <vector>

namespace tessaro {

/// The Pages of a user token, one of which is to be picked. A long list can be filtered by name,
/// and the Graph API can be asked for the Pages after it.
class PagePicker : public Gtk::Box {
public:
    /// @param context, flow    outlive this
    /// @param beforeRearrange  called before rows appear or vanish because of what the person does
    ///                         here
    PagePicker(
        const ScreenContext& context, AddPageFlow& flow, std::function<void()> beforeRearrange);

    /// Gives the focus to the first Page; false when there is none.
    bool focusFirst() { return focusFrom(0); }
    /// Whether Return, pressed on that widget, only presses it.
    bool isPressedByReturn(Gtk::Widget* focus) const;

private:
    void layOutFilter();
    void showPages();
    void showSelection();
    void showLoading();
    /// Gives the focus to the first shown Page from that one on, once the rows have their places.
    void focusAfterLayout(std::size_t index);
    void filter();
    void showCount();
    bool focusFrom(std::size_t index);

    const ScreenContext& context_;
    AddPageFlow& flow_;
    const std::function<void()> beforeRearrange_;
    Gtk::Box filterRow_{Gtk::Orientation::HORIZONTAL, 8};
    Gtk::Entry filter_;
    Gtk::Label count_;
    Gtk::Box list_{Gtk::Orientation::VERTICAL, 8};
    Gtk::Label noMatch_;
    BusyButton more_;
    std::vector<PagePickerRow*> rows_;
    std::size_t rowsBefore_ = 0; ///< How many there were when more were asked for.
    std::vector<ScopedConnection> connections_;
};

} // namespace tessaro
