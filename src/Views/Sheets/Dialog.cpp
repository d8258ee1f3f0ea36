#include "Views/Sheets/Dialog.h"

#include "Views/Widgets/Keys.h"

namespace tessaro {

Dialog::Dialog(const Glib::ustring& title) : column_(Gtk::Orientation::VERTICAL) {
    property_accessible_role() = Gtk::Accessible::Role::DIALOG;
    set_title(title);
    set_modal();
    set_resizable(false);
    add_css_class("sheet");
    noTitlebar_.set_visible(false);
    set_titlebar(noTitlebar_);
    column_.add_css_class("sheet-column");
    column_.set_overflow(Gtk::Overflow::HIDDEN);
    set_child(column_);

    signal_close_request().connect(
        [this] {
            dismiss();
            return true;
        },
        false);
    addKeys(*this, Gtk::PropagationPhase::BUBBLE, [this](guint key, guint, Gdk::ModifierType held) {
        held &= Gdk::ModifierType::CONTROL_MASK | Gdk::ModifierType::ALT_MASK;
        const bool isEscape = key == GDK_KEY_Escape && held == Gdk::ModifierType{};
        if (isEscape)
            dismiss();
        return isEscape;
    });
}

void Dialog::dismiss() {
    if (dismissAction_)
        dismissAction_();
}

} // namespace tessaro
