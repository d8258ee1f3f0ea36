#pragma once

#include "Program.h"
#include "Screen.h"

#include <filesystem>
#include <string>
#include <vector>

namespace tessaro::demo {

/// Another program on the display. It offers things on the clipboard, or by a window from which
/// they can be dragged.
class OtherProgram {
public:
    static constexpr const char* windowTitle = "Chương trình khác";

    /// @param binary  tessaro-demo-other-program
    /// @param output  a file that takes what it prints
    /// @param words   what it is asked for, such as {"copy", "files", "/tmp/a.txt"}
    OtherProgram(
        const std::filesystem::path& binary, const std::filesystem::path& output,
        const std::vector<std::string>& words);

    /// Whether it offers what it was asked for.
    bool isReady() const;
    /// Takes hold of what can be dragged; false while its window is not there. What is held is
    /// dragged by moving the pointer and dropped by releasing its button.
    bool grab(const Screen& screen) const;

private:
    const std::filesystem::path output_;
    Program process_;
};

} // namespace tessaro::demo
