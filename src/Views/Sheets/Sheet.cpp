#include "Views/Sheets/Sheet.h"

#include "Views/Widgets/Accessible.h"
#include "Views/Widgets/Keys.h"
#include "Views/Widgets/Layout.h"

#include <glibmm/main.h>
#include <gtkmm/adjustment.h>

namespace tessaro {

Sheet::Sheet(int width, int height, const Glib::ustring& title, const Glib::ustring& acceptLabel)
    : Dialog(title),
      title_(title),
      content_(Gtk::Orientation::VERTICAL, 16),
      cancel_("Hủy"),
      accept_(acceptLabel) {
    title_.add_css_class("headline");
    title_.set_xalign(0);
    title_.set_hexpand();
    title_.set_ellipsize(Pango::EllipsizeMode::END);
    close_.set_child(*Gtk::make_managed<Symbol>("xmark.circle.fill", 16));
    close_.add_css_class("borderless");
    close_.add_css_class("secondary-text");
    close_.set_valign(Gtk::Align::CENTER);
    accessible::setTooltip(close_, "Đóng");
    appendAll(header_, title_, close_);
    header_.add_css_class("sheet-row");
    handle_.set_child(header_);

    content_.add_css_class("sheet-content");
    scroller_.set_child(content_);
    scroller_.set_policy(Gtk::PolicyType::NEVER, Gtk::PolicyType::AUTOMATIC);
    scroller_.set_overlay_scrolling(false); // One sees at once that there is more below.
    scroller_.set_vexpand();
    scroller_.get_vadjustment()->signal_changed().connect([this] {
        if (!followsEnd_)
            return;
        // In a turn of its own: scrolling amid the layout would lose what else asks for a new one.
        scroll_ = ScopedConnection(Glib::signal_idle().connect(
            [this] {
                showEnd();
                return false;
            },
            Glib::PRIORITY_HIGH_IDLE));
    });

    cancel_.set_hexpand();
    cancel_.set_halign(Gtk::Align::START);
    accept_.add_css_class("suggested-action");
    appendAll(footer_, cancel_, accept_);
    footer_.add_css_class("sheet-row");

    appendAll(column(), handle_, above_, scroller_, below_, footer_);
    column().set_size_request(width, height);
    set_default_size(width, height);
    set_default_widget(accept_);
    accessible::nameButtonsByLabel(GTK_WIDGET(cancel_.gobj()));

    close_.signal_clicked().connect(sigc::mem_fun(*this, &Sheet::dismiss));
    cancel_.signal_clicked().connect(sigc::mem_fun(*this, &Sheet::dismiss));

    // Before a focused button.
    addKeys(*this, Gtk::PropagationPhase::CAPTURE, [this](guint key, guint, Gdk::ModifierType) {
        const bool isReturn =
            key == GDK_KEY_Return || key == GDK_KEY_KP_Enter || key == GDK_KEY_ISO_Enter;
        return isReturn && onReturn(get_focus());
    });
}

bool Sheet::onReturn(Gtk::Widget* focus) {
    // A field goes on to the button by itself, once the input method has finished its word.
    const bool isField = focus && GTK_IS_TEXT(focus->gobj());
    if (isField || focus == &cancel_ || focus == &close_ || !accept_.is_sensitive())
        return false;
    return accept_.activate();
}

void Sheet::stopScrolling() {
    followsEnd_ = false;
    scroll_.disconnect();
}

void Sheet::showStart() {
    stopScrolling();
    scroller_.get_vadjustment()->set_value(0);
}

void Sheet::showEnd() {
    followsEnd_ = true;
    const auto heights = scroller_.get_vadjustment();
    heights->set_value(heights->get_upper());
}

} // namespace tessaro
