#include "FuzzTarget.h"

#include "Platform/FileStore.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace {

/// Makes new inputs of kept ones. The same start makes the same inputs on every machine.
class Mutator {
public:
    explicit Mutator(const std::vector<std::string>& kept) : kept_(kept) {}

    std::string next() {
        auto input = anyKept();
        for (auto changes = below(4) + 1; changes > 0; --changes)
            change(input);
        return input;
    }

private:
    /// Puts other bytes, a piece of a kept input, or nothing in the place of some.
    void change(std::string& input) {
        std::string piece(below(4), static_cast<char>(below(256)));
        if (below(2)) {
            const auto& other = anyKept();
            piece = other.substr(below(other.size() + 1), below(64));
        }
        const auto at = below(input.size() + 1);
        input.replace(at, below(8) ? below(16) : std::string::npos, piece);
    }

    const std::string& anyKept() { return kept_[below(kept_.size())]; }
    std::size_t below(std::size_t limit) { return random_() % limit; }

    const std::vector<std::string>& kept_;
    std::mt19937 random_; // Always from its own start: the same inputs in every run.
};

std::string input;   ///< What is being read.
const char* finding; ///< The file for what breaks the reader.

void keepInput(int signal) {
    std::ofstream(finding, std::ios::binary) << input;
    std::printf("broken by the input in %s\n", finding);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void feed(std::string bytes) {
    input = std::move(bytes);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

} // namespace

/// usage: fuzz_READER FOLDER SECONDS FINDING
///
/// Runs a fuzz target over every file of the folder, and then over inputs made from them until the
/// time is up: what was found once stays mended, and what is new is found soon, with any compiler.
/// An input that breaks it is written to the file FINDING.
int main(int count, char** arguments) {
    if (count != 4)
        return 2;
    finding = arguments[3];
    for (const int signal : {SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL})
        std::signal(signal, keepInput);
    std::vector<std::string> kept;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1]))
        kept.push_back(tessaro::readFile(entry.path()).value());
    if (kept.empty())
        return 2;
    std::ranges::sort(kept); // The folder's own order differs between machines.
    std::ranges::for_each(kept, feed);
    Mutator mutator(kept);
    const auto end =
        std::chrono::steady_clock::now() + std::chrono::seconds(std::stoi(arguments[2]));
    long made = 0;
    for (; std::chrono::steady_clock::now() < end; ++made)
        feed(mutator.next());
    std::printf("%zu kept inputs and %ld made of them\n", kept.size(), made);
}
