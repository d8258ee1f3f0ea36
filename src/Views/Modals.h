#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessaro {

/// A question or a message in front of the main window.
struct ModalAlert {
    std::string title; ///< May be empty.
    std::string message;
    /// Their labels. The first one has the focus, so that Return presses it. An alert that nobody
    /// asked for may come up under typing hands: it puts first what does no harm.
    std::vector<std::string> buttons;
};

/// Shows modal alerts; a test puts one in its place that answers by itself. UI thread only.
class Modals {
public:
    /// Gets the index of the button that was pressed; nothing when the alert went in another way:
    /// by Escape, or with the window beneath it.
    using Answered = std::function<void(std::optional<std::size_t> button)>;

    virtual ~Modals() = default;

    /// Shows the alert and returns at once. `answered` is called exactly once. Alerts asked for
    /// while one is shown follow it in turn.
    virtual void show(ModalAlert alert, Answered answered) = 0;
};

} // namespace tessaro
