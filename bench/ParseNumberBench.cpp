/// @file
/// Reading of numbers beside std::from_chars and strtod.
///
/// The texts are such as stand in netlists: a few digits, mostly with a point, mostly with a suffix. The
/// peers read the number and stop at the suffix, so that ours does more. Not a test: the counter "sum" only
/// shows that the readers saw the same texts.
#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "vapp/text/CStringU.h"
#include "vapp/text/ParseEngineering.h"

namespace {

/// Texts like "1.5k", "470", "3.3n": many different ones, so that no reader learns the branches by heart.
std::vector<std::string> MakeTexts(bool suffixes) {
    std::mt19937 random(20190200);
    const auto upTo = [&random](unsigned last) {
        return std::uniform_int_distribution<unsigned>(0, last)(random);
    };
    static constexpr const char* endings[] = {"k", "MEG", "m", "u", "n", "p", "f", "g", "", ""};
    std::vector<std::string> texts;
    for (int i = 0; i < 4096; ++i) {
        std::string text = std::to_string(upTo(i % 2 == 0 ? 9 : 999));
        if (upTo(3) != 0) {
            text += '.';
            text += std::to_string(upTo(i % 3 == 0 ? 999 : 9));
        }
        if (suffixes) text += endings[upTo(9)];
        texts.push_back(text);
    }
    return texts;
}

struct OursSpice {
    double operator()(const std::string& text) const {
        double value = 0;
        const char* end = nullptr;
        static_cast<void>(vapp::ParseEngineering(text.c_str(), &value, &end, false));
        benchmark::DoNotOptimize(end);
        return value;
    }
};

struct OursSi {
    double operator()(const std::string& text) const {
        double value = 0;
        const char* end = nullptr;
        static_cast<void>(vapp::ParseEngineering(text.c_str(), &value, &end, true));
        benchmark::DoNotOptimize(end);
        return value;
    }
};

struct FromChars {
    double operator()(const std::string& text) const {
        double value = 0;
        benchmark::DoNotOptimize(std::from_chars(text.data(), text.data() + text.size(), value).ptr);
        return value;
    }
};

struct Strtod {
    double operator()(const std::string& text) const {
        char* end = nullptr;
        const double value = std::strtod(text.c_str(), &end);
        benchmark::DoNotOptimize(end);
        return value;
    }
};

template <typename Reader>
void Read(benchmark::State& state) {
    const std::vector<std::string> texts = MakeTexts(state.range(0) != 0);
    const Reader reader;
    double sum = 0;
    for (auto _ : state) {
        sum = 0;
        for (const std::string& text : texts)
            sum += reader(text);
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(texts.size()));
    state.counters["sum"] = sum;
}

BENCHMARK(Read<OursSpice>)->Name("parse/ParseEngineering_spice")->ArgName("suffixes")->Arg(1)->Arg(0);
BENCHMARK(Read<OursSi>)->Name("parse/ParseEngineering_si")->ArgName("suffixes")->Arg(1)->Arg(0);
BENCHMARK(Read<FromChars>)->Name("parse/from_chars")->ArgName("suffixes")->Arg(1)->Arg(0);
BENCHMARK(Read<Strtod>)->Name("parse/strtod")->ArgName("suffixes")->Arg(1)->Arg(0);

}  // namespace
