#include "Views/Sheets/TokenEditor.h"

#include "Views/Widgets/Accessible.h"

namespace tessaro {

TokenEditor::TokenEditor(const Glib::ustring& name) {
    add_css_class("token-editor");
    set_policy(Gtk::PolicyType::NEVER, Gtk::PolicyType::AUTOMATIC);
    set_size_request(-1, 80);
    set_child(view_);
    view_.set_css_classes({"points-11", "monospace"});
    view_.set_wrap_mode(Gtk::WrapMode::CHAR);
    view_.set_accepts_tab(false);
    view_.set_input_hints(
        Gtk::InputHints::NO_SPELLCHECK | Gtk::InputHints::NO_EMOJI | Gtk::InputHints::PRIVATE);
    accessible::setName(view_, name);
}

void TokenEditor::onChanged(std::function<void()> action) {
    view_.get_buffer()->signal_changed().connect(std::move(action));
}

} // namespace tessaro
