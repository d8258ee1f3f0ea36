#pragma once

#include "HttpTypes.h"

namespace tessaro::demo {

/// Answers "/latest/inbox/…": the message inbox of one Page, its conversations, their videos and
/// voice messages, the files that are attached to them, a help page.
class InboxSite {
public:
    InboxSite();
    Reply answer(const Request& request);
    /// The open page's latest report of how it is shown; null before the first one. The page
    /// reports whenever one of these changes: which of its bars are visible, whether it wears a
    /// dark style, its width, where the cursor is, which conversation is open, what is written and
    /// attached, whether it may show notifications, how much it has played and recorded. A
    /// plain page reports its title.
    const nlohmann::json& view() const { return view_; }

private:
    Reply answerFile(const Request& request, const std::string& name);

    nlohmann::json view_;
    std::map<std::string, std::string> files_; ///< Contents by name, drawn or sent here.
};

/// The little page that a link of the program's footer opens.
Reply answerLink(const Request& request);
/// The server's own front page.
Reply answerFrontPage();

} // namespace tessaro::demo
