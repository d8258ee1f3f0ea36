#pragma once

#include "Platform/ScopedConnection.h"

#include <gtkmm/box.h>
#include <gtkmm/drawingarea.h>
#include <gtkmm/eventcontroller.h>
#include <gtkmm/gridview.h>
#include <gtkmm/label.h>
#include <gtkmm/togglebutton.h>

#include <string>
#include <utility>
#include <vector>

namespace tessaro {

class ThemeManager;

/// A column of a grid, in points. The columns of one grid are alike.
struct GridColumn {
    int width;
    int spacing; ///< To the next column, and between rows.
};

/// The panel in which the mode and the accent preset are chosen; the content of a popover. Every
/// choice takes effect at once. It keeps nothing: what is selected is read from the theme manager
/// at each change. When it appears the selected colour is in view and has the focus. UI thread
/// only.
class ThemeSettingsView : public Gtk::Box {
public:
    /// @param theme    outlives this
    /// @param columns  those of the swatch grid
    ThemeSettingsView(ThemeManager& theme, std::vector<GridColumn> columns);

protected:
    void on_map() override;

private:
    Gtk::Widget& modeSection();
    Gtk::Widget& colorSection();
    Gtk::Widget&
    appearanceButton(const std::string& mode, const Glib::ustring& title, const std::string& icon);
    Gtk::Widget& presetButton();
    /// The grid is the panel's last stop: the arrows walk among the swatches, and Tab goes on to
    /// the mode buttons in place of the next swatch.
    Glib::RefPtr<Gtk::EventController> leavingByTab();
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
