// One task of the program in this process: says what it cost on standard output. Under callgrind
// only the task is counted and not what prepares it.

#include "Figure.h"
#include "Home.h"
#include "Records.h"
#include "TessaroApp.h"
#include "inside/Instructions.h"
#include "inside/MainContent.h"

#include "Views/Shell/Resources.h"

#include <adwaita.h>
#include <gtkmm/init.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <map>
#include <optional>
#include <string>

using namespace tessaro;
using namespace tessaro::bench;

namespace {

constexpr int timedSelections = 40;
/// The first Pages start the engine and fill its caches.
constexpr int warmUps = 3;

MainContent onScreen(int accountCount) {
    Gtk::init_gtkmm_internals();
    adw_init();
    registerResources();
    return MainContent(accountCount);
}

/// Each of the values is smaller than or equal to it but that part.
double percentile(std::vector<double> values, double part) {
    std::ranges::sort(values);
    return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

double select(int accountCount) {
    auto content = onScreen(accountCount);
    std::vector<double> taken;
    for (int i = 0; i < timedSelections; ++i)
        taken.push_back(content.selectNextAccount());
    return percentile(std::move(taken), 0.5);
}

double scroll(int accountCount) {
    return percentile(onScreen(accountCount).scrollAccounts().frames, 0.99);
}

double rows(int accountCount) {
    return static_cast<double>(onScreen(accountCount).scrollAccounts().mostButtons);
}

/// Milliseconds for each.
double switchPages(int count) {
    auto content = onScreen(1);
    content.selectNextAccount();
    for (int i = 0; i < warmUps; ++i)
        content.openNextPage();
    return milliseconds([&] {
               for (int i = 0; i < count; ++i)
                   content.openNextPage();
           }) /
           count;
}

/// From here to the end of the first frame.
double start(int accountCount) {
    const Home home;
    const auto accounts = makeAccounts(accountCount);
    writeRecords(accounts, makePages(accounts, accountCount), "http://127.0.0.1:9");
    static std::optional<Instructions> counted;
    g_type_class_ref(GDK_TYPE_FRAME_CLOCK); // Else its signals are not there yet.
    return milliseconds([] {
        g_signal_add_emission_hook(
            g_signal_lookup("after-paint", GDK_TYPE_FRAME_CLOCK), 0,
            [](GSignalInvocationHint*, guint, const GValue*, gpointer) -> gboolean {
                counted.reset();
                g_application_quit(g_application_get_default());
                return G_SOURCE_REMOVE;
            },
            nullptr, nullptr);
        counted.emplace();
        TessaroApp().run(0, nullptr);
    });
}

double save(int pageCount) {
    test::StoreWorld world;
    auto pages = makePages(makeAccounts(1), pageCount);
    return milliseconds([&] {
        const Instructions counted;
        world.store.savePages(std::move(pages));
    });
}

double load(int pageCount) {
    test::StoreWorld world;
    world.store.savePages(makePages(makeAccounts(1), pageCount));
    auto fresh = world.newStore();
    return milliseconds([&] {
        const Instructions counted;
        fresh.loadPages();
    });
}

double log(int lines) {
    test::StoreWorld world;
    const std::string message = "Graph API answered 200 for the Pages of one account after 184 ms";
    const auto taken = milliseconds([&] {
        const Instructions counted;
        for (int i = 0; i < lines; ++i)
            world.logger.log(message, "INFO");
    });
    world.logger.flush(std::chrono::minutes(1));
    return taken;
}

const std::map<std::string, double (*)(int)> tasks{
    {"select", select}, {"scroll", scroll}, {"rows", rows}, {"switch", switchPages},
    {"start", start},   {"load", load},     {"save", save}, {"log", log},
};

} // namespace

int main(int argc, char** argv) {
    const auto task = argc == 3 ? tasks.find(argv[1]) : tasks.end();
    if (task == tasks.end()) {
        std::fputs("usage: tessaro-bench-inside TASK SIZE; the tasks are:", stderr);
        for (const auto& [name, ignored] : tasks)
            std::fprintf(stderr, " %s", name.c_str());
        std::fputs("\n", stderr);
        return 2;
    }
    try {
        std::printf("%f\n", task->second(std::atoi(argv[2])));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tessaro-bench-inside: %s\n", error.what());
        return 2;
    }
}
