// Engineering numbers against a model of their grammar and arithmetic, against the correctly rounded value,
// and each width of characters against the others.

#include <gtest/gtest.h>

#include <bit>
#include <cerrno>
#include <charconv>
#include <cmath>

#include "tests/text/HostileText.h"
#include "tests/text/NumberModels.h"
#include "vapp/text/ParseEngineering.h"

namespace {

using namespace text_test;
using vapp::ParseEngineering;

std::uint64_t Bits(double value) {
    // The sign of a NaN is not part of any result.
    return std::bit_cast<std::uint64_t>(std::isnan(value) ? std::abs(value) : value);
}

/// Text that is nearly a number: pieces of the grammar, in the grammar's order most of the time.
std::string NearlyNumber(std::mt19937& random) {
    static constexpr std::string_view suffixes[] = {
        "",  "",  "k", "M",  "m", "meg", "MeG",  "mil", "Mi", "f", "ft", "FT",
        "T", "%", "x", "X",  "E", "e",   "y",    "Y",   "z",  "Z", "a",  "A",
        "p", "P", "u", "me", "n", "G",   "\x7f", " k",  "K",  "g", "F",  "ohm"};
    static constexpr std::string_view noise = "0123456789.+-eEkKmMfFtTgGiIlL% \t\x7fxXaApPuUnNyYzZ";
    const auto digits = [&random](std::size_t longest) {
        std::string text;
        for (std::size_t left = UpTo(random, longest); left > 0; --left)
            text += static_cast<char>('0' + UpTo(random, 9));
        return text;
    };
    const auto sign = [&random] {
        return std::string(UpTo(random, 3) == 0 ? UpTo(random, 1) == 0 ? "-" : "+" : "");
    };
    std::string text(UpTo(random, 2), " \t\r"[UpTo(random, 2)]);
    text += sign();
    text += digits(UpTo(random, 9) == 0 ? 30 : 5);
    if (UpTo(random, 1) == 0) text += "." + digits(UpTo(random, 9) == 0 ? 30 : 5);
    if (UpTo(random, 2) == 0)
        text += (UpTo(random, 1) == 0 ? "e" : "E") + sign() + digits(UpTo(random, 9) == 0 ? 25 : 3);
    text += suffixes[UpTo(random, std::size(suffixes) - 1)];
    for (std::size_t changes = UpTo(random, 7) / 6; changes > 0; --changes)
        text.insert(UpTo(random, text.size()), 1, noise[UpTo(random, noise.size() - 1)]);
    return text;
}

template <typename Unit>
std::basic_string<Unit> Widened(const std::string& text, std::size_t foreign) {
    std::basic_string<Unit> wide;
    for (const char c : text)
        wide += c == '\x7f' ? static_cast<Unit>(foreign) : static_cast<Unit>(c);
    return wide;
}

/// Reads with one width of characters; characters 0x7F stand for `foreign`.
template <typename Unit>
TEngineeringReading Read(const std::string& text, bool si, std::size_t foreign) {
    const ExactCopy<Unit> exact(Widened<Unit>(text, foreign));
    TEngineeringReading reading;
    const Unit* end = nullptr;
    errno = 0;
    reading.number = ParseEngineering(exact.Get(), &reading.value, &end, si).IsEmpty();
    reading.rangeError = errno == ERANGE;
    if (end != nullptr) reading.end = end - exact.Get();
    return reading;
}

void ExpectSame(const TEngineeringReading& got, const TEngineeringReading& wanted, const std::string& text) {
    ASSERT_EQ(got.number, wanted.number) << Shown(text);
    ASSERT_EQ(Bits(got.value), Bits(wanted.value)) << Shown(text) << got.value << " " << wanted.value;
    ASSERT_EQ(got.end, wanted.end) << Shown(text);
    ASSERT_EQ(got.rangeError, wanted.rangeError) << Shown(text);
}

TEST(ParseEngineeringModel, EveryWidthReadsWhatTheGrammarSays) {
    std::mt19937 random = SeededRandom();
    for (int i = 0; i < 15000; ++i) {
        const std::string text = NearlyNumber(random);
        const bool si = UpTo(random, 1) != 0;
        const TEngineeringReading wanted = ReadEngineeringByRules(text, si);
        ExpectSame(Read<char>(text, si, 0x80 + UpTo(random, 0x7F)), wanted, text);
        ExpectSame(Read<char16_t>(text, si, 0x80 + UpTo(random, 0xFF7F)), wanted, text);
        ExpectSame(Read<wchar_t>(text, si, 0x80 + UpTo(random, 0xFF7F)), wanted, text);
        if (sizeof(wchar_t) > 2) {
            ExpectSame(Read<wchar_t>(text, si, 0x10000 + UpTo(random, 0xFFFFF)), wanted, text);
        }
    }
}

TEST(ParseEngineeringModel, EveryExponentGivesTheToldPower) {
    for (const std::string_view digits : {"1", "7", "123456789012345678", "0.3", "999999999999999999999"}) {
        for (int exponent = -600; exponent <= 600; ++exponent) {
            const std::string text = std::string(digits) + "e" + std::to_string(exponent);
            ExpectSame(Read<char>(text, false, 0), ReadEngineeringByRules(text, false), text);
        }
    }
}

/// Steps from one double to another of the same sign.
std::int64_t Distance(double a, double b) {
    return std::abs(std::bit_cast<std::int64_t>(a) - std::bit_cast<std::int64_t>(b));
}

TEST(ParseEngineeringModel, TheValueIsCloseToTheCorrectlyRoundedOne) {
    std::mt19937 random = SeededRandom();
    std::int64_t farthest = 0;
    for (int i = 0; i < 200000; ++i) {
        std::string text = std::to_string(1 + UpTo(random, 8));
        for (std::size_t left = UpTo(random, 17); left > 0; --left)
            text += static_cast<char>('0' + UpTo(random, 9));
        text += "e" + std::to_string(static_cast<int>(UpTo(random, 580)) - 300);
        double exact = 0;
        const auto result = std::from_chars(text.data(), text.data() + text.size(), exact);
        const double value = Read<char>(text, false, 0).value;
        // At the upper end a last step may leave the range.
        if (result.ec != std::errc() || exact > 1e300) continue;
        farthest = std::max(farthest, Distance(value, exact));
        ASSERT_LE(Distance(value, exact), 8) << text;
    }
    std::cout << "at most " << farthest << " steps of a double from the correctly rounded value\n";
}

TEST(ParseEngineeringModel, ShortNumbersAreExact) {
    std::mt19937 random = SeededRandom();
    for (int i = 0; i < 50000; ++i) {
        const std::string text = std::to_string(UpTo(random, 999999999999999)) + "e" +
                                 std::to_string(static_cast<int>(UpTo(random, 44)) - 22);
        double exact = 0;
        std::from_chars(text.data(), text.data() + text.size(), exact);
        ASSERT_EQ(Bits(Read<char>(text, false, 0).value), Bits(exact)) << text;
    }
}

}  // namespace
