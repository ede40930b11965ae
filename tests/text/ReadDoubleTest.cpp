// strtod without its locale: every form by tables, and random numbers beside the C library's own strtod,
// which is in the plain locale here.

#include "text/ReadDouble.h"

#include <gtest/gtest.h>

#include <bit>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include "tests/text/HostileText.h"

namespace {

using namespace text_test;
using vapp_text::ReadDouble;

constexpr double cnReadInfinity = std::numeric_limits<double>::infinity();
constexpr double cnNan = std::numeric_limits<double>::quiet_NaN();

struct TReadRow {
    const char* text;
    double value;
    std::ptrdiff_t end;
    int error = 0;
};

const TReadRow cnReadRows[] = {
    {"", 0, 0},
    {"abc", 0, 0},
    {" ", 0, 0},
    {"-", 0, 0},
    {"+", 0, 0},
    {".", 0, 0},
    {"-.e5", 0, 0},
    {"e5", 0, 0},
    {"+-5", 0, 0},
    {"-+5", 0, 0},
    {"--5", 0, 0},
    {"1.5k", 1.5, 3},
    {" \t\n\v\f\r+1.5", 1.5, 10},
    {"1,5", 1, 1},
    {"5.", 5, 2},
    {".5", 0.5, 2},
    {"-0", -0.0, 2},
    {"1e", 1, 1},
    {"1e+", 1, 1},
    {"1e5", 1e5, 3},
    {"1E-5", 1e-5, 4},
    {"1e+5x", 1e5, 4},
    {"1d5", 1, 1},
    {"1234567890123456789012345", 1234567890123456789012345.0, 25},
    {"0.1", 0.1, 3},
    {"2.2250738585072014e-308", 2.2250738585072014e-308, 23},
    {"4.9406564584124654e-324", 4.9406564584124654e-324, 23},
    {"1.7976931348623157e308", 1.7976931348623157e308, 22},
    {"1e309", cnReadInfinity, 5, ERANGE},
    {"-1e309", -cnReadInfinity, 6, ERANGE},
    {"1e99999999999999999999999", cnReadInfinity, 25, ERANGE},
    {"1e-400", 0, 6, ERANGE},
    {"-1e-99999999999999999999999", -0.0, 27, ERANGE},
    {"0.000000000000000000001e-400", 0, 28, ERANGE},
    {"0e99999999999999999999999", 0, 25},
    {"0x10", 16, 4},
    {"0X1.8p1", 3, 7},
    {"0x.8", 0.5, 4},
    {"-0xap-1", -5, 7},
    {"0x", 0, 1},
    {"0x.", 0, 1},
    {"0xg", 0, 1},
    {"0x.p5", 0, 1},
    {"0x-1", 0, 1},
    {"0xinf", 0, 1},
    {"0x1p", 1, 3},
    {"0x1p+", 1, 3},
    {"0x1e5", 0x1e5, 5},
    {"0x1p1024", cnReadInfinity, 8, ERANGE},
    {"-0x1p99999999999999999999", -cnReadInfinity, 25, ERANGE},
    {"0x1p-1080", 0, 9, ERANGE},
    {"0x0.0001p1080", cnReadInfinity, 13, ERANGE},
    {"0x0p99999", 0, 9},
    {"inf", cnReadInfinity, 3},
    {"-INF", -cnReadInfinity, 4},
    {"Infinity", cnReadInfinity, 8},
    {"infinit", cnReadInfinity, 3},
    {"in", 0, 0},
    {"nan", cnNan, 3},
    {"NaN(abc_1)", cnNan, 10},
    {"nan(", cnNan, 3},
    {"nan(-)", cnNan, 3},
};

TEST(ReadDouble, ReadsByTheTable) {
    for (const TReadRow& row : cnReadRows) {
        const ExactBytes text(row.text);
        const char* end = nullptr;
        errno = 0;
        const double value = ReadDouble(text.Get(), &end);
        EXPECT_EQ(errno, row.error) << row.text;
        EXPECT_EQ(end - text.Get(), row.end) << row.text;
        EXPECT_EQ(std::isnan(value), std::isnan(row.value)) << row.text;
        if (std::isnan(row.value)) continue;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(row.value)) << row.text;
    }
}

