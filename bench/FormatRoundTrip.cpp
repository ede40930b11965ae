/// @file
/// format_round_trip [COUNT [SEED]]: writes random doubles in random notations, reads them again, and
/// compares the shortcut of the digits with the standard library's conversion on the way. 100 million unless
/// told otherwise; ends at the first number that comes back as another.
///
/// Too long for the normal tests, which take a sample of it (tests/text/FormatEngineeringRoundTripTest.cpp).

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>

#include "tests/text/RoundTrip.h"
#include "text/DecimalDigits.h"

namespace {

constexpr std::uint64_t cnUsualCount = 100'000'000;

/// All exponents alike for one half, those of everyday numbers for the other.
double Draw(std::mt19937_64& random) {
    const std::uint64_t bits = random();
    if (bits % 2 == 0) return std::bit_cast<double>(random());
    const std::uint64_t exponent = 1023 - 95 + bits / 2 % 165;
    return std::bit_cast<double>((random() & ~(std::uint64_t{0x7FF} << 52U)) | exponent << 52U);
}

bool HasSameDigits(double value, std::uint64_t choice) {
    char ours[64];
    char library[64];
    const std::size_t count = 2 + choice % 16;
    const int point = vapp_text::WriteDecimalDigits(value, count, ours);
    return point == vapp_text::ConvertDecimalDigits(value, count, library) &&
           std::memcmp(ours + 1, library + 1, count) == 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::uint64_t count = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : cnUsualCount;
    const std::uint64_t seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : std::random_device()();
    std::mt19937_64 random(seed);
    text_test::TRoundTrip trip;
    for (std::uint64_t done = 0; done < count;) {
        const double value = Draw(random);
        if (!std::isfinite(value)) continue;
        const std::uint64_t choice = random();
        if (!trip.Check(value, choice) || !HasSameDigits(value, choice)) {
            std::printf("seed %llu: %.17g came back as another from \"%s\"\n",
                        static_cast<unsigned long long>(seed), value, trip.Text().c_str());
            return 1;
        }
        ++done;
    }
    std::printf("seed %llu: %llu doubles, ParseEngineering at most %.1f units off\n",
                static_cast<unsigned long long>(seed), static_cast<unsigned long long>(count),
                trip.MostUnits());
    return 0;
}
