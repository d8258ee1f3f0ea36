#include "Views/Sheets/AddPageSheet.h"

#include "Views/Widgets/TextLine.h"

#include <glibmm/main.h>

namespace tessaro {

AddPageSheet::AddPageSheet(const ScreenContext& context, PagesViewModel& pagesVM, Account account)
    : Sheet(460, 540, "Thêm Facebook Page", "Thêm Page"),
      context_(context),
      flow_(pagesVM, std::move(account), context.makeGraphClient, [this] { dismiss(); }),
      token_("ACCESS TOKEN"),
      verify_("Xác minh Token", "checkmark.shield", 16),
      picker_(context, flow_),
      previewSlide_(previewPlace_, std::chrono::milliseconds(150)) {
    layOut();
    follow();
    showProgress();
    showResult();
}

void AddPageSheet::layOut() {
    auto* tokenSection = Gtk::make_managed<Gtk::Box>(Gtk::Orientation::VERTICAL, 6);
    tokenSection->append(textLine("ACCESS TOKEN", {"section-caption"}));
    tokenSection->append(token_);
    tokenSection->append(
        textLine("Nhập User Access Token hoặc Page Access Token", {"points-10", "secondary-text"}));
    content().append(*tokenSection);
    verify_.add_css_class("points-13");
    verify_.set_halign(Gtk::Align::START);
    content().append(verify_);
    content().append(error_);
    content().append(picker_);
    content().append(previewSlide_);
    token_.focus();
}

void AddPageSheet::follow() {
    token_.onChanged([this] {
        flow_.token.set(token_.text());
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
        token_.focus();
}

void AddPageSheet::showProgress() {
    const bool verifying = *flow_.isVerifying;
    verify_.setState(flow_.hasToken(), verifying);
    acceptButton().setState(flow_.canAdd(), *flow_.isAdding);
}

void AddPageSheet::showResult() {
    const auto& error = *flow_.errorMessage;
    error_.set_visible(error.has_value());
    error_.setMessage(error.value_or(""));
    picker_.set_visible(*flow_.tokenType == TokenType::userToken);
    showProgress();
    const auto current = preview();
    if (current && current != shownPreview_)
        show(*current);
    else if (!current || error)
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
    auto* box = Gtk::make_managed<PagePreview>(
        context_, flow_.account(), preview.page, preview.avatarUrl, preview.caption);
    box->set_hexpand();
    previewPlace_.append(*box);
    showEnd();
}

bool AddPageSheet::onReturn(Gtk::Widget* focus) {
    if (const auto* row = dynamic_cast<PagePickerRow*>(focus); row && !row->isSelected())
        return false; // It is picked first.
    if (Sheet::onReturn(focus))
        return true;
    if (token_.isFocus() && !flow_.canAdd())
        flow_.verifyToken();
    return token_.isFocus();
}

} // namespace tessaro
