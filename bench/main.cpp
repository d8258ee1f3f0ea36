#include "Home.h"
#include "Table.h"
#include "outside/Site.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <string_view>

using namespace tessaro::bench;

namespace {

Figures figuresNamed(std::string_view part) {
    Figures wanted;
    const auto site = std::make_shared<const Site>();
    for (auto figures : {waitFigures(site), holdFigures(site), storeFigures(), screenFigures()})
        for (auto& figure : figures)
            if (figure.name.find(part) != std::string::npos)
                wanted.push_back(std::move(figure));
    return wanted;
}

int run(int argc, char** argv) {
    int rounds = 5;
    int next = 1;
    if (next + 1 < argc && std::strcmp(argv[next], "--rounds") == 0) {
        rounds = std::atoi(argv[next + 1]);
        next += 2;
    }
    if (argc - next > 1 || rounds < 1) {
        std::fputs("usage: tessaro-bench [--rounds N] [PART-OF-A-NAME]\n", stderr);
        return 2;
    }
    const Home home;
    const auto figures = figuresNamed(next < argc ? argv[next] : "");
    if (figures.empty()) {
        std::fputs("no figure has such a name; these have:\n", stderr);
        for (const auto& figure : figuresNamed(""))
            std::fprintf(stderr, "  %s\n", figure.name.c_str());
        return 2;
    }
    return printTable(figures, rounds) ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tessaro-bench: %s\n", error.what());
        return 2;
    }
}
