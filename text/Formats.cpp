/// @file
/// The narrow printf, and the wide one built on it: a wide format is taken apart here, each number goes
/// through the narrow printf by itself, each text is padded here.

#include "text/Formats.h"

#include <algorithm>
#include <cstdarg>

namespace vapp_text {

namespace {

using Kind = WideFormatValue::Kind;

constexpr int cnLargestWidth = 65535;
constexpr int cnNone = -1;

/// One conversion, as it stands in the format.
struct TConversion {
    std::string flags;
    int width = cnNone;
    int precision = cnNone;
    std::string size;
    char letter = '\0';

    [[nodiscard]] bool LeftAligned() const { return flags.find('-') != std::string::npos; }
};

bool IsOneOf(char16_t unit, std::string_view set) {
    return unit != 0 && unit < 0x80U && set.find(static_cast<char>(unit)) != std::string_view::npos;
}

class WideFormatter {
public:
    WideFormatter(std::u16string_view format, std::span<const WideFormatValue> values)
        : m_left(format), m_values(values) {}

    [[nodiscard]] std::u16string Run() {
        while (!m_left.empty()) {
            const std::size_t percent = std::min(m_left.find(u'%'), m_left.size());
            m_out.append(m_left.substr(0, percent));
            m_left.remove_prefix(percent);
            if (!m_left.empty()) Convert();
        }
        return std::move(m_out);
    }

private:
    [[nodiscard]] char16_t Peek() const { return m_left.empty() ? u'\0' : m_left.front(); }
    char16_t Take() {
        const char16_t unit = Peek();
        m_left.remove_prefix(std::min<std::size_t>(m_left.size(), 1));
        return unit;
    }
    std::string TakeAll(std::string_view set) {
        std::string taken;
        while (IsOneOf(Peek(), set))
            taken += static_cast<char>(Take());
        return taken;
    }
    /// The value at a place, or the next one.
    const WideFormatValue* ValueAt(int place) {
        const std::size_t index = place == cnNone ? m_next++ : static_cast<std::size_t>(place) - 1;
        return index < m_values.size() ? &m_values[index] : nullptr;  // place 0 is beyond all of them
    }

    int TakeDigits() {
        int count = 0;
        for (const char digit : TakeAll("0123456789"))
            count = std::min(count * 10 + (digit - '0'), cnLargestWidth);
        return count;
    }

    /// The place that a value is named by; none where the digits are a width.
    int TakePlace() {
        const std::size_t digits = m_left.find_first_not_of(u"0123456789");
        if (digits == 0 || digits == std::u16string_view::npos || m_left[digits] != u'$') return cnNone;
        const int place = TakeDigits();
        Take();
        return place;
    }

    /// A width or a precision: digits, or a value.
    int TakeCount() {
        if (Peek() != u'*') return TakeDigits();
        Take();
        const WideFormatValue* const value = ValueAt(TakePlace());
        const std::int64_t count = value != nullptr ? value->GetInteger() : 0;
        return static_cast<int>(std::clamp<std::int64_t>(count, -cnLargestWidth, cnLargestWidth));
    }

    void Convert() {
        Take();  // the percent sign
        TConversion conversion;
        const int place = TakePlace();
        conversion.flags = TakeAll("-+ #0'");
        if (IsOneOf(Peek(), "*123456789")) conversion.width = TakeCount();
        if (conversion.width < cnNone) {  // a negative value asks for the left side
            conversion.flags += '-';
            conversion.width = -conversion.width;
        }
        if (Peek() == u'.') {
            Take();
            conversion.precision = std::max(TakeCount(), cnNone);
        }
        conversion.size = TakeAll("hljztLwI");
        if (conversion.size == "I") conversion.size += TakeAll("2346");
        const char16_t letter = Take();
        conversion.letter = letter < 0x80U ? static_cast<char>(letter) : '\0';
        if (conversion.letter == '%') {
            m_out += u'%';
        } else if (const WideFormatValue* const value = ValueAt(place)) {
            Write(conversion, *value);
        }
    }

    void Write(const TConversion& conversion, const WideFormatValue& value) {
        const Kind kind = value.GetKind();
        if (IsOneOf(conversion.letter, "sS") && kind == Kind::Text) {
            const std::u16string_view text = value.GetText();
            WriteText(conversion, conversion.precision < 0
                                      ? text
                                      : text.substr(0, static_cast<std::size_t>(conversion.precision)));
        } else if (IsOneOf(conversion.letter, "cC") && kind == Kind::Integer) {
            WriteText(conversion, value.GetText());
        } else if (IsOneOf(conversion.letter, "di") && kind == Kind::Integer) {
            WriteNumber(conversion, "ll", static_cast<long long>(Integer(conversion, value, true)));
        } else if (IsOneOf(conversion.letter, "uoxX") && kind == Kind::Integer) {
            WriteNumber(conversion, "ll", static_cast<unsigned long long>(Integer(conversion, value, false)));
        } else if (IsOneOf(conversion.letter, "eEfFgGaA") && kind == Kind::Real) {
            WriteNumber(conversion, "", value.GetReal());
        } else if (conversion.letter == 'p' && (kind == Kind::Pointer || kind == Kind::Text)) {
            WriteNumber(conversion, "", value.GetPointer());
        }
    }

    void WriteText(const TConversion& conversion, std::u16string_view text) {
        const auto width = static_cast<std::size_t>(std::max(conversion.width, 0));
        const std::size_t padding = width > text.size() ? width - text.size() : 0;
        if (!conversion.LeftAligned()) m_out.append(padding, u' ');
        m_out.append(text);
        if (conversion.LeftAligned()) m_out.append(padding, u' ');
    }

    /// The value cut to the bits that the conversion reads, as a signed or an unsigned number.
    static std::int64_t Integer(const TConversion& conversion, const WideFormatValue& value, bool isSigned) {
        const std::size_t bytes = conversion.size.empty() || conversion.size == "I32" ? sizeof(int)
                                  : conversion.size == "h"                            ? sizeof(short)
                                  : conversion.size == "hh"                           ? sizeof(char)
                                                                                      : value.GetBytes();
        const auto dropped = static_cast<unsigned>(8 * (sizeof(std::int64_t) - bytes));
        const std::uint64_t high = static_cast<std::uint64_t>(value.GetInteger()) << dropped;
        return isSigned ? static_cast<std::int64_t>(high) >> dropped
                        : static_cast<std::int64_t>(high >> dropped);
    }

    template <typename Number>
    void WriteNumber(const TConversion& conversion, const char* size, Number number) {
        std::string format = '%' + conversion.flags;
        if (!IsOneOf(static_cast<unsigned char>(conversion.letter), "diufFgG")) std::erase(format, '\'');
        if (conversion.width >= 0) format += std::to_string(conversion.width);
        if (conversion.precision >= 0) format += '.' + std::to_string(conversion.precision);
        format.append(size).push_back(conversion.letter);
        m_out += CStringU::Formatted(format.c_str(), number).ToWide();
    }

    std::u16string_view m_left;
    std::span<const WideFormatValue> m_values;
    std::size_t m_next = 0;
    std::u16string m_out;
};

}  // namespace

CString FormatNarrow(const char* format, ...) {
    CString text;
    va_list arguments;
    va_start(arguments, format);
    text.FormatV(format, arguments);
    va_end(arguments);
    return text;
}

std::u16string FormatWideValues(std::u16string_view format, std::span<const WideFormatValue> values) {
    return WideFormatter(format, values).Run();
}

}  // namespace vapp_text
