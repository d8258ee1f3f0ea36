#pragma once

#include "Platform/ScopedConnection.h"

#include <gtkmm/box.h>
#include <gtkmm/drawingarea.h>
#include <gtkmm/gridview.h>
#include <gtkmm/label.h>
#include <gtkmm/togglebutton.h>

#include <string>
#include <utility>
#include <vector>

namespace tessaro {

class ThemeManager;

/// A column of the swatch grid, in points. All columns are alike.
struct GridColumn {
    int width;
    int spacing; ///< Between columns and between rows.
};

/// The panel in which the person chooses the mode and the accent preset; the content of a popover.
/// A choice takes effect at once. The panel has no state of its own and reads the selection from
/// the theme manager at each change. When it appears it scrolls to the selected colour and gives it
/// the focus. UI thread only.
class ThemeSettingsView : public Gtk::Box {
public:
    /// @param theme    outlives this
    /// @param columns  the columns of the swatch grid
    ThemeSettingsView(ThemeManager& theme, std::vector<GridColumn> columns);

protected:
    void on_map() override;

private:
    Gtk::Widget& modeSection();
    Gtk::Widget& colorSection();
    Gtk::Widget&
    appearanceButton(const std::string& mode, const Glib::ustring& title, const std::string& icon);
    /// Makes Tab leave the grid for the mode buttons. By itself it would go to the next swatch,
    /// which the arrow keys reach already.
    bool leaveByTab(guint key, guint code, Gdk::ModifierType modifiers);
    void refresh();

    ThemeManager& theme_;
    const std::vector<GridColumn> columns_;
    std::vector<std::pair<std::string, Gtk::ToggleButton*>> modeButtons_;
    Gtk::Label presetName_;
    Gtk::GridView swatches_;
    Gtk::DrawingArea swatchBackground_;
    ScopedConnection themeChanged_;
};

} // namespace tessaro
