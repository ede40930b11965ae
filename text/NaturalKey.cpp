/// @file
/// Keys are written through a bare pointer into memory of a known bound. Names are short and very many, so
/// that a check of capacity for each byte would cost more than the key.
#include "text/NaturalKey.h"

#include "text/Codec.h"
#include "text/NaturalOrder.h"

namespace vapp_text {
namespace {

constexpr char cnNumberMarker = '0';
constexpr std::uint64_t cnLargestByteCount = 0xF7;

/// Written as one byte, or as the number of its octets and the octets: more octets are a larger first byte.
char* WriteCount(std::uint64_t count, char* out) noexcept {
    if (count <= cnLargestByteCount) {
        *out++ = static_cast<char>(count);
        return out;
    }
    unsigned octets = 1;
    while (octets < 8 && (count >> (8U * octets)) != 0)
        ++octets;
    *out++ = static_cast<char>(cnLargestByteCount + octets);
    while (octets > 0) {
        --octets;
        *out++ = static_cast<char>(count >> (8U * octets));
    }
    return out;
}

/// The next character as a key sees it. An overlong encoding of NUL is the end of the text, as it is in the
/// compare functions; the terminating NUL itself is not passed.
template <bool Fold>
NaturalChar NextNatural(const char*& walk) noexcept {
    const auto byte = static_cast<unsigned char>(*walk);
    if (byte == 0) return {};
    if (byte >= 0x80) return ToNaturalChar<Fold>(DecodeNext(walk));
    ++walk;
    return {Fold ? FoldAsciiChar(byte) : static_cast<char16_t>(byte), byte - unsigned{'0'} < 10U};
}

/// A run of digits, found by walking over it.
struct Number {
    std::uint64_t m_zeros = 0;   ///< leading zeros, without the one that a number of zeros keeps
    std::uint64_t m_digits = 0;  ///< significant digits, at least 1
};

/// Walks over the number whose first digit is `current`, and leaves in `current` the character behind it.
/// Every significant digit goes to `digit`.
template <bool Fold, typename DigitSink>
Number WalkNumber(const char*& walk, NaturalChar& current, DigitSink digit) noexcept {
    Number number;
    for (; current.m_digit && current.m_char == u'0'; current = NextNatural<Fold>(walk))
        ++number.m_zeros;
    for (; current.m_digit; current = NextNatural<Fold>(walk)) {
        digit(current.m_char);
        ++number.m_digits;
    }
    if (number.m_digits == 0) {
        digit(u'0');
        ++number.m_digits;
        --number.m_zeros;
    }
    return number;
}

/// Writes marker, count and digits. The digits go straight to where they belong behind a count of one byte;
/// the rare longer count moves them.
template <bool Fold>
Number WriteNumber(const char*& walk, NaturalChar& current, char*& out) noexcept {
    *out++ = cnNumberMarker;
    char* const digits = out + 1;
    char* end = digits;
    const Number number = WalkNumber<Fold>(
        walk, current, [&end](char16_t digit) noexcept { *end++ = static_cast<char>(digit); });
    if (number.m_digits > cnLargestByteCount) {
        char count[9];
        const auto countSize = static_cast<std::size_t>(WriteCount(number.m_digits, count) - count);
        std::memmove(out + countSize, digits, number.m_digits);
        std::memcpy(out, count, countSize);
        end += countSize - 1;
    } else {
        *out = static_cast<char>(number.m_digits);
    }
    out = end;
    return number;
}

/// The counts of leading zeros of all numbers, by a second walk.
template <bool Fold>
char* WriteZeroCounts(const char* walk, char* out) noexcept {
    NaturalChar current = NextNatural<Fold>(walk);
    while (current.m_char != 0) {
        if (current.m_digit) {
            out = WriteCount(WalkNumber<Fold>(walk, current, [](char16_t) noexcept {}).m_zeros, out);
        } else {
            current = NextNatural<Fold>(walk);
        }
    }
    return out;
}

template <bool Fold>
char* WriteNatural(const char* payload, char* out) noexcept {
    std::uint64_t numbers = 0;
    std::uint64_t zeros = 0;
    const char* walk = payload;
    NaturalChar current = NextNatural<Fold>(walk);
    while (current.m_char != 0) {
        if (current.m_digit) {
            zeros += WriteNumber<Fold>(walk, current, out).m_zeros;
            ++numbers;
        } else {
            out += EncodeChar(current.m_char, out);
            current = NextNatural<Fold>(walk);
        }
    }
    *out++ = '\0';
    if (zeros != 0) return WriteZeroCounts<Fold>(payload, out);
    std::memset(out, 0, numbers);
    return out + numbers;
}

template <typename Writer>
void AppendKey(const char* payload, std::string& out, Writer write) {
    const std::size_t before = out.size();
    out.resize(before + KeyBound(std::strlen(payload)));
    out.resize(static_cast<std::size_t>(write(out.data() + before) - out.data()));
}

}  // namespace

char* WriteNaturalKey(const char* payload, bool foldCase, char* out) noexcept {
    return foldCase ? WriteNatural<true>(payload, out) : WriteNatural<false>(payload, out);
}

char* WriteFoldKey(const char* payload, char* out) noexcept {
    while (*payload != '\0') {
        const char16_t c = FoldChar(DecodeNext(payload));
        if (c == 0) break;
        out += EncodeChar(c, out);
    }
    *out++ = '\0';
    return out;
}

void AppendNaturalKey(const char* payload, bool foldCase, std::string& out) {
    AppendKey(payload, out, [=](char* to) noexcept { return WriteNaturalKey(payload, foldCase, to); });
}

void AppendFoldKey(const char* payload, std::string& out) {
    AppendKey(payload, out, [=](char* to) noexcept { return WriteFoldKey(payload, to); });
}

}  // namespace vapp_text
