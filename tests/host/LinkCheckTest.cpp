/// States of drawings in graphs of instances, against the plain definition.

#include "host/LinkCheck.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

#include "host/LibraryScan.h"

namespace navigator {
namespace {

/// A graph of numbered drawings.
struct TestGraph {
    std::vector<ViewFile> files;
    std::vector<std::vector<std::size_t>> edges;
    std::set<std::size_t> unresolved;
    std::map<const ViewFile*, LinkState> settled;

    explicit TestGraph(std::size_t count) : files(count), edges(count) {}

    std::size_t NumberOf(const ViewFile* file) const { return static_cast<std::size_t>(file - files.data()); }

    void Settle(std::size_t start) {
        LinkGraph graph;
        graph.expand = [this](const ViewFile* file) {
            LinkTargets links;
            for (const std::size_t target : edges[NumberOf(file)])
                links.targets.push_back(&files[target]);
            links.hasUnresolved = unresolved.contains(NumberOf(file));
            return links;
        };
        graph.isSettled = [this](const ViewFile* file) { return settled.contains(file); };
        graph.settle = [this](const ViewFile* file, LinkState state) {
            EXPECT_TRUE(settled.emplace(file, state).second) << "settled twice";
        };
        gSettleLinks(&files[start], graph);
    }

    /// The definition, without any cleverness.
    LinkState Expected(std::size_t start) const {
        std::set<std::size_t> seen;
        std::vector<std::size_t> open = edges[start];
        while (!open.empty()) {
            const std::size_t next = open.back();
            open.pop_back();
            if (next == start) return LinkState::Cycle;
            if (seen.insert(next).second) open.insert(open.end(), edges[next].begin(), edges[next].end());
        }
        return unresolved.contains(start) ? LinkState::Unresolved : LinkState::Normal;
    }
};

TEST(LinkCheck, AgreesWithTheDefinitionOnRandomGraphs) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (int round = 0; round < 500; ++round) {
        const std::size_t count = 1 + random() % 12;
        TestGraph graph(count);
        for (std::size_t edge = random() % (2 * count); edge > 0; --edge)
            graph.edges[random() % count].push_back(random() % count);
        if (random() % 2 == 0) graph.unresolved.insert(random() % count);
        for (std::size_t start = 0; start < count; ++start)
            graph.Settle((start * 5 + 3) % count);
        for (std::size_t start = 0; start < count; ++start) {
            graph.Settle(start);
            EXPECT_EQ(graph.settled.at(&graph.files[start]), graph.Expected(start)) << start;
        }
    }
}

TEST(LinkCheck, AChainOfManyThousandInstancesCostsNoStack) {
    constexpr std::size_t count = 300000;
    TestGraph graph(count);
    for (std::size_t number = 0; number + 1 < count; ++number)
        graph.edges[number].push_back(number + 1);
    graph.unresolved.insert(count - 1);
    graph.Settle(0);
    EXPECT_EQ(graph.settled.size(), count);
    EXPECT_EQ(graph.settled.at(&graph.files[0]), LinkState::Normal);
    EXPECT_EQ(graph.settled.at(&graph.files[count - 1]), LinkState::Unresolved);
}

}  // namespace
}  // namespace navigator