// Without an exponent the count of digits alone decides.
TEST(ReadDouble, LongNumbersAreOutOfRangeToo) {
    const std::string nines(400, '9');
    const std::string zeroes = "0." + std::string(400, '0') + "1";
    struct TLong {
        std::string text;
        double value;
        int error;
    };
    const TLong rows[] = {
        {nines, cnReadInfinity, ERANGE},     {"-" + nines, -cnReadInfinity, ERANGE},
        {nines + ".5e-400", 1, 0},           {zeroes, 0, ERANGE},
        {"-" + zeroes, -0.0, ERANGE},        {zeroes + "e401", 1, 0},
        {std::string(400, '0') + "7", 7, 0}, {"0." + std::string(400, '0'), 0, 0},
    };
    for (const TLong& row : rows) {
        const ExactBytes text(row.text);
        const char* end = nullptr;
        errno = 0;
        const double value = ReadDouble(text.Get(), &end);
        EXPECT_EQ(errno, row.error) << row.text;
        EXPECT_EQ(static_cast<std::size_t>(end - text.Get()), row.text.size()) << row.text;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(row.value)) << row.text;
    }
}

TEST(ReadDouble, TheEndMayBeNull) {
    EXPECT_EQ(ReadDouble("2.5", nullptr), 2.5);
    EXPECT_EQ(ReadDouble("x", nullptr), 0);
}

TEST(ReadDouble, ErrnoStaysWhereNothingIsOutOfRange) {
    errno = EDOM;
    ReadDouble("1.5", nullptr);
    ReadDouble("x", nullptr);
    ReadDouble("4.9e-324", nullptr);
    EXPECT_EQ(errno, EDOM);
}

std::string NearlyDouble(std::mt19937& random) {
    static constexpr std::string_view decimal = "0123456789";
    static constexpr std::string_view hexadecimal = "0123456789abcdefABCDEF";
    const bool hex = UpTo(random, 3) == 0;
    const auto digits = [&](std::string_view set, std::size_t longest) {
        std::string text;
        for (std::size_t left = UpTo(random, longest); left > 0; --left)
            text += set[UpTo(random, set.size() - 1)];
        return text;
    };
    std::string text(UpTo(random, 1), ' ');
    text += std::string_view("-+").substr(UpTo(random, 2), 1);
    if (hex) text += UpTo(random, 1) == 0 ? "0x" : "0X";
    const std::size_t longest = UpTo(random, 9) == 0 ? 40 : 8;
    text += digits(hex ? hexadecimal : decimal, longest);
    if (UpTo(random, 1) == 0) text += "." + digits(hex ? hexadecimal : decimal, longest);
    if (UpTo(random, 1) == 0) {
        text += hex ? "p" : "e";
        text += std::string_view("-+").substr(UpTo(random, 2), 1);
        text += digits(decimal, hex ? 4 : 3);
    }
    if (UpTo(random, 5) == 0) text.insert(UpTo(random, text.size()), 1, "xXeEpP.-+kinfa("[UpTo(random, 14)]);
    return text;
}

TEST(ReadDouble, RandomNumbersReadAsByStrtod) {
    std::mt19937 random = SeededRandom();
    for (int i = 0; i < 100000; ++i) {
        const std::string bytes = NearlyDouble(random);
        const ExactBytes text(bytes);
        const char* end = nullptr;
        const double value = ReadDouble(text.Get(), &end);
        char* wantedEnd = nullptr;
        const double wanted = std::strtod(text.Get(), &wantedEnd);
        ASSERT_EQ(end - text.Get(), wantedEnd - text.Get()) << bytes;
        if (std::isnan(value) && std::isnan(wanted)) continue;
        // Some C libraries give a zero with a sign for what is no number.
        if (end == text.Get() && value == 0 && wanted == 0) continue;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(wanted)) << bytes;
    }
}

}  // namespace
