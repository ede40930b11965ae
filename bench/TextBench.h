/// @file
/// The frame of a compare bench: a peer makes its own form of the names before the time is taken, so that no
/// peer pays for a conversion that its user could have done once.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "bench/TextNames.h"

namespace text_bench {

using bench_names::Meeting;
using bench_names::Script;

/// Times `Peer`, which has a type Name made from a UTF-8 std::string, and an operator() on two Names that
/// gives the sign of their order. The counter "less" must agree between peers of the same order.
template <typename Peer>
void TimeCompares(benchmark::State& state, Script script, Meeting meeting) {
    const Peer peer;
    std::vector<std::pair<typename Peer::Name, typename Peer::Name>> names;
    for (const auto& [left, right] : bench_names::Pairs(script, meeting)) {
        names.emplace_back(peer.Make(left), peer.Make(right));
    }
    std::size_t less = 0;
    for (const auto& [left, right] : names)
        less += static_cast<std::size_t>(peer(left, right) < 0);
    for (auto _ : state) {
        for (const auto& [left, right] : names)
            benchmark::DoNotOptimize(peer(left, right));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(names.size()));
    state.counters["less"] = static_cast<double>(less);
}

/// Registers a peer for all scripts and meetings, as GROUP/script/meeting/PEER.
template <typename Peer>
void Register(const std::string& group, const std::string& name, bool asciiOnly = false) {
    const std::pair<Script, const char*> scripts[] = {{Script::Ascii, "ascii"},
                                                      {Script::NonAscii, "nonascii"}};
    const std::pair<Meeting, const char*> meetings[] = {
        {Meeting::Neighbours, "neighbours"}, {Meeting::Random, "random"}, {Meeting::OtherCase, "othercase"}};
    for (const auto& [script, scriptName] : scripts) {
        if (asciiOnly && script != Script::Ascii) continue;
        for (const auto& [meeting, meetingName] : meetings) {
            benchmark::RegisterBenchmark((group + "/" + scriptName + "/" + meetingName + "/" + name).c_str(),
                                         [script = script, meeting = meeting](benchmark::State& state) {
                                             TimeCompares<Peer>(state, script, meeting);
                                         });
        }
    }
}

/// The peers that need Qt; empty in a build without it.
void RegisterQtPeers();

}  // namespace text_bench
