#pragma once

#include <webkit/webkit.h>

#include <utility>

namespace tessaro {

/// A question of a page, which waits for the answer for as long as this exists.
class WebKitOpenDialog {
public:
    explicit WebKitOpenDialog(WebKitScriptDialog* dialog)
        : dialog_(webkit_script_dialog_ref(dialog)) {}
    ~WebKitOpenDialog() { close(); }
    WebKitOpenDialog(const WebKitOpenDialog&) = delete;
    WebKitOpenDialog& operator=(const WebKitOpenDialog&) = delete;

    /// The engine's signal has returned: the answer will come later.
    void outliveSignal() { isInSignal_ = false; }

    void close() {
        if (WebKitScriptDialog* dialog = std::exchange(dialog_, nullptr)) {
            // A dialog that nobody holds after its signal is closed by the engine, which crashes
            // when that was done before.
            if (!isInSignal_)
                webkit_script_dialog_close(dialog);
            webkit_script_dialog_unref(dialog);
        }
    }
    void confirm(bool confirmed) {
        if (dialog_)
            webkit_script_dialog_confirm_set_confirmed(dialog_, confirmed);
        close();
    }

private:
    WebKitScriptDialog* dialog_;
    bool isInSignal_ = true;
};

} // namespace tessaro
