#include "OtherProgram.h"

#include "Steps.h"

namespace tessaro::demo {

namespace {

std::vector<const char*> argumentsOf(const std::vector<std::string>& words) {
    std::vector<const char*> arguments;
    for (const auto& word : words)
        arguments.push_back(word.c_str());
    return arguments;
}

/// What another one has printed there would be taken for this one's.
std::filesystem::path removed(const std::filesystem::path& file) {
    std::filesystem::remove(file);
    return file;
}

} // namespace

OtherProgram::OtherProgram(
    const std::filesystem::path& binary, const std::filesystem::path& output,
    const std::vector<std::string>& words)
    : output_(removed(output)), process_(binary, output, argumentsOf(words)) {}

bool OtherProgram::isReady() const {
    return readFile(output_).find("ready\n") != std::string::npos;
}

bool OtherProgram::grab(const Screen& screen) const {
    const auto window = screen.findWindow(windowTitle);
    if (!window)
        return false;
    // Below the window's own bar, and further than a click trembles.
    const int x = window->x + window->width / 2, y = window->y + window->height * 2 / 3;
    screen.movePointer(x, y);
    screen.pressButton();
    for (int step = 5; step <= 40; step += 5)
        screen.movePointer(x + step, y);
    return true;
}

} // namespace tessaro::demo
