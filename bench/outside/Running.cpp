#include "outside/Running.h"

#include "support/ProcessTree.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <thread>

namespace tessaro::bench {

namespace {

constexpr auto patience = std::chrono::seconds(10);

/// The number after "KEY:" in a file of proc(5); -1 when the process is gone.
long readNumber(const std::filesystem::path& file, const std::string& key) {
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);)
        if (line.starts_with(key + ":"))
            return std::stol(line.substr(key.size() + 1));
    return -1;
}

std::filesystem::path folderOf(int process) {
    return "/proc/" + std::to_string(process);
}

/// How often each thread of the tree has gone to sleep so far.
std::map<std::string, long> sleepsByThread() {
    std::map<std::string, long> sleeps;
    for (const auto& process : test::processTree()) {
        std::error_code gone;
        for (const auto& thread :
             std::filesystem::directory_iterator(folderOf(process.id) / "task", gone))
            sleeps[thread.path().filename()] =
                readNumber(thread.path() / "status", "voluntary_ctxt_switches");
    }
    return sleeps;
}

/// Waits for the whole tree to end. False when it does not in time.
bool waitForAll() {
    const auto deadline = Clock::now() + patience;
    while (Clock::now() < deadline) {
        const int ended = waitpid(-1, nullptr, WNOHANG);
        if (ended < 0)
            return true;
        if (ended == 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return false;
}

} // namespace

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

Running::Running(const std::vector<std::string>& command) {
    prctl(PR_SET_CHILD_SUBREAPER, 1); // Orphans of the tree come to this process.
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[0], STDIN_FILENO);
    for (const int output : {STDOUT_FILENO, STDERR_FILENO})
        posix_spawn_file_actions_addopen(&actions, output, "/dev/null", O_WRONLY, 0);
    std::vector<char*> arguments;
    for (const auto& word : command)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    started_ = Clock::now();
    const int error =
        posix_spawnp(&process_, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[0]);
    input_ = ends[1];
    if (error)
        throw std::runtime_error("cannot start " + command.front());
}

Running::~Running() {
    close(input_);
    kill(process_, SIGTERM);
    if (waitForAll())
        return;
    for (const auto& process : test::processTree())
        kill(process.id, SIGKILL);
    waitForAll();
}

void Running::write(const std::string& line) const {
    const auto bytes = line + "\n";
    if (::write(input_, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
        throw std::runtime_error("the program takes no line");
}

double Running::memory() const {
    double kibibytes = 0;
    for (const auto& process : test::processTree()) {
        const auto folder = folderOf(process.id);
        const auto share = readNumber(folder / "smaps_rollup", "Pss");
        // A process that has ended has an empty command line, or none at all.
        if (share < 0 && (process.commandLine.empty() || !std::filesystem::exists(folder)))
            continue;
        if (share < 0)
            throw std::runtime_error("the memory of " + process.commandLine + " cannot be read");
        kibibytes += static_cast<double>(share);
    }
    return kibibytes / 1024;
}

double Running::wakeUps(std::chrono::seconds during) const {
    const auto before = sleepsByThread();
    std::this_thread::sleep_for(during);
    long count = 0;
    for (const auto& [thread, sleeps] : sleepsByThread()) {
        const auto known = before.find(thread);
        count += sleeps - (known == before.end() ? 0 : known->second);
    }
    return static_cast<double>(count) / static_cast<double>(during.count());
}

} // namespace tessaro::bench
