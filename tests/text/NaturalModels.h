/// @file
/// Two slow models of the natural order, written apart from it and from one another: one from its rules, on
/// split texts; one from its steps, on offsets, for text of any bytes. Neither knows a fast path.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "text/PlatformText.h"

namespace text_test {

// --- What both need: digits and case, told once more --------------------------------------------------

/// The value of a decimal digit of any script, -1 for anything else.
inline int DigitValue(char16_t c) {
    static constexpr char16_t zeros[] = {
        u'0',   0x0660, 0x06F0, 0x07C0, 0x0966, 0x09E6, 0x0A66, 0x0AE6, 0x0B66, 0x0BE6, 0x0C66,
        0x0CE6, 0x0D66, 0x0E50, 0x0ED0, 0x0F20, 0x1040, 0x1090, 0x17E0, 0x1810, 0x1946, 0x19D0,
        0x1B50, 0x1BB0, 0x1C40, 0x1C50, 0xA620, 0xA8D0, 0xA900, 0xAA50, 0xFF10,
    };
    for (const char16_t zero : zeros) {
        if (c >= zero && c <= zero + 9) return c - zero;
    }
    return -1;
}

inline char16_t SmallLetter(char16_t c) {
    if (c >= u'A' && c <= u'Z') return static_cast<char16_t>(c - u'A' + u'a');
    return c < 0x80 ? c : vapp_platform::LowerCaseChar(c);
}

/// A digit as its ASCII digit, anything else as it is or small.
inline char16_t OrderedChar(char16_t c, bool fold) {
    const int value = DigitValue(c);
    if (value >= 0) return static_cast<char16_t>(u'0' + value);
    return fold ? SmallLetter(c) : c;
}

// --- The rules ---------------------------------------------------------------------------------------

struct Token {
    bool number = false;
    char16_t character = 0;      // of a number: any digit stands for it
    std::u16string significant;  // its digits without leading zeros; "0" for a number of zeros
    std::int64_t zeros = 0;
};

inline std::vector<Token> SplitIntoTokens(std::u16string_view text, bool fold) {
    std::vector<Token> tokens;
    for (std::size_t at = 0; at < text.size();) {
        Token token;
        token.character = OrderedChar(text[at], fold);
        if (DigitValue(text[at]) < 0) {
            ++at;
        } else {
            token.number = true;
            for (; at < text.size() && DigitValue(text[at]) >= 0; ++at) {
                token.significant += OrderedChar(text[at], fold);
            }
            while (token.significant.size() > 1 && token.significant.front() == u'0') {
                token.significant.erase(0, 1);
                ++token.zeros;
            }
        }
        tokens.push_back(token);
    }
    return tokens;
}

/// The sign of the order by the rules.
inline int OrderByRules(std::u16string_view a, std::u16string_view b, bool fold, bool longNumbersFirst) {
    const int longer = longNumbersFirst ? -1 : 1;
    const std::vector<Token> tokensA = SplitIntoTokens(a, fold);
    const std::vector<Token> tokensB = SplitIntoTokens(b, fold);
    int tie = 0;
    for (std::size_t at = 0; at < tokensA.size() && at < tokensB.size(); ++at) {
        const Token& x = tokensA[at];
        const Token& y = tokensB[at];
        if (x.number && y.number) {
            if (x.significant.size() != y.significant.size()) {
                return x.significant.size() > y.significant.size() ? longer : -longer;
            }
            if (x.significant != y.significant) return x.significant < y.significant ? -1 : 1;
            if (tie == 0 && x.zeros != y.zeros) tie = x.zeros > y.zeros ? longer : -longer;
        } else if (x.character != y.character) {
            return x.character < y.character ? -1 : 1;
        }
    }
    if (tokensA.size() != tokensB.size()) return tokensA.size() < tokensB.size() ? -1 : 1;
    return tie;
}

// --- The steps ---------------------------------------------------------------------------------------

/// The walk over one text of any bytes: all offsets, no pointer.
struct SlowText {
    explicit SlowText(std::string_view text, bool folding) : bytes(text), fold(folding) {}

    [[nodiscard]] unsigned Byte(std::int64_t offset) const {
        return offset < static_cast<std::int64_t>(bytes.size())
                   ? static_cast<unsigned char>(bytes.at(static_cast<std::size_t>(offset)))
                   : 0U;
    }
    [[nodiscard]] bool Continues(std::int64_t offset) const { return (Byte(offset) & 0xC0U) == 0x80U; }

