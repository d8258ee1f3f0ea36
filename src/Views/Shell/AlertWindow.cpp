#include "Views/Shell/AlertWindow.h"

#include "Views/Widgets/Accessible.h"

#include <gtkmm/adjustment.h>
#include <gtkmm/button.h>

#include <utility>

namespace tessaro {

namespace {

/// In points. With it the whole alert is smaller than every sheet.
constexpr int tallestText = 288;
constexpr int shortestLine = 28; ///< In characters.
constexpr int longestLine = 56;

void setUpLabel(Gtk::Label& label, const std::string& text) {
    label.set_text(text);
    label.set_xalign(0);
    label.set_wrap();
    label.set_wrap_mode(Pango::WrapMode::WORD_CHAR);
    // A label without a least width is laid out with one letter per line to find that width, which
    // takes seconds for a word of thousands of letters.
    label.set_width_chars(shortestLine);
    label.set_max_width_chars(longestLine);
}

} // namespace

AlertWindow::AlertWindow(const ModalAlert& alert, Modals::Answered answered)
    : Dialog(alert.title.empty() ? alert.message : alert.title), answered_(std::move(answered)) {
    add_css_class("alert");
    layOutText(alert);
    buttons_.set_halign(Gtk::Align::END);
    buttons_.set_homogeneous();
    for (std::size_t i = 0; i < alert.buttons.size(); ++i) {
        auto* button = Gtk::make_managed<Gtk::Button>(alert.buttons[i]);
        button->signal_clicked().connect([this, i] { answer(i); });
        buttons_.append(*button);
    }
    column().append(buttons_);
    accessible::nameButtonsByLabel(GTK_WIDGET(buttons_.gobj()));
    if (auto* first = buttons_.get_first_child()) {
        set_default_widget(*first);
        set_focus(*first);
    }

    onDismiss([this] { answer(std::nullopt); });
    destroyed_ = ScopedConnection(signal_destroy().connect([this] { answer(std::nullopt); }));
}

void AlertWindow::layOutText(const ModalAlert& alert) {
    setUpLabel(title_, alert.title);
    title_.add_css_class("title-4");
    title_.set_lines(3);
    title_.set_ellipsize(Pango::EllipsizeMode::END);
    title_.set_visible(!alert.title.empty());
    setUpLabel(message_, alert.message);
    message_.set_valign(Gtk::Align::START);
    scroller_.set_child(message_);
    scroller_.set_policy(Gtk::PolicyType::NEVER, Gtk::PolicyType::AUTOMATIC);
    scroller_.set_propagate_natural_width();
    scroller_.set_propagate_natural_height();
    scroller_.set_max_content_height(tallestText);
    // Tab stops at the text only when it can be scrolled.
    const auto heights = scroller_.get_vadjustment();
    heights->signal_changed().connect([this, heights = heights.get()] {
        scroller_.set_focusable(heights->get_upper() > heights->get_page_size());
    });
    scroller_.set_visible(!alert.message.empty());
    accessible::setName(scroller_, alert.message);
    accessible::setDescription(*this, alert.message);
    column().append(title_);
    column().append(scroller_);
}

void AlertWindow::answer(std::optional<std::size_t> button) {
    if (const auto answered = std::exchange(answered_, nullptr))
        answered(button);
}

} // namespace tessaro
