#include "Views/Inbox/SitePermissions.h"

#include <utility>

namespace tessaro {

namespace {

struct Question {
    const char* key; ///< Of the kept answer.
    const char* title;
    const char* wish; ///< What the site wants.
};

Question questionFor(WebPermissions::Kind kind) {
    switch (kind) {
    case WebPermissions::Kind::notifications:
        return {
            SiteConsent::notifications, "Cho phép hiện thông báo?",
            "hiện thông báo trên màn hình, chẳng hạn khi có tin nhắn mới"};
    case WebPermissions::Kind::microphone:
        return {
            SiteConsent::microphone, "Cho phép dùng micrô?",
            "ghi âm bằng micrô của máy này, chẳng hạn để gửi tin nhắn thoại"};
    default:
        return {
            SiteConsent::camera, "Cho phép dùng camera?",
            "ghi hình bằng camera của máy này, chẳng hạn để gửi ảnh hoặc video"};
    }
}

SiteConsent consentFor(const ScreenContext& context, const char* key) {
    return {context.settings, key, originOf(context.endpoints.inboxOrigin)};
}

} // namespace

SitePermissions::SitePermissions(
    const ScreenContext& context, const std::shared_ptr<WebView>& webView)
    : context_(context), webView_(webView) {
    webView->permissions().setDelegate(this);
}

SitePermissions::~SitePermissions() {
    context_.inbox.recording.set({});
    if (const auto webView = webView_.lock())
        webView->permissions().setDelegate(nullptr);
}

std::string SitePermissions::notifyingOrigin(const ScreenContext& context) {
    return consentFor(context, SiteConsent::notifications).permittedOrigin();
}

bool SitePermissions::isAskedByInbox() const {
    const auto webView = webView_.lock();
    // While another page is on its way, the address is not of the page that asks.
    return webView && !webView->isAwaitingPage() &&
           context_.endpoints.isInboxSite(webView->address());
}

void SitePermissions::didRequestPermission(
    WebPermissions::Request request, std::function<void(bool)> answer) {
    const bool records = request.kinds != std::vector{Kind::notifications};
    if (records && !request.followsInput)
        answer(false);
    else
        decide(std::move(request.kinds), std::move(answer));
}

void SitePermissions::decide(std::vector<Kind> kinds, std::function<void(bool)> answer) {
    if (kinds.empty() || !isAskedByInbox())
        return answer(kinds.empty());
    const Kind first = kinds.front();
    kinds.erase(kinds.begin());
    decide(
        first, [this, alive = lifetime_.watch(), kinds = std::move(kinds),
                answer = std::move(answer)](bool isGranted) {
            if (alive && isGranted)
                decide(kinds, answer);
            else
                answer(false);
        });
}

void SitePermissions::decide(Kind kind, std::function<void(bool)> answer) {
    const Question question = questionFor(kind);
    SiteConsent consent = consentFor(context_, question.key);
    if (const auto kept = consent.answer())
        return answer(*kept);
    auto& waiting = waiting_[kind];
    if (waiting)
        return waiting->push_back(std::move(answer));
    waiting = std::make_shared<Answers>(Answers{std::move(answer)});
    context_.modals.show(
        {.title = question.title,
         .message = context_.endpoints.inboxHost() + " muốn " + question.wish +
                    ". Tessaro ghi nhớ câu trả lời.",
         .buttons = {"Không cho phép", "Cho phép"}},
        [this, alive = lifetime_.watch(), kind, waiting = waiting,
         consent](std::optional<std::size_t> button) mutable {
            if (alive)
                waiting_.erase(kind);
            const bool isGranted = button == 1;
            if (button) // Who only closes the question is asked again.
                consent.keep(isGranted);
            for (const auto& answered : *waiting)
                answered(isGranted);
        });
}

void SitePermissions::didRefuse(const std::string& kind) {
    if (logged_.insert(kind).second)
        context_.logger.log("SitePermissions: Đã từ chối yêu cầu của trang: " + kind, "INFO");
}

void SitePermissions::didChangeRecording(WebPermissions::Recording recording) {
    context_.inbox.recording.set(recording);
}

} // namespace tessaro
