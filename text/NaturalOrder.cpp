/// @file
/// One walk over both texts. What they have in common at the front is skipped by bytes, for in a sorted
/// library most neighbours share long prefixes. The price is that the walk may start in the middle of a
/// number, or behind leading zeros that it should have seen; BackUpIntoNumber puts that right, once.
#include "text/NaturalOrder.h"

#include <algorithm>
#include <array>

#include "text/Codec.h"
#include "text/CommonBytes.h"
#include "text/Compare.h"

namespace vapp_text {
namespace {

/// The character that each ASCII byte stands for in the order; 0 for digits, for NUL and for what is no
/// ASCII.
template <bool Fold>
constexpr std::array<unsigned char, 256> cnLetters = [] {
    std::array<unsigned char, 256> letters{};
    for (char16_t c = 1; c < 0x80; ++c) {
        if (c < u'0' || c > u'9') letters[c] = static_cast<unsigned char>(Fold ? FoldAsciiChar(c) : c);
    }
    return letters;
}();

/// One text with the place where the walk stands, and the character there.
template <bool Fold>
class Side {
public:
    explicit Side(const char* text) noexcept : m_text(text), m_at(text) {}

    [[nodiscard]] NaturalChar Current() const noexcept { return m_current; }
    [[nodiscard]] char16_t Char() const noexcept { return m_current.m_char; }
    [[nodiscard]] bool IsDigit() const noexcept { return m_current.m_digit; }
    [[nodiscard]] const char* At() const noexcept { return m_at; }
    [[nodiscard]] bool AtStart() const noexcept { return m_at == m_text; }
    [[nodiscard]] std::int64_t Position() const noexcept { return m_at - m_text; }

    void MoveTo(std::int64_t position) noexcept { m_at = m_text + position; }
    /// Ends a step that has passed everything before `at`, and reads.
    void MoveBehind(const char* at) noexcept {
        m_at = at;
        while (IsContinuation(*m_at))
            ++m_at;
        Read();
    }
    void Take(NaturalChar current) noexcept { m_current = current; }

    /// Reads the character at the position; the terminating NUL is 0 and no digit.
    void Read() noexcept {
        const auto byte = static_cast<unsigned char>(*m_at);
        m_current = byte < 0x80 ? AsciiChar(byte) : ToNaturalChar<Fold>(PeekChar(m_at));
    }
    void Step() noexcept {
        do {
            ++m_at;
        } while (IsContinuation(*m_at));
    }
    void StepBack() noexcept { MoveTo(StepBackward(m_text, Position())); }

    /// At the front of a number: moves to its first digit that is not 0, or to the last 0 of a number that is
    /// all zeros, so that there is always a digit to compare. Gives the count of zeros passed.
    std::int32_t SkipLeadingZeros() noexcept {
        if (Char() != u'0') return 0;
        for (std::int32_t count = 1;; ++count) {
            Step();
            Read();
            if (!IsDigit()) {
                StepBack();
                Read();
                return count - 1;
            }
            if (Char() != u'0') return count;
        }
    }

private:
    static NaturalChar AsciiChar(unsigned char byte) noexcept {
        return {Fold ? FoldAsciiChar(byte) : static_cast<char16_t>(byte), byte - unsigned{'0'} < 10U};
    }

