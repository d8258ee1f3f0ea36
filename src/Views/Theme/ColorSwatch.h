#pragma once

#include "Platform/ScopedConnection.h"
#include "Views/Theme/ColorPreset.h"
#include "Views/Widgets/Symbol.h"

#include <gtkmm/togglebutton.h>

namespace tessaro {

class ThemeManager;

/// A round button in the colour of one preset. A click makes that preset the active one. While it
/// is active the button is pressed and has a check mark and a ring. UI thread only.
class ColorSwatch : public Gtk::ToggleButton {
public:
    /// @param theme  outlives this
    /// @param width  width and height in points; the ring fills them
    ColorSwatch(ThemeManager& theme, int width);

    /// Shows another preset. The grid reuses its swatches.
    void setPreset(ColorPreset preset);
    const ColorPreset& preset() const { return preset_; }

protected:
    void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

private:
    void refresh();

    ThemeManager& theme_;
    ColorPreset preset_;
    Symbol check_{"checkmark", 9};
    ScopedConnection themeChanged_;
};

} // namespace tessaro
