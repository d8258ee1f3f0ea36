#include "Views/Theme/ThemeSettingsView.h"

#include "Platform/Gtk/SmoothRectangle.h"
#include "Views/Theme/ColorSwatch.h"
#include "Views/Theme/ThemeManager.h"
#include "Views/Widgets/Accessible.h"
#include "Views/Widgets/Keys.h"
#include "Views/Widgets/Layout.h"
#include "Views/Widgets/Symbol.h"

#include <gdkmm/general.h>
#include <gtkmm/noselection.h>
#include <gtkmm/overlay.h>
#include <gtkmm/scrolledwindow.h>
#include <gtkmm/separator.h>
#include <gtkmm/signallistitemfactory.h>
#include <gtkmm/stringlist.h>
#include <gtkmm/stylecontext.h>

namespace tessaro {

namespace {

constexpr int panelWidth = 270;
constexpr int panelHeight = 350;
constexpr int panelMargin = 14;
constexpr int swatchBoxHeight = 190;
constexpr double swatchBoxRadius = 6;

Gtk::Label& caption(const Glib::ustring& text) {
    return textLine(text, {"points-9", "semibold", "secondary-text"});
}

} // namespace

ThemeSettingsView::ThemeSettingsView(ThemeManager& theme, std::vector<GridColumn> columns)
    : Gtk::Box(Gtk::Orientation::VERTICAL, panelMargin),
      theme_(theme),
      columns_(std::move(columns)) {
    add_css_class("theme-settings");
    // The panel's size includes its margin.
    set_margin(panelMargin);
    set_size_request(panelWidth - 2 * panelMargin, panelHeight - 2 * panelMargin);

    append(textLine("Cấu hình Giao diện", {"headline"}));
    append(modeSection());
    append(*Gtk::make_managed<Gtk::Separator>());
    append(colorSection());

    themeChanged_ = theme.observe([this] { refresh(); });
    refresh();
}

Gtk::Widget& ThemeSettingsView::modeSection() {
    auto& buttons = *Gtk::make_managed<Gtk::Box>(Gtk::Orientation::HORIZONTAL, 6);
    buttons.set_homogeneous();
    buttons.append(appearanceButton("light", "Sáng", "sun.max.fill"));
    buttons.append(appearanceButton("dark", "Tối", "moon.fill"));
    buttons.append(appearanceButton("system", "Tự động", "desktopcomputer"));

    auto& section = *Gtk::make_managed<Gtk::Box>(Gtk::Orientation::VERTICAL, 6);
    appendAll(section, caption("CHẾ ĐỘ HIỂN THỊ"), buttons);
    return section;
}

Gtk::Widget& ThemeSettingsView::appearanceButton(
    const std::string& mode, const Glib::ustring& title, const std::string& icon) {
    auto& content = *Gtk::make_managed<Gtk::Box>(Gtk::Orientation::HORIZONTAL, 4);
    content.set_halign(Gtk::Align::CENTER);
    content.append(*Gtk::make_managed<Symbol>(icon, 10));
    content.append(*Gtk::make_managed<Gtk::Label>(title));

    auto& button = *Gtk::make_managed<Gtk::ToggleButton>();
    button.add_css_class("mode-button");
    button.add_css_class("points-10");
    button.set_child(content);
    accessible::setName(button, title);
    button.signal_clicked().connect([this, mode] { theme_.setAppearanceMode(mode); });
    modeButtons_.emplace_back(mode, &button);
    return button;
}

Gtk::Widget& ThemeSettingsView::colorSection() {
    auto& header = *Gtk::make_managed<Gtk::Box>(Gtk::Orientation::HORIZONTAL, 8);
    header.append(caption("MÀU CHỦ ĐẠO"));
    presetName_.set_hexpand();
    presetName_.set_xalign(1);
    presetName_.set_ellipsize(Pango::EllipsizeMode::END);
    presetName_.set_css_classes({"points-10", "medium", "accent-text"});
    header.append(presetName_);

    auto factory = Gtk::SignalListItemFactory::create();
    factory->signal_setup().connect([this](const Glib::RefPtr<Gtk::ListItem>& item) {
        item->set_activatable(false);
        const GridColumn& column = columns_.front();
        auto& swatch = *Gtk::make_managed<ColorSwatch>(theme_, column.width);
        swatch.set_margin(column.spacing / 2);
        item->set_child(swatch);
    });
    factory->signal_bind().connect([this](const Glib::RefPtr<Gtk::ListItem>& item) {
        if (auto* swatch = dynamic_cast<ColorSwatch*>(item->get_child()))
            swatch->setPreset(theme_.presets()[item->get_position()]);
    });
    auto names = Gtk::StringList::create({});
    for (const ColorPreset& preset : theme_.presets())
        names->append(preset.name);
    const auto columnCount = static_cast<guint>(columns_.size());
    swatches_.set_model(Gtk::NoSelection::create(names));
    swatches_.set_factory(factory);
    swatches_.set_min_columns(columnCount);
    swatches_.set_max_columns(columnCount);
    accessible::setName(swatches_, "MÀU CHỦ ĐẠO");
    addKeys(
        swatches_, Gtk::PropagationPhase::CAPTURE,
        sigc::mem_fun(*this, &ThemeSettingsView::leaveByTab));

    auto& scroller = *Gtk::make_managed<Gtk::ScrolledWindow>();
    scroller.add_css_class("swatch-box");
    scroller.set_policy(Gtk::PolicyType::NEVER, Gtk::PolicyType::ALWAYS);
    scroller.set_overlay_scrolling(false);
    scroller.set_child(swatches_);

    swatchBackground_.add_css_class("swatch-background");
    swatchBackground_.set_content_height(swatchBoxHeight);
    swatchBackground_.set_draw_func(
        [this](const Cairo::RefPtr<Cairo::Context>& context, int width, int height) {
            Gdk::Cairo::set_source_rgba(
                context, swatchBackground_.get_style_context()->get_color());
            addSmoothRectangle(context, 0, 0, width, height, swatchBoxRadius);
            context->fill();
        });
    auto& box = *Gtk::make_managed<Gtk::Overlay>();
    box.set_child(swatchBackground_);
    box.add_overlay(scroller);

    auto& section = *Gtk::make_managed<Gtk::Box>(Gtk::Orientation::VERTICAL, 8);
    appendAll(section, header, box);
    return section;
}

bool ThemeSettingsView::leaveByTab(guint key, guint, Gdk::ModifierType) {
    if (key == GDK_KEY_Tab)
        return modeButtons_.front().second->grab_focus();
    if (key == GDK_KEY_ISO_Left_Tab)
        return modeButtons_.back().second->grab_focus();
    return false;
}

void ThemeSettingsView::on_map() {
    Gtk::Box::on_map();
    for (auto* cell = swatches_.get_first_child(); cell; cell = cell->get_next_sibling())
        if (auto* swatch = dynamic_cast<ColorSwatch*>(cell->get_first_child());
            swatch && swatch->get_active())
            swatch->grab_focus(); // The grid scrolls to it.
}

void ThemeSettingsView::refresh() {
    for (const auto& [mode, button] : modeButtons_)
        button->set_active(theme_.appearanceMode() == mode);
    presetName_.set_text(theme_.activePreset().name);
}

} // namespace tessaro
