#pragma once

#include "Platform/GHandle.h"

#include <atspi/atspi.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessaro::demo {

/// One control of the program as a screen reader sees it. Every question goes to the program. A
/// control that is gone answers with empty values.
class Node {
public:
    /// Starts the accessibility library; before anything else here.
    static void startLibrary();

    explicit Node(GObjectPtr<AtspiAccessible> accessible) : accessible_(std::move(accessible)) {}

    /// The running program of that process id; nothing until it has announced itself.
    static std::optional<Node> ofProcess(int processId);

    std::string name() const;
    AtspiRole role() const;
    bool has(AtspiStateType state) const;
    bool isEnabled() const;
    std::vector<Node> children() const;
    /// The text of a text field, a label or a paragraph.
    std::string text() const;

    /// Performs the control's action of that name, or its first one: a button's press. False when
    /// there is none.
    bool press(const std::string& action = {}) const;
    /// Replaces a text field's text.
    bool setText(const std::string& text) const;
    /// Puts the keyboard focus there.
    bool focus() const;

    /// The first of this node and those below it, depth first, for which `wanted` holds.
    std::optional<Node> find(const std::function<bool(const Node&)>& wanted) const;
    /// This node and everything below it, one line each, to find a fault by.
    std::string describeTree(int depth = 0) const;

private:
    GObjectPtr<AtspiAccessible> accessible_;
};

} // namespace tessaro::demo
