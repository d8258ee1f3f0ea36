// Selects accounts and prints the median time of one selection, in milliseconds.

#include "Table.h"
#include "inside/MainContent.h"

#include "Views/Shell/Resources.h"

#include <adwaita.h>
#include <gtkmm/init.h>

#include <cstdio>
#include <cstdlib>
#include <exception>

using namespace tessaro;
using namespace tessaro::bench;

namespace {

constexpr int timedSelections = 40;

double select(int accountCount) {
    MainContent content(accountCount);
    std::vector<double> taken;
    for (int i = 0; i < timedSelections; ++i)
        taken.push_back(content.selectNextAccount());
    return median(std::move(taken));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: tessaro-bench-inside NUMBER-OF-ACCOUNTS\n", stderr);
        return 2;
    }
    try {
        Gtk::init_gtkmm_internals();
        adw_init();
        registerResources();
        std::printf("%f\n", select(std::atoi(argv[1])));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tessaro-bench-inside: %s\n", error.what());
        return 2;
    }
}
