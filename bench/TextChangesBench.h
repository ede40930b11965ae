/// @file
/// The frame of the benches that change whole texts: trimming, quotes, replacing, case, splitting.
///
/// A peer makes its own form of the texts before the time is taken; each operation gives a new text, for a
/// text that is changed in place has to come from somewhere, and every peer pays for that.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "bench/TextNames.h"

namespace text_bench {

/// What is done to the texts.
enum class Change {
    Trim,
    Quote,
    Unquote,
    ReplaceChar,
    ReplaceText,
    Lower,
    Upper,
    Tokens,
    TrimSet,            ///< the characters of a set off the left end
    TrimSetRight,       ///< and off the right one
    SpanOf,             ///< the head of characters of a set
    SpanTo,             ///< the head up to one of a set
    IsBlank,            ///< no text is made
    ReplaceCharNoCase,  ///< in either case
    ReplaceTextNoCase,  ///< in either case, by one as long
    QuotedList,         ///< read, and written again
};

/// Texts for a change, as UTF-8, always the same ones: blanks around them, quotes, commas in them.
/// Names are mostly short enough for a std::string to hold them in itself; with `lines` each text is several
/// of them, 100 characters and more.
[[nodiscard]] std::vector<std::string> TextsFor(Change change, bench_names::Script script, bool lines);

/// Times `Peer`, which has a type Text, Make from UTF-8, and `std::size_t Run<Change>(const Text&)`, the
/// number of characters of the result or of all tokens. The counter "chars" must agree between peers.
template <typename Peer, Change What>
void TimeChanges(benchmark::State& state, bench_names::Script script, bool lines) {
    const Peer peer;
    std::vector<typename Peer::Text> texts;
    for (const std::string& text : TextsFor(What, script, lines))
        texts.push_back(peer.Make(text));
    std::size_t chars = 0;
    for (const auto& text : texts)
        chars += peer.template Run<What>(text);
    for (auto _ : state) {
        for (const auto& text : texts)
            benchmark::DoNotOptimize(peer.template Run<What>(text));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(texts.size()));
    state.counters["chars"] = static_cast<double>(chars);
}

template <typename Peer, Change What>
void RegisterChange(const std::string& group, const std::string& name, bool asciiOnly) {
    using bench_names::Script;
    for (const Script script : {Script::Ascii, Script::NonAscii}) {
        if (asciiOnly && script != Script::Ascii) continue;
        for (const bool lines : {false, true}) {
            const std::string kind = script == Script::Ascii ? "/ascii" : "/nonascii";
            benchmark::RegisterBenchmark(
                (group + kind + (lines ? "lines/" : "/") + name).c_str(),
                [script, lines](benchmark::State& state) { TimeChanges<Peer, What>(state, script, lines); });
        }
    }
}

/// Registers a peer for all changes and scripts, as CHANGE/script/PEER.
template <typename Peer>
void RegisterChanges(const std::string& name, bool asciiOnly = false) {
    RegisterChange<Peer, Change::Trim>("trim", name, asciiOnly);
    RegisterChange<Peer, Change::Quote>("quote", name, asciiOnly);
    RegisterChange<Peer, Change::Unquote>("unquote", name, asciiOnly);
    RegisterChange<Peer, Change::ReplaceChar>("replacechar", name, asciiOnly);
    RegisterChange<Peer, Change::ReplaceText>("replacetext", name, asciiOnly);
    RegisterChange<Peer, Change::Lower>("lower", name, asciiOnly);
    RegisterChange<Peer, Change::Upper>("upper", name, asciiOnly);
    RegisterChange<Peer, Change::Tokens>("tokens", name, asciiOnly);
}

/// Those that replace in either case.
template <typename Peer>
void RegisterNoCaseChanges(const std::string& name, bool asciiOnly = false) {
    RegisterChange<Peer, Change::ReplaceCharNoCase>("replacecharnocase", name, asciiOnly);
    RegisterChange<Peer, Change::ReplaceTextNoCase>("replacetextnocase", name, asciiOnly);
}

/// Registers a peer for the changes that only ours and the standard string's peers have.
template <typename Peer>
void RegisterMoreChanges(const std::string& name, bool asciiOnly = false) {
    RegisterChange<Peer, Change::TrimSet>("trimset", name, asciiOnly);
    RegisterChange<Peer, Change::TrimSetRight>("trimsetright", name, asciiOnly);
    RegisterChange<Peer, Change::SpanOf>("spanof", name, asciiOnly);
    RegisterChange<Peer, Change::SpanTo>("spanto", name, asciiOnly);
    RegisterChange<Peer, Change::IsBlank>("isblank", name, asciiOnly);
    RegisterNoCaseChanges<Peer>(name, asciiOnly);
    RegisterChange<Peer, Change::QuotedList>("quotedlist", name, asciiOnly);
}

/// Our operations beside the standard string's and ICU's.
void RegisterChangePeers();
/// Those that need Qt; empty in a build without it.
void RegisterQtChangePeers();

}  // namespace text_bench
