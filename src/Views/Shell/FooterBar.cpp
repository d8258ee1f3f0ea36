#include "Views/Shell/FooterBar.h"

#include "Services/LogExcerpt.h"
#include "Views/Shell/FooterLinkButton.h"

#include <vector>

namespace tessaro {

namespace {

std::vector<FooterLink> socialLinks(const Endpoints& endpoints) {
    return {
        {"messenger", "message.fill", "Messenger", endpoints.linkMessenger},
        {"telegram", "paperplane.fill", "Telegram", endpoints.linkTelegram},
        {"zalo", "ellipsis.message.fill", "Zalo", endpoints.linkZalo},
        {"website", "globe", "Website", endpoints.linkWebsite},
        {"donate", "heart.fill", "Donate", endpoints.linkDonate},
    };
}

} // namespace

FooterBar::FooterBar(const ScreenContext& context, AppLogger& logger, SupportClient& support)
    : context_(context),
      logger_(logger),
      support_(support),
      version_("Phiên bản v1.0"),
      divider_(Gtk::Orientation::VERTICAL),
      supportButton_("Hỗ trợ", "exclamationmark.bubble", 10) {
    add_css_class("footer-bar");
    dot_.add_css_class("footer-dot");
    dot_.set_valign(Gtk::Align::CENTER);
    for (const auto* style : {"points-10", "medium", "secondary-text"})
        version_.add_css_class(style);
    divider_.set_valign(Gtk::Align::CENTER);
    supportButton_.set_css_classes({"borderless", "footer-button", "support"});
    supportButton_.set_valign(Gtk::Align::CENTER);
    supportButton_.set_tooltip_text("Gửi log hỗ trợ kỹ thuật");
    supportButton_.signal_clicked().connect([this] { sendSupportLogs().detach(); });
    space_.set_hexpand(true);

    append(dot_);
    append(version_);
    append(divider_);
    append(supportButton_);
    append(space_);
    for (const auto& link : socialLinks(context.endpoints)) {
        auto* const button = Gtk::make_managed<FooterLinkButton>(link);
        button->signal_clicked().connect(
            [this, url = link.url] { context_.desktop.openAddress(url); });
        append(*button);
    }
}

Task<void> FooterBar::sendSupportLogs() {
    const auto alive = lifetime_.watch();
    supportButton_.setState(true, true);
    const auto sent = co_await support_.uploadLog(
        logger_.currentLogURL().filename(), logExcerpt(logger_.readCurrentLog()));
    if (!alive)
        co_return;
    supportButton_.setState(true, false);
    if (!sent) {
        showLogAlert("Lỗi gửi log: " + sent.error().message);
        co_return;
    }
    const auto identifier = context_.device.getDeviceUUID();
    context_.desktop.copyText(identifier);
    showLogAlert(
        "Gửi log hỗ trợ thành công!\n\nUUID: " + identifier +
        "\n\nUUID đã được copy vào clipboard. Gửi UUID này qua Telegram để nhận hỗ trợ.");
}

void FooterBar::showLogAlert(std::string message) {
    const bool leadsToTelegram = message.find("thành công") != std::string::npos;
    context_.modals.show(
        {.title = "Hỗ Trợ Kỹ Thuật", .message = std::move(message), .buttons = {"OK"}},
        [&context = context_, leadsToTelegram](std::optional<std::size_t> button) {
            if (button && leadsToTelegram)
                context.desktop.openAddress(context.endpoints.linkTelegram);
        });
}

} // namespace tessaro
