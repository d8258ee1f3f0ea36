#include "Walk.h"

#include <fstream>
#include <iostream>
#include <thread>

namespace tessaro::demo {

namespace {

constexpr auto pause = std::chrono::milliseconds(50);

/// Handles what the other processes have sent, then waits a little.
void breathe() {
    while (g_main_context_iteration(nullptr, FALSE)) {
    }
    std::this_thread::sleep_for(pause);
}

/// Toolkits of different age give the same control different roles.
bool isOfKind(AtspiRole role, Wanted::Kind kind) {
    switch (kind) {
    case Wanted::Kind::button:
        return role == ATSPI_ROLE_PUSH_BUTTON || role == ATSPI_ROLE_TOGGLE_BUTTON ||
               role == ATSPI_ROLE_CHECK_BOX || role == ATSPI_ROLE_RADIO_BUTTON;
    case Wanted::Kind::field:
        return role == ATSPI_ROLE_TEXT || role == ATSPI_ROLE_ENTRY ||
               role == ATSPI_ROLE_PASSWORD_TEXT;
    case Wanted::Kind::label:
        return role == ATSPI_ROLE_LABEL || role == ATSPI_ROLE_HEADING;
    case Wanted::Kind::dialog:
        return role == ATSPI_ROLE_DIALOG || role == ATSPI_ROLE_ALERT;
    case Wanted::Kind::window:
        return role == ATSPI_ROLE_FRAME;
    }
    return false;
}

std::string describe(const Wanted& wanted) {
    static const char* const kinds[] = {"button", "field", "label", "dialog", "window"};
    return std::string(kinds[static_cast<int>(wanted.kind)]) + " \"" + wanted.name + "\"";
}

} // namespace

Walk::Walk(Places places, Look look)
    : places_(std::move(places)), look_(look), server_(places_.origin) {
    Node::startLibrary();
    if (!screen_.isOpen())
        throw WalkFailure("no display");
    screen_.paintGround(0xb8c0cc);
}

void Walk::step(const std::string& what) const {
    std::cout << "• " << what << std::endl;
}

void Walk::startProgram() {
    program_.emplace(places_.program, places_.pictures / "program-output.txt");
    expect("the window", [&] { return screen_.findWindow(mainWindow().name).has_value(); });
    expect("the program on the accessibility bus", [&] {
        return Node::ofProcess(processId()).has_value();
    });
}

void Walk::closeProgram() {
    see(mainWindow()).press("window.close");
    if (!program_->endsWell(std::chrono::seconds(20)))
        throw WalkFailure("the program did not end when its window was closed");
    program_.reset();
}

std::optional<Node> Walk::find(const Wanted& wanted) const {
    const auto program = Node::ofProcess(processId());
    if (!program)
        return std::nullopt;
    const auto matches = [&](const Node& node) {
        const bool isWindow = wanted.kind == Wanted::Kind::window;
        return isOfKind(node.role(), wanted.kind) &&
               (isWindow ? node.name().ends_with(wanted.name) : node.name() == wanted.name);
    };
    // Windows in front of the main window come first: a sheet's button may have the name of one
    // behind it.
    for (const bool inFront : {true, false})
        for (const Node& window : program->children())
            if ((window.role() != ATSPI_ROLE_FRAME) == inFront)
                if (auto found = window.find(matches))
                    return found;
    return std::nullopt;
}

Node Walk::see(const Wanted& wanted, Limit limit) const {
    std::optional<Node> found;
    expect(
        describe(wanted), [&] { return (found = find(wanted)).has_value(); }, limit);
    return *found;
}

void Walk::seeGone(const Wanted& wanted, Limit limit) const {
    expect(
        describe(wanted) + " to go", [&] { return !isThere(wanted); }, limit);
}

void Walk::press(const Wanted& wanted) const {
    expect(describe(wanted) + ", to press it", [&] {
        const auto found = find(wanted);
        return found && found->isEnabled() && found->press();
    });
}

void Walk::type(const Wanted& wanted, const std::string& text) const {
    expect(describe(wanted) + ", to type into it", [&] {
        const auto found = find(wanted);
        return found && found->setText(text);
    });
}

void Walk::expect(
    const std::string& what, const std::function<bool()>& condition, Limit limit) const {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (program_ && !program_->isRunning())
            throw WalkFailure("the program ended while waiting for " + what);
        if (std::chrono::steady_clock::now() > deadline)
            throw WalkFailure("waited in vain for " + what);
        breathe();
    }
}

void Walk::expectOpened(const std::string& address) const {
    expect(address + " to be opened", [&] {
        std::ifstream lines(places_.opened);
        for (std::string line; std::getline(lines, line);)
            if (line == address || line == places_.origin + address)
                return true;
        return false;
    });
}

Screen::Area Walk::window() const {
    const auto area = screen_.findWindow(mainWindow().name);
    if (!area)
        throw WalkFailure("the window is gone");
    return *area;
}

void Walk::picture(const std::string& name, Limit limit) {
    ++pictures_;
    const std::string number = (pictures_ < 10 ? "0" : "") + std::to_string(pictures_);
    const auto file = places_.pictures / (number + "-" + name + ".png");
    const auto area = screen_.withPopovers(window());
    screen_.waitForRest(area, limit);
    if (!screen_.writePng(area, file))
        throw WalkFailure("no picture could be taken");
    std::cout << "    " << file.string() << std::endl;
}

void Walk::explainFailure() const {
    if (const auto area = screen_.findWindow(mainWindow().name))
        screen_.writePng(*area, places_.pictures / "failed.png");
    if (const auto program = Node::ofProcess(processId()))
        std::ofstream(places_.pictures / "failed.txt") << program->describeTree();
}

} // namespace tessaro::demo