    const char* m_text;
    const char* m_at;
    NaturalChar m_current;
};

/// The offset of the first character in which the texts differ in their bytes.
std::int64_t CommonPrefix(const char* a, const char* b) noexcept {
    const char* at = a;
    while (*at == *b && *at != '\0') {
        ++at;
        ++b;
    }
    return CharBoundary(a, at) - a;
}

std::int64_t CommonPrefix(std::string_view a, std::string_view b) noexcept {
    const std::size_t common = CommonBytes(a.data(), b.data(), std::min(a.size(), b.size()));
    return CharBoundary(a.data(), a.data() + common) - a.data();
}

/// Walks one side back over zeros; the other side follows, for what lies before is common to both.
template <bool Fold>
void WalkBackOverZeros(Side<Fold>& side, Side<Fold>& follower) noexcept {
    while (!side.AtStart() && side.Char() == u'0') {
        side.StepBack();
        side.Read();
        follower.Take(side.Current());
    }
    follower.MoveTo(side.Position());
}

/// Where the common prefix ended within a number, goes back to where the compare of the number can be taken
/// up: to its last common digit if only one side goes on with a digit, and to before the zeros in front.
template <bool Fold>
void BackUpIntoNumber(Side<Fold>& a, Side<Fold>& b) noexcept {
    if (a.IsDigit() != b.IsDigit() && !a.AtStart()) {
        a.StepBack();
        b.StepBack();
        a.Read();
        b.Take(a.Current());
    }
    if (!a.IsDigit()) return;
    if (b.IsDigit() && a.Char() == u'0') {
        WalkBackOverZeros(a, b);
    } else if (a.Char() != u'0' && b.Char() == u'0') {
        WalkBackOverZeros(b, a);
    }
}

/// Outside of numbers: steps over equal ASCII characters that are no digits, the bulk of most names.
template <bool Fold>
void SkipEqualLetters(Side<Fold>& a, Side<Fold>& b) noexcept {
    const char* atA = a.At();
    const char* atB = b.At();
    while (cnLetters<Fold>[static_cast<unsigned char>(*atA)] != 0 &&
           cnLetters<Fold>[static_cast<unsigned char>(*atA)] ==
               cnLetters<Fold>[static_cast<unsigned char>(*atB)]) {
        ++atA;
        ++atB;
    }
    if (atA == a.At()) return;
    a.MoveBehind(atA);
    b.MoveBehind(atB);
}

/// `common` is the offset of the first character that differs; `longer` is the answer when the number of `a`
/// has more digits: 1, or -1 for long numbers first.
template <bool Fold>
std::int32_t Compare(const char* textA, const char* textB, std::int64_t common,
                     std::int32_t longer) noexcept {
    Side<Fold> a(textA);
    Side<Fold> b(textB);
    a.MoveTo(common);
    b.MoveTo(common);
    a.Read();
    b.Read();
    BackUpIntoNumber(a, b);

    bool inNumber = false;
    std::int32_t numberOrder = 0;  // the first difference of digits in the present number
    std::int32_t zeroTie = 0;      // the first difference in counts of leading zeros
    for (;;) {
        if (!inNumber) SkipEqualLetters(a, b);
        if (a.IsDigit() && b.IsDigit()) {
            if (!inNumber) {
                const std::int32_t zerosA = a.SkipLeadingZeros();
                const std::int32_t zerosB = b.SkipLeadingZeros();
                if (zeroTie == 0) zeroTie = (zerosA - zerosB) * longer;
                inNumber = true;
            }
        } else if (inNumber) {
            // The longer number wins over any difference of its digits.
            if (a.IsDigit()) return longer;
            if (b.IsDigit()) return -longer;
            if (numberOrder != 0) return numberOrder;
            inNumber = false;
        }
        if (numberOrder == 0 && a.Char() != b.Char()) {
            numberOrder = a.Char() < b.Char() ? -1 : 1;
            if (!inNumber) return numberOrder;
        }
        if (a.Char() == 0 || b.Char() == 0) return numberOrder != 0 ? numberOrder : zeroTie;
        a.Step();
        b.Step();
        a.Read();
        b.Read();
    }
}

}  // namespace

std::int32_t CompareNatural(const char* a, const char* b, bool longNumbersFirst) noexcept {
    return Compare<false>(a, b, CommonPrefix(a, b), longNumbersFirst ? -1 : 1);
}

std::int32_t CompareNatural(std::string_view a, std::string_view b, bool longNumbersFirst) noexcept {
    return Compare<false>(a.data(), b.data(), CommonPrefix(a, b), longNumbersFirst ? -1 : 1);
}

std::int32_t CompareNaturalNoCase(const char* a, const char* b, bool /*longNumbersFirst*/) noexcept {
    return Compare<true>(a, b, CommonPrefix(a, b), 1);
}

std::int32_t CompareNaturalNoCase(std::string_view a, std::string_view b,
                                  bool /*longNumbersFirst*/) noexcept {
    return Compare<true>(a.data(), b.data(), CommonPrefix(a, b), 1);
}

}  // namespace vapp_text
