#include "Table.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string_view>

using namespace tessaro::bench;

namespace {

int run(int argc, char** argv) {
    int rounds = 5;
    std::string_view only;
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string_view option = argv[i];
        if (option == "--rounds")
            rounds = std::atoi(argv[i + 1]);
        else if (option == "--only")
            only = argv[i + 1];
        else
            argc = 0;
    }
    if (argc % 2 == 0 || rounds < 1) {
        std::fputs("usage: tessaro-bench [--rounds N] [--only PART-OF-A-NAME]\n", stderr);
        return 2;
    }
    Figures wanted;
    for (auto figures : {storeFigures(), logFigures()})
        for (auto& figure : figures)
            if (figure.name.find(only) != std::string::npos)
                wanted.push_back(std::move(figure));
    if (wanted.empty()) {
        std::fputs("no figure has such a name\n", stderr);
        return 2;
    }
    return printTable(wanted, rounds) ? 0 : 1;
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
