#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tessaro::test {

/// A window of another program, as the window manager knows it.
class ForeignWindow {
public:
    /// The windows on the display that have this class, the oldest first.
    static std::vector<ForeignWindow> ofClass(const std::string& name);

    std::string title() const;
    /// Whether it has the keyboard's focus.
    bool isActive() const;
    /// Asks it to close, as a task switcher does.
    void close() const;

private:
    explicit ForeignWindow(unsigned long id) : id_(id) {}
    unsigned long id_;
};

} // namespace tessaro::test
