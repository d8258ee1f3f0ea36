#pragma once

#include "Engine/WebViewDelegate.h"

#include "Views/Modals.h"

namespace tessaro {

/// The part of a browser's delegate that shows the questions of its pages as alerts of the program.
class ScriptDialogs : public WebViewDelegate {
public:
    void runScriptAlert(const std::string& message, std::function<void()> completion) override;
    void
    runScriptConfirm(const std::string& message, std::function<void(bool)> completion) override;
    void runLeaveConfirm(std::function<void(bool)> completion) override;

protected:
    /// @param modals  outlives this and every alert
    explicit ScriptDialogs(Modals& modals) : modals_(modals) {}

private:
    /// Completes with whether it was the button at that index that ended the alert.
    void ask(ModalAlert question, std::size_t button, std::function<void(bool)> completion);

    Modals& modals_;
};

} // namespace tessaro
