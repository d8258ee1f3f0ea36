#pragma once

#include "Views/Widgets/Symbol.h"

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/label.h>
#include <gtkmm/spinner.h>

namespace tessaro {

/// A button whose work takes time. While it is busy it shows a spinner in place of the symbol and
/// cannot be pressed, so it loses the focus. Afterwards it takes the focus back, unless the person
/// has moved it.
class BusyButton : public Gtk::Button {
public:
    /// @param symbol      shown before the label; empty for none
    /// @param symbolSize  in points
    explicit BusyButton(
        const Glib::ustring& label, const std::string& symbol = {}, int symbolSize = 0);

    /// @param pressable  whether it can be pressed while it is not busy
    void setState(bool pressable, bool busy);

private:
    const bool hasSymbol_;
    bool isBusy_ = false;
    bool hadFocus_ = false; ///< When it became busy.
    Gtk::Box row_;
    Gtk::Spinner spinner_;
    Symbol symbol_;
    Gtk::Label label_;
};

} // namespace tessaro
