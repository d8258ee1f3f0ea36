#pragma once

#include "Platform/ScopedConnection.h"
#include "Views/Theme/ColorPreset.h"
#include "Views/Widgets/Symbol.h"

#include <gtkmm/togglebutton.h>

namespace tessaro {

class ThemeManager;

/// A round button in the colour of one preset, which makes that preset the active one. Pressed,
/// with a check mark and a ring, while it is. UI thread only.
class ColorSwatch : public Gtk::ToggleButton {
public:
    /// @param theme  outlives this
    /// @param width  width and height in points, those of the ring
    ColorSwatch(ThemeManager& theme, int width);

    /// Stands for that preset from now on; the grid hands a recycled swatch one after the other.
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
