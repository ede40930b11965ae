/// @file
/// All but the hot path is one walk over two sides, a side being UTF-8 or UTF-16, with a limit that may be
/// endless. The hot path, the folded compare of two payloads, stands by itself: sorted containers hold names
/// with long common prefixes, and those are skipped by bytes before anything is decoded.
#include "text/Compare.h"

#include <algorithm>
#include <array>
#include <limits>

#include "text/Codec.h"
#include "text/CommonBytes.h"
#include "text/Fold.h"

namespace vapp_text {
namespace {

constexpr std::size_t cnUnlimited = std::numeric_limits<std::size_t>::max();

/// The next character of a side, 0 at its end, where the side stays.
char16_t NextChar(const char*& walk) noexcept {
    return *walk == '\0' ? u'\0' : DecodeNext(walk);
}
char16_t NextChar(const char16_t*& walk) noexcept {
    return *walk == u'\0' ? u'\0' : *walk++;
}

std::int32_t Difference(char16_t left, char16_t right) noexcept {
    return static_cast<std::int32_t>(left) - static_cast<std::int32_t>(right);
}

/// Compares raw characters first and folds only a pair that differs: most pairs don't.
template <bool Fold, typename RightUnit>
std::int32_t CompareWalk(const char* left, const RightUnit* right, std::size_t count) noexcept {
    for (; count > 0; --count) {
        const char16_t a = NextChar(left);
        const char16_t b = NextChar(right);
        if (a != b) {
            const std::int32_t difference = Fold ? Difference(FoldChar(a), FoldChar(b)) : Difference(a, b);
            if (difference != 0) return difference;
        }
        if (a == 0 || b == 0) return 0;
    }
    return 0;
}

/// The small letter of each ASCII byte; 0 for NUL and for what is no ASCII.
constexpr std::array<unsigned char, 256> cnSmallAscii = [] {
    std::array<unsigned char, 256> small{};
    for (char16_t c = 0; c < 0x80; ++c)
        small[c] = static_cast<unsigned char>(FoldAsciiChar(c));
    return small;
}();

/// The folded compare of two payloads that have their first `common` bytes in common.
std::int32_t CompareNoCaseFrom(const char* left, const char* right, std::size_t common) noexcept {
    const char* a = left + common;
    const char* b = right + common;
    while (*a == *b) {
        if (*a == '\0') return 0;
        ++a;
        ++b;
    }
    // An ASCII byte is its own character boundary, so a pair of them needs no backing up: such pairs are
    // folded as they stand until one decides or something else than ASCII turns up.
    if (!IsAsciiByte(*a) || !IsAsciiByte(*b)) {
        return CompareWalk<true>(CharBoundary(left, a), CharBoundary(right, b), cnUnlimited);
    }
    for (;; ++a, ++b) {
        const unsigned char smallA = cnSmallAscii[static_cast<unsigned char>(*a)];
        const unsigned char smallB = cnSmallAscii[static_cast<unsigned char>(*b)];
        if (smallA == smallB && smallA != 0) continue;
        if (!IsAsciiByte(*a) || !IsAsciiByte(*b)) break;
        return Difference(smallA, smallB);
    }
    return CompareWalk<true>(a, b, cnUnlimited);
}

}  // namespace

std::int32_t CompareU(const char* left, const char16_t* right) noexcept {
    return CompareWalk<false>(left, right, cnUnlimited);
}

std::int32_t CompareNU(const char* left, const char* right, std::size_t count) noexcept {
    return CompareWalk<false>(left, right, count);
}

std::int32_t CompareNU(const char* left, const char16_t* right, std::size_t count) noexcept {
    return CompareWalk<false>(left, right, count);
}

std::int32_t CompareNoCaseU(const char* left, const char16_t* right) noexcept {
    return CompareWalk<true>(left, right, cnUnlimited);
}

std::int32_t CompareNNoCaseU(const char* left, const char* right, std::size_t count) noexcept {
    return CompareWalk<true>(left, right, count);
}

std::int32_t CompareNNoCaseU(const char* left, const char16_t* right, std::size_t count) noexcept {
    return CompareWalk<true>(left, right, count);
}

const char* CharBoundary(const char* start, const char* at) noexcept {
    for (int steps = 0; steps < 4 && at != start && IsContinuation(*at); ++steps)
        --at;
    return at;
}

std::int32_t CompareNoCaseU(const char* left, const char* right) noexcept {
    return CompareNoCaseFrom(left, right, 0);
}

std::int32_t CompareNoCaseU(std::string_view left, std::string_view right) noexcept {
    const std::size_t common = CommonBytes(left.data(), right.data(), std::min(left.size(), right.size()));
    return CompareNoCaseFrom(left.data(), right.data(), common);
}

}  // namespace vapp_text
