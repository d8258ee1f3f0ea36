#include "Views/Sheets/AddPageSheet.h"

#include "Views/Widgets/Accessible.h"
#include "Views/Widgets/Layout.h"

#include <glibmm/main.h>
#include <gtkmm/separator.h>

namespace tessaro {

namespace {

/// The Page that will be added, under a caption that says why it is this one.
Gtk::Box& previewBox(PageSummary& page, const Glib::ustring& caption) {
    auto& captionText = *Gtk::make_managed<Gtk::Label>(caption);
    captionText.set_ellipsize(Pango::EllipsizeMode::END);
    auto& captionRow = *Gtk::make_managed<Gtk::Box>(Gtk::Orientation::HORIZONTAL, 4);
    captionRow.set_css_classes({"points-10", "medium", "success-text"});
    captionRow.append(*Gtk::make_managed<Symbol>("checkmark.circle.fill", 11));
    captionRow.append(captionText);
    page.set_spacing(10);
    auto& box = *Gtk::make_managed<Gtk::Box>(Gtk::Orientation::VERTICAL, 8);
    box.add_css_class("page-preview");
    box.set_hexpand();
    appendAll(box, captionRow, *Gtk::make_managed<Gtk::Separator>(), page);
    return box;
}

} // namespace

AddPageSheet::AddPageSheet(const ScreenContext& context, PagesViewModel& pagesVM, Account account)
    : Sheet(460, 540, "Thêm Facebook Page", "Thêm Page"),
      context_(context),
      flow_(pagesVM, std::move(account), context.makeGraphClient, [this] { dismiss(); }),
      verify_("Xác minh Token", "checkmark.shield", 16),
      picker_(context, flow_, [this] { stopScrolling(); }),
      previewSlide_(previewPlace_, std::chrono::milliseconds(150)) {
    layOutToken();
    layOutError();
    appendAll(content(), error_, picker_, previewSlide_);
    token_.grab_focus();
    follow();
    showProgress();
    showResult();
}

void AddPageSheet::layOutToken() {
    token_.set_css_classes({"points-11", "monospace"});
    token_.set_wrap_mode(Gtk::WrapMode::CHAR);
    token_.set_accepts_tab(false); // Tab leaves it.
    token_.set_input_hints(
        Gtk::InputHints::NO_SPELLCHECK | Gtk::InputHints::NO_EMOJI | Gtk::InputHints::PRIVATE);
    accessible::setName(token_, "ACCESS TOKEN");
    auto* editor = Gtk::make_managed<Gtk::ScrolledWindow>();
    editor->add_css_class("token-editor");
    editor->set_policy(Gtk::PolicyType::NEVER, Gtk::PolicyType::AUTOMATIC);
    editor->set_size_request(-1, 80);
    editor->set_child(token_);
    auto* tokenSection = Gtk::make_managed<Gtk::Box>(Gtk::Orientation::VERTICAL, 6);
    appendAll(
        *tokenSection, textLine("ACCESS TOKEN", {"section-caption"}), *editor,
        textLine("Nhập User Access Token hoặc Page Access Token", {"points-10", "secondary-text"}));
    content().append(*tokenSection);
    verify_.add_css_class("points-13");
    verify_.set_halign(Gtk::Align::START);
    content().append(verify_);
}

void AddPageSheet::layOutError() {
    // As high as a line of the message, with the sign in its middle.
    auto* line = Gtk::make_managed<Gtk::Overlay>();
    auto* sign = Gtk::make_managed<Symbol>("exclamationmark.triangle.fill", 11);
    line->set_child(*Gtk::make_managed<Gtk::Label>(" "));
    line->add_overlay(*sign);
    line->set_measure_overlay(*sign, true);
    line->set_valign(Gtk::Align::START);
    message_.set_xalign(0);
    message_.set_hexpand();
    message_.set_wrap();
    message_.set_wrap_mode(Pango::WrapMode::WORD_CHAR);
    error_.property_accessible_role() = Gtk::Accessible::Role::ALERT;
    error_.set_css_classes({"error-row", "points-11"});
    appendAll(error_, *line, message_);
}

void AddPageSheet::follow() {
    token_.get_buffer()->signal_changed().connect([this] {
        flow_.token.set(token_.get_buffer()->get_text());
        focusBefore_ = nullptr; // Who goes on typing keeps the keyboard there.
        showProgress();
    });
    verify_.signal_clicked().connect([this] { flow_.verifyToken(); });
    acceptButton().signal_clicked().connect([this] { flow_.addSelectedPage(); });

    connections_.push_back(flow_.isVerifying.observe([this] { followVerification(); }));
    connections_.push_back(flow_.isAdding.observe([this] { showProgress(); }));
    const auto showResultAfter = [this](const auto& property) {
        connections_.push_back(property.observe([this] { showResult(); }));
    };
    showResultAfter(flow_.errorMessage);
    showResultAfter(flow_.tokenType);
    showResultAfter(flow_.selectedResolvedPage);
    showResultAfter(flow_.directPageInfo);
}

void AddPageSheet::followVerification() {
    if (*flow_.isVerifying)
        focusBefore_ = get_focus();
    else // In a turn of its own, when the whole result is there.
        focusMoves_ = ScopedConnection(Glib::signal_idle().connect(
            [this] {
                focusNext();
                return false;
            },
            Glib::PRIORITY_HIGH));
    showProgress();
}

void AddPageSheet::focusNext() {
    if (get_focus() && get_focus() != focusBefore_)
        return; // The person has gone elsewhere.
    if (!acceptButton().grab_focus() && !picker_.focusFirst())
        token_.grab_focus();
}

void AddPageSheet::showProgress() {
    const bool verifying = *flow_.isVerifying;
    verify_.setState(flow_.hasToken(), verifying);
    acceptButton().setState(flow_.canAdd(), *flow_.isAdding);
}

void AddPageSheet::showResult() {
    const auto& error = *flow_.errorMessage;
    error_.set_visible(error.has_value());
    message_.set_text(error.value_or(""));
    picker_.set_visible(*flow_.tokenType == TokenType::userToken);
    showProgress();
    const auto current = preview();
    if (current && current != shownPreview_)
        show(*current);
    else if (error || *flow_.isVerifying)
        showStart();
    previewSlide_.reveal(current.has_value());
    shownPreview_ = current;
}

std::optional<AddPageSheet::Preview> AddPageSheet::preview() const {
    const auto& direct = *flow_.directPageInfo;
    if (*flow_.tokenType == TokenType::pageToken && direct) {
        const auto url = direct->picture ? std::optional(direct->picture->data.url) : std::nullopt;
        return Preview{*direct, url, "Page Token hợp lệ"};
    }
    const auto& picked = *flow_.selectedResolvedPage;
    if (*flow_.tokenType == TokenType::userToken && picked)
        return Preview{
            {picked->id, picked->name, std::nullopt},
            picked->avatarUrl,
            "Page đã chọn — sẽ dùng Page Access Token"};
    return std::nullopt;
}

void AddPageSheet::show(const Preview& preview) {
    if (auto* old = previewPlace_.get_first_child())
        previewPlace_.remove(*old);
    auto& page = *Gtk::make_managed<PageSummary>(
        context_, flow_.account(), preview.page.id, preview.page.name, preview.avatarUrl,
        PageSummary::Style{44, {"points-13", "semibold"}, {"points-10", "secondary-text"}});
    previewPlace_.append(previewBox(page, preview.caption));
    showEnd();
}

bool AddPageSheet::onReturn(Gtk::Widget* focus) {
    if (picker_.isPressedByReturn(focus))
        return false;
    if (Sheet::onReturn(focus))
        return true;
    if (token_.is_focus() && !flow_.canAdd())
        flow_.verifyToken();
    return token_.is_focus();
}

} // namespace tessaro
