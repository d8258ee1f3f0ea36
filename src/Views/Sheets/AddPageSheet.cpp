#include "Views/Sheets/AddPageSheet.h"

#include "Views/Sheets/SectionCaption.h"

namespace tessaro {

AddPageSheet::AddPageSheet(const ScreenContext& context, PagesViewModel& pagesVM, Account account)
    : Sheet(460, 540, "Thêm Facebook Page", "Thêm Page"),
      context_(context),
      flow_(pagesVM, std::move(account), context.makeGraphClient, [this] { dismiss(); }),
      token_("ACCESS TOKEN", [this] { return acceptByReturn(); }),
      picker_(context.images, flow_),
      previewSlide_(previewPlace_, std::chrono::milliseconds(150)) {
    layOut();
    follow();
    showVerifying();
    showResult();
}

void AddPageSheet::layOut() {
    auto* tokenSection = Gtk::make_managed<Gtk::Box>(Gtk::Orientation::VERTICAL, 6);
    auto* hint = Gtk::make_managed<Gtk::Label>(
        "Nhập User Access Token hoặc Page Access Token", Gtk::Align::START);
    hint->set_css_classes({"points-10", "secondary-text"});
    tokenSection->append(*Gtk::make_managed<SectionCaption>("ACCESS TOKEN"));
    tokenSection->append(token_);
    tokenSection->append(*hint);
    content().append(*tokenSection);
    content().append(verify_);
    content().append(error_);
    content().append(picker_);
    content().append(previewSlide_);
    token_.focus();
}

void AddPageSheet::follow() {
    token_.onChanged([this] {
        flow_.token.set(token_.text());
        showVerifying();
    });
    verify_.signal_clicked().connect([this] { flow_.verifyToken(); });
    acceptButton().signal_clicked().connect([this] { flow_.addSelectedPage(); });

    connections_.push_back(flow_.isVerifying.observe([this] { showVerifying(); }));
    const auto showResultAfter = [this](const auto& property) {
        connections_.push_back(property.observe([this] { showResult(); }));
    };
    showResultAfter(flow_.errorMessage);
    showResultAfter(flow_.tokenType);
    showResultAfter(flow_.selectedResolvedPage);
    showResultAfter(flow_.directPageInfo);
}

void AddPageSheet::showVerifying() {
    const bool verifying = *flow_.isVerifying;
    verify_.setVerifying(verifying);
    verify_.set_sensitive(flow_.hasToken() && !verifying);
    // The focus was lost when the pressed button became insensitive.
    if (!verifying && !get_focus())
        verify_.grab_focus();
}

void AddPageSheet::showResult() {
    error_.set_visible(flow_.errorMessage->has_value());
    error_.setMessage(flow_.errorMessage->value_or(""));
    picker_.set_visible(*flow_.tokenType == TokenType::userToken);
    acceptButton().set_sensitive(flow_.canAdd());
    if (const auto current = preview())
        show(*current);
    else
        previewSlide_.reveal(false);
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
    previewSlide_.reveal(true);
    if (shownPreview_ == preview)
        return;
    shownPreview_ = preview;
    if (auto* old = previewPlace_.get_first_child())
        previewPlace_.remove(*old);
    auto* box = Gtk::make_managed<PagePreview>(
        context_.images, preview.page, preview.avatarUrl, preview.caption);
    box->set_hexpand();
    previewPlace_.append(*box);
}

bool AddPageSheet::acceptByReturn() {
    if (!flow_.canAdd())
        return false;
    flow_.addSelectedPage();
    return true;
}

} // namespace tessaro
