#include "Table.h"

#include <algorithm>
#include <cstdio>

namespace tessaro::bench {

namespace {

struct Samples {
    std::vector<double> own;
    std::vector<std::vector<double>> peers; ///< One list for each target.
};

void measureOnce(const Figure& figure, Samples& samples) {
    samples.own.push_back(figure.measure());
    samples.peers.resize(figure.targets.size());
    for (std::size_t i = 0; i < figure.targets.size(); ++i)
        if (figure.targets[i].peer)
            samples.peers[i].push_back(figure.targets[i].peer());
}

/// Whether the target is met.
bool printLine(
    const Figure& figure, double own, const Target& target, const std::vector<double>& peers) {
    const auto* unit = figure.unit.c_str();
    std::printf("| %s | %.3f %s | ", figure.name.c_str(), own, unit);
    auto compared = own;
    if (target.peer) {
        const auto peer = median(peers);
        compared = own / peer;
        std::printf("%s: %.3f %s | %.2f | ", target.peerName.c_str(), peer, unit, compared);
        std::printf("at most %.2f times | ", target.limit);
    } else {
        std::printf("– | – | at most %g %s | ", target.limit, unit);
    }
    const bool met = compared <= target.limit;
    std::printf("%s |\n", met ? "met" : "not met");
    return met;
}

} // namespace

double median(std::vector<double> values) {
    std::ranges::sort(values);
    const auto middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

bool printTable(const Figures& figures, int rounds) {
    std::vector<Samples> samples(figures.size());
    for (int round = 1; round <= rounds; ++round)
        for (std::size_t i = 0; i < figures.size(); ++i) {
            std::fprintf(stderr, "round %d of %d: %s\n", round, rounds, figures[i].name.c_str());
            measureOnce(figures[i], samples[i]);
        }

    std::puts("| figure | median | floor or peer | ratio | target | |");
    std::puts("|---|---|---|---|---|---|");
    bool allMet = true;
    for (std::size_t i = 0; i < figures.size(); ++i)
        for (std::size_t j = 0; j < figures[i].targets.size(); ++j)
            allMet &= printLine(
                figures[i], median(samples[i].own), figures[i].targets[j], samples[i].peers[j]);
    return allMet;
}

} // namespace tessaro::bench
