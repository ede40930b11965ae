/// @file
/// NATIVE: Linux takes bytes; here they are UTF-8.
#include "platform/posix/NativeText.h"

#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>

namespace vapp_platform {

namespace {

constexpr char32_t cnByteUnits = 0xDC00;
constexpr char32_t cnBackslashUnit = 0xDC5C;
constexpr char32_t cnFirstByteUnit = 0xDC80;
constexpr char32_t cnLastByteUnit = 0xDCFF;
constexpr char32_t cnNoCharacter = 0xFFFD;

bool IsEscapedByte(char32_t character) {
    return character == cnBackslashUnit || (character >= cnFirstByteUnit && character <= cnLastByteUnit);
}

void AppendNative(std::string& bytes, char32_t character) {
    if (IsEscapedByte(character)) {
        bytes += static_cast<char>(character - cnByteUnits);
        return;
    }
    if (character > 0x10FFFF || U_IS_SURROGATE(character)) character = cnNoCharacter;
    char encoded[U8_MAX_LENGTH];
    std::size_t length = 0;
    U8_APPEND_UNSAFE(encoded, length, character);
    bytes.append(encoded, length);
}

// ICU's macro narrows on purpose.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
// The character at `at`, below 0 where there is none, and moves behind it.
UChar32 NextCharacter(std::string_view bytes, std::int64_t& at) {
    const auto length = static_cast<std::int64_t>(bytes.size());
    UChar32 character = 0;
    U8_NEXT(bytes.data(), at, length, character);
    return character;
}
#pragma GCC diagnostic pop

template <typename Unit>
std::string NativeFromUnits(std::basic_string_view<Unit> text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto unit = static_cast<char32_t>(text[at]);
        const char32_t next = at + 1 < text.size() ? static_cast<char32_t>(text[at + 1]) : 0;
        if (U16_IS_LEAD(unit) && U16_IS_TRAIL(next)) {
            AppendNative(bytes, static_cast<char32_t>(U16_GET_SUPPLEMENTARY(unit, next)));
            ++at;
        } else {
            AppendNative(bytes, unit);
        }
    }
    return bytes;
}

}  // namespace

std::string NativeFromUtf16(std::u16string_view text) {
    return NativeFromUnits(text);
}

std::string NativeText(const CStringU& text) {
    if (!text.HasNonAscii()) return std::string(text.PayloadView());
    return NativeFromUtf16(text.ToWide());
}

std::string NativeFromWide(std::wstring_view text) {
    return NativeFromUnits(text);
}

std::wstring WideFromNative(std::string_view bytes) {
    std::wstring text;
    text.reserve(bytes.size());
    const auto length = static_cast<std::int64_t>(bytes.size());
    for (std::int64_t at = 0; at < length;) {
        const std::int64_t first = at;
        const UChar32 character = NextCharacter(bytes, at);
        if (character >= 0) {
            text += static_cast<wchar_t>(character);
            continue;
        }
        // One byte at a time: what looks like the rest of a broken character is no text either.
        at = first + 1;
        text += static_cast<wchar_t>(cnByteUnits +
                                     static_cast<unsigned char>(bytes[static_cast<std::size_t>(first)]));
    }
    return text;
}

CStringU TextFromNative(std::string_view bytes) {
    const std::wstring wide = WideFromNative(bytes);
    return {wide.data(), static_cast<int>(std::min<std::size_t>(wide.size(), INT_MAX))};
}

}  // namespace vapp_platform
