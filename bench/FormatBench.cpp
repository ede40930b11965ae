/// @file
/// FormatEngineering beside std::to_chars in scientific form with the same count of digits, the least that a
/// correct text can cost, and beside snprintf-based code that gives the same text, which is what a program
/// without this room would have.
///
/// Not a test; but the snprintf code is not timed, and says why, where its texts differ from ours. What a
/// text costs in allocations is counted by tests/text/FormatEngineeringAllocationTest.cpp.
#include <benchmark/benchmark.h>

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "vapp/text/FormatEngineering.h"

namespace {

using vapp::FormatEngineering;

std::vector<double> MakeValues() {
    std::mt19937_64 random(20190200);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    std::uniform_int_distribution<int> exponent(-17, 14);
    std::vector<double> values(4096);
    for (double& value : values)
        value = mantissa(random) * std::pow(10.0, exponent(random));
    return values;
}

const std::vector<double>& Values() {
    static const std::vector<double> values = MakeValues();
    return values;
}

CStringU Ours(double value, unsigned digits) {
    return FormatEngineering(value, digits, true, false, true, TeUnitScale::Si, true);
}

/// What one writes at hand: "%e" for the digits, the point moved, the letter looked up, zeroes taken off.
std::string ByPrintf(double value, unsigned digits) {
    static const char* const letters[] = {"a", "f", "p", "n", "u", "m", "", "k", "M", "G", "T", "P"};
    char scientific[64];
    std::snprintf(scientific, sizeof scientific, "%.*e", static_cast<int>(digits) - 1, std::fabs(value));
    const int exponent = std::atoi(std::strchr(scientific, 'e') + 1);
    const int thousands = (exponent >= 0 ? exponent : exponent - 2) / 3;
    const int before = exponent - 3 * thousands + 1;
    const std::string all = std::string(1, scientific[0]) + std::string(scientific + 2, digits - 1);
    const std::string left = all.substr(0, static_cast<std::size_t>(before));
    std::string right = all.substr(static_cast<std::size_t>(before));
    right.erase(right.find_last_not_of('0') + 1);
    char text[96];
    std::snprintf(text, sizeof text, "%s%s%s%s%s", value < 0.0 ? "-" : "", left.c_str(),
                  right.empty() ? "" : ".", right.c_str(), letters[thousands + 6]);
    return text;
}

void FormatOurs(benchmark::State& state) {
    const auto digits = static_cast<unsigned>(state.range(0));
    for (auto _ : state) {
        for (const double value : Values())
            benchmark::DoNotOptimize(Ours(value, digits));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(Values().size()));
}

void FormatToChars(benchmark::State& state) {
    const int precision = static_cast<int>(state.range(0)) - 1;
    for (auto _ : state) {
        for (const double value : Values()) {
            char text[64];
            benchmark::DoNotOptimize(
                std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, precision));
            benchmark::ClobberMemory();
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(Values().size()));
}

void FormatByPrintf(benchmark::State& state) {
    const auto digits = static_cast<unsigned>(state.range(0));
    for (const double value : Values()) {
        if (Ours(value, digits) != CStringU(ByPrintf(value, digits).c_str())) {
            state.SkipWithError("the texts differ");
            return;
        }
    }
    for (auto _ : state) {
        for (const double value : Values())
            benchmark::DoNotOptimize(ByPrintf(value, digits));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(Values().size()));
}

BENCHMARK(FormatOurs)
    ->Name("format/FormatEngineering")
    ->ArgName("digits")
    ->Arg(3)
    ->Arg(4)
    ->Arg(6)
    ->Arg(12)
    ->Arg(17);
BENCHMARK(FormatToChars)
    ->Name("format/to_chars")
    ->ArgName("digits")
    ->Arg(3)
    ->Arg(4)
    ->Arg(6)
    ->Arg(12)
    ->Arg(17);
BENCHMARK(FormatByPrintf)
    ->Name("format/snprintf")
    ->ArgName("digits")
    ->Arg(3)
    ->Arg(4)
    ->Arg(6)
    ->Arg(12)
    ->Arg(17);

}  // namespace
