/// @file
/// printf into a new plain string, narrow or wide.
///
/// For texts that don't become a CStringU (that class has Formatted). Not for numbers in engineering
/// notation.
///
/// The surprise: the wide one is not the C library's. What "%s" means in a wide format, whether a format
/// may be wider than a text, and which texts it refuses differ from system to system there. Here the values
/// come with their types, so that "%s" takes every kind of text, and nothing is read that was not given.
///
///     conversion = "%" [ place ] { "-" | "+" | " " | "#" | "0" | "'" } [ width ] [ "." precision ]
///                  { size } letter
///     width, precision = digits | "*" [ place ]
///     place = digits "$"
///     size = "hh" | "h" | "l" | "ll" | "j" | "z" | "t" | "L" | "w" | "I64" | "I32" | "I"
///     letter = d i u o x X c C s S e E f F g G a A p %
///
/// A place names a value by its number from 1, for translations that put them in another order; it doesn't
/// move on what the conversions without one take. Numbers look as the narrow printf writes them: real ones
/// with the decimal point, and with "'" the groups, of the host's locale. Widths of texts count characters; a
/// width or precision above 65535 counts as that. A conversion without a value, or with one of another kind,
/// writes nothing.
///
/// "%c" takes a `char` by the plain narrow rule, a `wchar_t` above 0xFFFF as its pair of units, and an
/// integer of any other type as one unit, cut to 16 bits.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "vapp/Export.h"
#include "vapp/text/CString.h"
#include "vapp/text/CStringU.h"

namespace vapp_text {

/// printf into a new narrow string. For formats that the compiler sees.
[[nodiscard]] CString FormatNarrow(const char* format, ...) VAPP_PRINTF_LIKE(1, 2);

/// A number that a wide format takes whole: none of type `long double`, which would be cut to a double.
template <typename Number>
concept FormatNumber =
    !std::is_same_v<Number, long double> && (std::is_arithmetic_v<Number> || std::is_enum_v<Number>);

/// One value of a wide format, of whatever type it came in. Lives as long as the call; keeps a copy of texts.
class WideFormatValue {
public:
    enum class Kind { Integer, Real, Text, Pointer };

    template <FormatNumber Number>
    WideFormatValue(Number number) {
        if constexpr (std::is_floating_point_v<Number>) {
            m_kind = Kind::Real;
            m_real = static_cast<double>(number);
        } else {
            m_kind = Kind::Integer;
            m_integer = static_cast<std::int64_t>(number);
            m_bytes = sizeof(Number) > sizeof(int) ? sizeof(Number) : sizeof(int);
            m_text = CharacterOf(number);
        }
    }
    /// Narrow text is read by the plain narrow rule of CStringU.
    WideFormatValue(const char* text) : WideFormatValue(text, CStringU(text)) {}
    WideFormatValue(const CString& text) : WideFormatValue(text.GetString(), CStringU(text)) {}
    WideFormatValue(const CStringU& text) : WideFormatValue(text.Payload(), text) {}
    WideFormatValue(const char16_t* text) : WideFormatValue(text, CStringU(text)) {}
    WideFormatValue(const wchar_t* text) : WideFormatValue(text, CStringU(text)) {}
    WideFormatValue(const std::u16string& text) : WideFormatValue(text.c_str(), CStringU(text.c_str())) {}
    /// Any other pointer has only an address.
    WideFormatValue(const void* pointer) : m_kind(Kind::Pointer), m_pointer(pointer) {}

    [[nodiscard]] Kind GetKind() const noexcept { return m_kind; }
    [[nodiscard]] std::int64_t GetInteger() const noexcept { return m_integer; }
    /// The size of the integer's own type, at least that of an int.
    [[nodiscard]] std::size_t GetBytes() const noexcept { return m_bytes; }
    [[nodiscard]] double GetReal() const noexcept { return m_real; }
    /// A text, or an integer as the character that it is.
    [[nodiscard]] const std::u16string& GetText() const noexcept { return m_text; }
    /// The address of a pointer, also of a text.
    [[nodiscard]] const void* GetPointer() const noexcept { return m_pointer; }

private:
    WideFormatValue(const void* pointer, const CStringU& text)
        : m_kind(Kind::Text), m_pointer(pointer), m_text(pointer != nullptr ? text.ToWide() : u"(null)") {}

    template <typename Number>
    [[nodiscard]] static std::u16string CharacterOf(Number number) {
        if constexpr (std::is_same_v<Number, char>) {
            return CStringU(CString(number)).ToWide();
        } else if constexpr (std::is_same_v<Number, wchar_t>) {
            return CStringU(number).ToWide();
        } else {
            const auto unit = static_cast<char16_t>(number);
            return unit != 0 ? std::u16string(1, unit) : std::u16string();
        }
    }

    Kind m_kind = Kind::Integer;
    std::size_t m_bytes = sizeof(int);
    std::int64_t m_integer = 0;
    double m_real = 0;
    const void* m_pointer = nullptr;
    std::u16string m_text;
};

/// The work behind FormatWide.
[[nodiscard]] std::u16string FormatWideValues(std::u16string_view format,
                                              std::span<const WideFormatValue> values);

/// printf into a new wide string. The format may be narrow, and is then read by the plain narrow rule.
template <typename Format, typename... Values>
requires std::is_constructible_v<CStringU, Format>
[[nodiscard]] std::u16string FormatWide(const Format& format, const Values&... values) {
    const std::array<WideFormatValue, sizeof...(Values)> list{WideFormatValue(values)...};
    return FormatWideValues(CStringU(format).ToWide(), list);
}

}  // namespace vapp_text
