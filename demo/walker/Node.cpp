#include "Node.h"

namespace tessaro::demo {

namespace {

/// How long the program may take to answer one question, in milliseconds. The library's default of
/// 800 is too short on a busy machine, where a late answer would look like a missing control.
constexpr int answerLimit = 10'000;

} // namespace

void Node::startLibrary() {
    atspi_init();
    atspi_set_timeout(answerLimit, answerLimit);
}

std::optional<Node> Node::ofProcess(int processId) {
    const auto desktop = GObjectPtr<AtspiAccessible>::adopt(atspi_get_desktop(0));
    for (const Node& program : Node(desktop).children())
        if (atspi_accessible_get_process_id(program.accessible_.get(), GErrorSlot().out()) ==
            static_cast<guint>(processId)) {
            // The library's cache is off. It was seen to keep the program itself in the place of a
            // new window.
            atspi_accessible_set_cache_mask(program.accessible_.get(), ATSPI_CACHE_NONE);
            return program;
        }
    return std::nullopt;
}

std::string Node::name() const {
    return takeString(atspi_accessible_get_name(accessible_.get(), GErrorSlot().out()));
}

AtspiRole Node::role() const {
    return atspi_accessible_get_role(accessible_.get(), GErrorSlot().out());
}

bool Node::has(AtspiStateType state) const {
    const auto states =
        GObjectPtr<AtspiStateSet>::adopt(atspi_accessible_get_state_set(accessible_.get()));
    return states && atspi_state_set_contains(states.get(), state);
}

bool Node::isEnabled() const {
    return has(ATSPI_STATE_SENSITIVE) || has(ATSPI_STATE_ENABLED);
}

std::vector<Node> Node::children() const {
    std::vector<Node> result;
    const int count = atspi_accessible_get_child_count(accessible_.get(), GErrorSlot().out());
    for (int i = 0; i < count; ++i) {
        auto child = GObjectPtr<AtspiAccessible>::adopt(
            atspi_accessible_get_child_at_index(accessible_.get(), i, GErrorSlot().out()));
        if (child)
            result.emplace_back(std::move(child));
    }
    return result;
}

std::string Node::text() const {
    const auto text =
        GObjectPtr<AtspiText>::adopt(atspi_accessible_get_text_iface(accessible_.get()));
    return text ? takeString(atspi_text_get_text(text.get(), 0, -1, GErrorSlot().out())) : "";
}

bool Node::press(const std::string& action) const {
    const auto actions =
        GObjectPtr<AtspiAction>::adopt(atspi_accessible_get_action_iface(accessible_.get()));
    if (!actions)
        return false;
    const int count = atspi_action_get_n_actions(actions.get(), GErrorSlot().out());
    for (int i = 0; i < count; ++i) {
        const auto name =
            takeString(atspi_action_get_action_name(actions.get(), i, GErrorSlot().out()));
        if (action.empty() || name == action)
            return atspi_action_do_action(actions.get(), i, GErrorSlot().out());
    }
    return false;
}

bool Node::setText(const std::string& text) const {
    const auto field = GObjectPtr<AtspiEditableText>::adopt(
        atspi_accessible_get_editable_text_iface(accessible_.get()));
    return field &&
           atspi_editable_text_set_text_contents(field.get(), text.c_str(), GErrorSlot().out());
}

bool Node::focus() const {
    const auto component =
        GObjectPtr<AtspiComponent>::adopt(atspi_accessible_get_component_iface(accessible_.get()));
    return component && atspi_component_grab_focus(component.get(), GErrorSlot().out());
}

std::optional<Node> Node::find(const std::function<bool(const Node&)>& wanted) const {
    if (wanted(*this))
        return *this;
    for (const Node& child : children())
        if (auto found = child.find(wanted))
            return found;
    return std::nullopt;
}

std::string Node::describeTree(int depth) const {
    std::string line(static_cast<std::size_t>(2 * depth), ' ');
    line += takeString(atspi_accessible_get_role_name(accessible_.get(), GErrorSlot().out()));
    line += " \"" + name() + "\"";
    if (const auto content = text(); !content.empty() && content != name())
        line += " = " + content;
    if (!isEnabled())
        line += " (disabled)";
    line += "\n";
    for (const Node& child : children())
        line += child.describeTree(depth + 1);
    return line;
}

} // namespace tessaro::demo