    /// The unit at an offset; bytes that the end cuts off count as zero bits.
    [[nodiscard]] char16_t Decode(std::int64_t offset) const {
        const unsigned lead = Byte(offset);
        if (lead < 0x80) return static_cast<char16_t>(lead);
        // The bits decide in this order and nothing else does: 0xBF is as hopeless a lead as 0xFF.
        const int extra = (lead & 0x20U) == 0 ? 1 : (lead & 0x10U) == 0 ? 2 : (lead & 0x08U) == 0 ? 3 : 0;
        if (extra == 0) return u'?';
        unsigned value = lead & (extra == 1 ? 0x1FU : extra == 2 ? 0x0FU : 0U);
        bool cut = false;
        for (int index = 1; index <= extra; ++index) {
            cut = cut || Byte(offset + index) == 0;
            value = value * 64 + (cut ? 0 : Byte(offset + index) % 64);
        }
        return static_cast<char16_t>(value);
    }
    void Read() {
        const char16_t unit = Decode(pos);
        ch = OrderedChar(unit, fold);
        digit = DigitValue(unit) >= 0;
    }
    void Step() {
        if (Byte(pos) == 0) return;
        for (++pos; Continues(pos);)
            ++pos;
    }
    void StepBack() {
        for (int moved = 0; moved < 4 && pos > 0; ++moved) {
            --pos;
            if (!Continues(pos)) return;
        }
    }
    std::int64_t SkipZeros() {
        if (ch != u'0') return 0;
        for (std::int64_t count = 0;;) {
            ++count;
            Step();
            const char16_t unit = Decode(pos);
            if (DigitValue(unit) > 0) {
                ch = OrderedChar(unit, fold);
                return count;
            }
            if (DigitValue(unit) < 0) {
                StepBack();
                ch = OrderedChar(Decode(pos), fold);
                return count - 1;
            }
        }
    }

    std::string_view bytes;
    bool fold;
    std::int64_t pos = 0;
    char16_t ch = 0;
    bool digit = false;
};

/// The answer of the steps, its sign and its size.
inline std::int64_t OrderBySteps(std::string_view textA, std::string_view textB, bool fold,
                                 bool longNumbersFirst) {
    SlowText a(textA, fold);
    SlowText b(textB, fold);
    const std::int64_t dir = longNumbersFirst && !fold ? -1 : 1;
    if (a.Byte(0) == b.Byte(0)) {
        std::int64_t at = 0;
        while (a.Byte(at) == b.Byte(at) && a.Byte(at) != 0)
            ++at;
        for (int back = 0; back < 4 && at > 0 && a.Continues(at); ++back)
            --at;
        if (at > 0) a.pos = b.pos = at;
    }
    bool first = true;
    bool inNumber = false;
    int numberOrder = 0;
    std::int64_t zeroTie = 0;
    for (;;) {
        a.Read();
        b.Read();
        if (first) {
            if (a.digit != b.digit && a.pos >= 1) {
                a.StepBack();
                b.StepBack();
                a.Read();
                b.ch = a.ch;
                b.digit = a.digit;
            }
            const auto walkBack = [](SlowText& lead, SlowText& other) {
                const std::int64_t from = lead.pos;
                while (lead.pos > 0 && lead.ch == u'0') {
                    lead.StepBack();
                    lead.Read();
                    other.ch = lead.ch;
                    other.digit = lead.digit;
                }
                other.pos += lead.pos - from;
            };
            if (a.digit) {
                if (b.digit && a.ch == u'0') {
                    walkBack(a, b);
                } else if (a.ch != u'0' && b.ch == u'0') {
                    walkBack(b, a);
                }
            }
        }
        const bool both = a.digit && b.digit;
        if (both && !inNumber) {
            const std::int64_t zerosA = a.SkipZeros();
            const std::int64_t zerosB = b.SkipZeros();
            if (zeroTie == 0) zeroTie = (zerosA - zerosB) * dir;
            inNumber = true;
        } else if (!both && inNumber) {
            if (a.digit) return dir;
            if (b.digit) return -dir;
            if (numberOrder != 0) return numberOrder;
            inNumber = false;
        }
        if (numberOrder == 0 && a.ch != b.ch) {
            numberOrder = a.ch < b.ch ? -1 : 1;
            if (!inNumber) return numberOrder;
        }
        if (a.ch == 0 || b.ch == 0) return numberOrder != 0 ? numberOrder : zeroTie;
        a.Step();
        b.Step();
        first = false;
    }
}

}  // namespace text_test
