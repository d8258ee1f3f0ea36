#pragma once

#include "Node.h"
#include "Program.h"
#include "Screen.h"
#include "ServerControl.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

namespace tessaro::demo {

/// A step that was not seen to happen; ends the walk.
struct WalkFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Identifies a control by its role and accessible name, or a window by the end of its name.
struct Wanted {
    enum class Kind { button, field, label, dialog, window } kind;
    std::string name;
};

inline Wanted button(std::string name) {
    return {Wanted::Kind::button, std::move(name)};
}
inline Wanted field(std::string name) {
    return {Wanted::Kind::field, std::move(name)};
}
inline Wanted label(std::string name) {
    return {Wanted::Kind::label, std::move(name)};
}
inline Wanted dialog(std::string name) {
    return {Wanted::Kind::dialog, std::move(name)};
}
/// The program's, whose title can begin with a count.
inline Wanted mainWindow() {
    return {Wanted::Kind::window, "Tessaro"};
}

/// How the desktop is set.
struct Look {
    double text = 1; ///< How many times as large as usual text is, and with it the page.
    int scale = 1;   ///< Pixels for a point.
};

/// A walk through the program as a user would take it: press, type, look, and wait until what is
/// expected is seen. Every wait has a limit and throws a WalkFailure when the limit has passed.
class Walk {
public:
    using Limit = std::chrono::milliseconds;
    static constexpr Limit patience = std::chrono::seconds(60);

    struct Places {
        std::filesystem::path program;  ///< The binary to walk through.
        std::filesystem::path data;     ///< Its records, "$XDG_DATA_HOME/Tessaro".
        std::filesystem::path settings; ///< Its settings file.
        std::filesystem::path pictures; ///< Where the PNGs go.
        std::filesystem::path opened;   ///< One line for each address that the desktop was to open.
        std::string origin;             ///< The demo server's.
    };
    explicit Walk(Places places, Look look = {});

    const Places& places() const { return places_; }
    const Look& look() const { return look_; }
    const ServerControl& server() const { return server_; }
    const Screen& screen() const { return screen_; }

    /// Prints what is about to be done.
    void step(const std::string& what) const;

    /// Starts the program and waits for its window.
    void startProgram();
    /// The process id of the running program; 0 when none runs.
    int processId() const { return program_ ? program_->processId() : 0; }
    /// Closes the window and waits for the program to end.
    void closeProgram();

    /// Waits for the control, looking in dialogs first.
    Node see(const Wanted& wanted, Limit limit = patience) const;
    /// Waits until there is no such control.
    void seeGone(const Wanted& wanted, Limit limit = patience) const;
    bool isThere(const Wanted& wanted) const { return find(wanted).has_value(); }
    /// Presses the control once it is there and enabled.
    void press(const Wanted& wanted) const;
    /// Replaces the text of the field.
    void type(const Wanted& wanted, const std::string& text) const;
    /// Waits for the condition.
    void expect(
        const std::string& what, const std::function<bool()>& condition,
        Limit limit = patience) const;

    /// Waits until the desktop was asked to open that address, or that path of the demo server.
    void expectOpened(const std::string& address) const;

    /// Where the main window is on the display.
    Screen::Area window() const;
    /// Writes a picture of the main window and what lies over it, once it has come to rest or a
    /// while has passed.
    void picture(const std::string& name, Limit limit = std::chrono::seconds(3));
    /// Writes a picture and the tree of controls, from which the fault can be found.
    void explainFailure() const;

private:
    std::optional<Node> find(const Wanted& wanted) const;

    Places places_;
    Look look_;
    ServerControl server_;
    Screen screen_;
    std::optional<Program> program_;
    int pictures_ = 0;
};

} // namespace tessaro::demo
