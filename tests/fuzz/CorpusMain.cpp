#include "FuzzTarget.h"

#include "Platform/FileStore.h"

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
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
    void change(std::string& input) {
        const auto at = below(input.size() + 1);
        const auto length = below(std::min<std::size_t>(input.size() - at, 16) + 1);
        switch (below(5)) {
        case 0: // Some bytes are others.
            for (std::size_t i = at; i < at + length; ++i)
                input[i] = static_cast<char>(below(256));
            break;
        case 1: // A bit is flipped.
            if (at < input.size())
                input[at] = static_cast<char>(input[at] ^ (1 << below(8)));
            break;
        case 2: // Some bytes are gone, or all that follow.
            input.erase(at, below(8) ? length : std::string::npos);
            break;
        case 3: // Some bytes are there many times.
            for (auto times = below(8) ? 1 : below(100); times > 0; --times)
                input.insert(at, input.substr(at, length));
            break;
        default: // A piece of another input stands in their place.
            const auto& other = anyKept();
            input.replace(at, length, other, below(other.size() + 1), below(64));
        }
    }

    const std::string& anyKept() { return kept_[below(kept_.size())]; }
    std::size_t below(std::size_t limit) { return random_() % limit; }

    const std::vector<std::string>& kept_;
    std::mt19937 random_; // Always from its own start: the same inputs in every run.
};

/// The input that is being read, where the parent process sees it.
struct Current {
    static constexpr std::size_t most = 1 << 20;
    std::size_t size;
    char bytes[most];

    std::string_view text() const { return {bytes, size}; }
    void set(std::string_view input) {
        size = input.size();
        input.copy(bytes, size);
    }
};

int readInputs(const std::filesystem::path& folder, std::chrono::seconds time, Current& current) {
    const auto end = std::chrono::steady_clock::now() + time;
    const auto read = [&](const std::string& input) {
        current.set(input);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    };
    std::vector<std::string> kept;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        kept.push_back(tessaro::readFile(entry.path()).value());
    if (kept.empty())
        return 1;
    std::ranges::sort(kept); // The folder's own order differs between machines.
    std::ranges::for_each(kept, read);
    Mutator mutator(kept);
    long made = 0;
    for (; std::chrono::steady_clock::now() < end; ++made)
        read(mutator.next().substr(0, Current::most));
    std::printf("%zu kept inputs and %ld made of them\n", kept.size(), made);
    return 0;
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
    void* const shared =
        mmap(nullptr, sizeof(Current), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (shared == MAP_FAILED)
        return 2;
    auto& current = *static_cast<Current*>(shared);
    const pid_t child = fork();
    if (child == 0)
        return readInputs(arguments[1], std::chrono::seconds(std::stoi(arguments[2])), current);
    int status = 0;
    if (waitpid(child, &status, 0) == child && status == 0)
        return 0;
    std::ofstream(arguments[3], std::ios::binary) << current.text();
    std::printf("broken by the input in %s\n", arguments[3]);
    return 1;
}
