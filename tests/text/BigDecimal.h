/// @file
/// All decimal digits of a double, by big numbers in the way of paper and pencil; and a slow model of
/// FormatEngineering on top of them, made of strings.
///
/// Shares nothing with what it judges: no conversion of the standard library, no table of ours.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace text_test {

/// 0.DIGITS * 10^point; the digits begin and end with one that isn't 0, and are empty for zero.
struct TBigDecimal {
    std::string digits;
    int point = 0;
};

/// A whole number of any size, in pieces of nine decimal digits, the lowest first.
class TBigWhole {
public:
    explicit TBigWhole(std::uint64_t number) {
        for (; number != 0; number /= cnPiece)
            m_pieces.push_back(number % cnPiece);
    }
    void Multiply(std::uint64_t factor) {
        std::uint64_t carry = 0;
        for (std::uint64_t& piece : m_pieces) {
            carry += piece * factor;
            piece = carry % cnPiece;
            carry /= cnPiece;
        }
        if (carry != 0) m_pieces.push_back(carry);
    }
    /// Multiplies by `factor`, `count` times, several of them at once.
    void MultiplyOften(std::uint64_t factor, int count) {
        for (; count >= 8; count -= 8)
            Multiply(factor * factor * factor * factor * factor * factor * factor * factor);
        for (; count > 0; --count)
            Multiply(factor);
    }
    [[nodiscard]] std::string Text() const {
        std::string text;
        std::for_each(m_pieces.rbegin(), m_pieces.rend(), [&text](auto piece) {
            const std::string digits = std::to_string(piece);
            if (!text.empty()) text.append(9 - digits.size(), '0');
            text += digits;
        });
        return text;
    }

private:
    static constexpr std::uint64_t cnPiece = 1'000'000'000;
    std::vector<std::uint64_t> m_pieces;
};

/// The exact value of a finite double's magnitude.
inline TBigDecimal ExactDecimal(double value) {
    if (value == 0.0) return {};
    int binary = 0;
    const double mantissa = std::frexp(std::fabs(value), &binary);
    TBigWhole whole(static_cast<std::uint64_t>(std::ldexp(mantissa, 53)));
    const int exponent = binary - 53;
    whole.MultiplyOften(exponent > 0 ? 2 : 5, std::abs(exponent));  // a half is five tenths
    std::string digits = whole.Text();
    const int point = static_cast<int>(digits.size()) + (exponent < 0 ? exponent : 0);
    digits.erase(digits.find_last_not_of('0') + 1);
    return {digits, point};
}

/// Adds one at the last digit; true if the number has become longer by a digit, which is cut off again.
inline bool AddOneAtEnd(std::string& digits) {
    const std::size_t kept = digits.find_last_not_of('9');
    if (kept == std::string::npos) {
        digits = "1" + std::string(digits.size() - 1, '0');
        return true;
    }
    ++digits[kept];
    digits.replace(kept + 1, std::string::npos, digits.size() - kept - 1, '0');
    return false;
}

/// Exactly `count` digits of it, halves to even; `point` follows a carry.
inline std::string RoundHalfEven(const TBigDecimal& exact, std::size_t count, int& point) {
    point = exact.point;
    if (exact.digits.size() <= count) return exact.digits + std::string(count - exact.digits.size(), '0');
    std::string kept = exact.digits.substr(0, count);
    const std::string rest = exact.digits.substr(count);
    const bool up = rest > "5" || (rest == "5" && (kept.back() - '0') % 2 == 1);
    if (up && AddOneAtEnd(kept)) ++point;
    return kept;
}

struct TModelStyle {
    std::size_t digits = 3;
    bool significant = true;
    bool align = false;
    bool strip = true;
    int scale = 0;
    bool stripExponent = true;
};

inline std::string ModelSuffix(int exponent, int scale) {
    static const std::string small = "yzafpnum kMGTPEZY";
    const int thousands = static_cast<int>(std::floor(exponent / 3.0));
    if (scale > 2 || thousands < -8 || thousands > 8) return "";
    if (scale > 0 && (thousands < -6 || thousands > 4)) return "";
    if (scale > 0 && thousands == 2) return scale == 1 ? "X" : "MEG";
    const int place = thousands + 8;
    return std::string(1, small[static_cast<std::size_t>(place)]);
}

inline std::string ModelExponent(int exponent) {
    std::string digits = std::to_string(std::abs(exponent));
    digits.insert(0, 3 - std::min<std::size_t>(3, digits.size()), '0');
    return (exponent < 0 ? "e-" : "e") + digits;
}

/// The text of `value`, whose exact decimal is given, so that many texts of one value cost its digits once.
inline std::string ModelText(double value, const TBigDecimal& exact, const TModelStyle& style) {
    const std::size_t written = style.significant ? std::max<std::size_t>(style.digits, 3) : style.digits + 3;
    int point = 0;
    std::string digits = RoundHalfEven(exact, written, point);
    int exponent = point - 1;
    std::size_t before = static_cast<std::size_t>(((exponent % 3) + 3) % 3) + 1;
    if (value == 0.0) {
        before = 1;
        exponent = 0;
        digits.resize(style.significant ? style.digits : style.digits + 1);
    } else if (!style.significant && before < 3) {
        const bool up = digits[written - (3 - before)] >= '5';
        digits.resize(written - (3 - before));
        if (up && AddOneAtEnd(digits)) {
            digits += '0';
            ++before;
            ++exponent;
        }
    }
    if (style.scale == 3) before = 1;
    std::string right = digits.substr(before);
    std::string suffix = ModelSuffix(exponent, style.scale);
    if (suffix.empty()) {
        const int shown = style.scale == 3 ? exponent : static_cast<int>(std::floor(exponent / 3.0)) * 3;
        if (shown != 0 || !style.stripExponent) suffix = ModelExponent(shown);
    }
    if (suffix == " " && !style.align) suffix.clear();
    std::string dot = ".";
    if (style.strip) {
        while (!right.empty() && right.back() == '0')
            right.pop_back();
        if (right.empty() && !style.align) dot.clear();
    }
    std::string text = value < 0.0 ? "-" : style.align ? " " : "";
    if (style.align) text.insert(0, 3 - before, ' ');
    text += digits.substr(0, before) + dot + right + suffix;
    if (style.align && text.size() < written + 9) text.resize(written + 9, ' ');
    return text;
}

}  // namespace text_test
