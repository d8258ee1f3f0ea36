#include "Views/Shell/FooterBar.h"

#include "Services/LogExcerpt.h"
#include "Views/Widgets/Accessible.h"
#include "Views/Widgets/Layout.h"

#include <gtkmm/revealer.h>
#include <gtkmm/separator.h>

#include <vector>

namespace tessaro {

namespace {

constexpr unsigned hoverMilliseconds = 150;

/// A link to the maker.
struct FooterLink {
    const char* id; ///< Also the style class that gives the link its colour.
    const char* icon;
    const char* label;
    std::string url;
};

std::vector<FooterLink> socialLinks(const Endpoints& endpoints) {
    return {
        {"messenger", "message.fill", "Messenger", endpoints.linkMessenger},
        {"telegram", "paperplane.fill", "Telegram", endpoints.linkTelegram},
        {"zalo", "ellipsis.message.fill", "Zalo", endpoints.linkZalo},
        {"website", "globe", "Website", endpoints.linkWebsite},
        {"donate", "heart.fill", "Donate", endpoints.linkDonate},
    };
}

/// The button of a link: a symbol, followed by the label while the pointer is over the button.
Gtk::Button& linkButton(const FooterLink& link) {
    auto& label = *Gtk::make_managed<Gtk::Label>(link.label);
    label.set_css_classes({"points-10", "medium"});
    // The revealer gives the label its room; the style sheet fades and scales the label.
    auto& room = *Gtk::make_managed<Gtk::Revealer>();
    room.set_transition_type(Gtk::RevealerTransitionType::SLIDE_RIGHT);
    room.set_transition_duration(hoverMilliseconds);
    room.set_child(label);
    auto& row = *Gtk::make_managed<Gtk::Box>();
    appendAll(row, *Gtk::make_managed<Symbol>(link.icon, 11), room);
    auto& button = *Gtk::make_managed<Gtk::Button>();
    button.set_child(row);
    button.set_css_classes({"borderless", "footer-button", link.id});
    button.set_valign(Gtk::Align::CENTER);
    accessible::setTooltip(button, link.label);
    button.signal_state_flags_changed().connect([&button, &room](Gtk::StateFlags) {
        const auto hovered = button.get_state_flags() & Gtk::StateFlags::PRELIGHT;
        room.set_reveal_child(hovered != Gtk::StateFlags::NORMAL);
    });
    return button;
}

} // namespace

FooterBar::FooterBar(const ScreenContext& context, SupportClient& support)
    : context_(context), support_(support), supportButton_("Hỗ trợ", "exclamationmark.bubble", 10) {
    add_css_class("footer-bar");
    auto& dot = *Gtk::make_managed<Gtk::Box>();
    dot.add_css_class("footer-dot");
    dot.set_valign(Gtk::Align::CENTER);
    auto& divider = *Gtk::make_managed<Gtk::Separator>(Gtk::Orientation::VERTICAL);
    divider.set_valign(Gtk::Align::CENTER);
    supportButton_.set_css_classes({"borderless", "footer-button", "support"});
    supportButton_.set_valign(Gtk::Align::CENTER);
    supportButton_.set_tooltip_text("Gửi log hỗ trợ kỹ thuật");
    supportButton_.signal_clicked().connect([this] { sendSupportLogs().detach(); });
    auto& space = *Gtk::make_managed<Gtk::Box>();
    space.set_hexpand();
    appendAll(
        *this, dot, textLine("Phiên bản v1.0", {"points-10", "medium", "secondary-text"}), divider,
        supportButton_, space);
    for (const auto& link : socialLinks(context.endpoints)) {
        auto& button = linkButton(link);
        button.signal_clicked().connect(
            [this, url = link.url] { context_.desktop.openAddress(url); });
        append(button);
    }
}

Task<void> FooterBar::sendSupportLogs() {
    const auto alive = lifetime_.watch();
    supportButton_.setState(true, true);
    const auto sent = co_await support_.uploadLog(
        context_.logger.currentLogURL().filename(), logExcerpt(context_.logger.readCurrentLog()));
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
