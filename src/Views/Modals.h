#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tessaro {

/// A question or a message in front of the main window.
struct ModalAlert {
    struct Button {
        std::string label;
        bool isCancel = false; ///< Escape and closing choose this one.
    };
    std::string title; ///< May be empty.
    std::string message;
    std::vector<Button> buttons;
};

/// Shows modal alerts; a test puts one in its place that answers by itself. UI thread only.
class Modals {
public:
    virtual ~Modals() = default;

    /// Shows the alert and returns at once. `answered` gets the index of the button that ended it;
    /// it is called exactly once. Alerts asked for while one is shown follow it in turn.
    virtual void show(ModalAlert alert, std::function<void(std::size_t)> answered) = 0;
};

} // namespace tessaro
