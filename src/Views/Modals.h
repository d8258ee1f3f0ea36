#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessaro {

/// A message to the person, with buttons to answer it.
struct ModalAlert {
    std::string title; ///< May be empty.
    std::string message;
    /// The labels of the buttons. The first button has the focus, so Return presses it. An alert
    /// that the person did not ask for may appear while they type, so its first button must do no
    /// harm.
    std::vector<std::string> buttons;
};

/// Shows modal alerts. UI thread only.
class Modals {
public:
    /// Gets the index of the pressed button, or nothing when Escape or the closing of the window
    /// beneath dismissed the alert.
    using Answered = std::function<void(std::optional<std::size_t> button)>;

    virtual ~Modals() = default;

    /// Shows the alert and returns at once. Several alerts are shown one after the other.
    /// `answered` is called exactly once.
    virtual void show(ModalAlert alert, Answered answered) = 0;
};

} // namespace tessaro
