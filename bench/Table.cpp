#include "Table.h"

#include <algorithm>
#include <cstdio>

namespace tessaro::bench {

double median(std::vector<double> values) {
    std::ranges::sort(values);
    const auto middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

bool printTable(const Figures& figures, int rounds) {
    struct Samples {
        std::vector<double> own, peer;
    };
    std::vector<Samples> samples(figures.size());
    for (int round = 0; round < rounds; ++round)
        for (std::size_t i = 0; i < figures.size(); ++i) {
            samples[i].own.push_back(figures[i].measure());
            if (figures[i].peer)
                samples[i].peer.push_back(figures[i].peer());
        }

    std::puts("| figure | median | floor or peer | ratio | target | |");
    std::puts("|---|---|---|---|---|---|");
    bool allMet = true;
    for (std::size_t i = 0; i < figures.size(); ++i) {
        const auto& figure = figures[i];
        const auto own = median(samples[i].own);
        const auto* unit = figure.unit.c_str();
        std::printf("| %s | %.3f %s | ", figure.name.c_str(), own, unit);
        auto compared = own;
        if (figure.peer) {
            const auto peer = median(samples[i].peer);
            compared = own / peer;
            std::printf("%s: %.3f %s | %.2f | ", figure.peerName.c_str(), peer, unit, compared);
            std::printf("at most %.2f times | ", figure.limit);
        } else {
            std::printf("– | – | at most %g %s | ", figure.limit, unit);
        }
        const bool met = compared <= figure.limit;
        std::printf("%s |\n", met ? "met" : "not met");
        allMet = allMet && met;
    }
    return allMet;
}

} // namespace tessaro::bench
