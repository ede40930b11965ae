/// @file
/// Almost every name is ASCII, or UTF-8 without a surrogate in it, and is copied as it stands.
#include "platform/posix/NativePath.h"

#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace vapp_platform {

namespace {

constexpr char16_t cnEscapeBase = 0xDC00;
constexpr char16_t cnEscapedBackslash = 0xDC5C;

// Every surrogate begins with this byte, and so do some good characters.
constexpr char cnSurrogateLead = '\xED';

std::uint8_t ByteAt(std::string_view bytes, std::size_t at) {
    return at < bytes.size() ? static_cast<std::uint8_t>(bytes[at]) : std::uint8_t{0};
}

// The surrogate whose three bytes stand at `at`; 0 where something else does.
char16_t SurrogateAt(std::string_view bytes, std::size_t at) {
    const unsigned second = ByteAt(bytes, at + 1);
    const unsigned third = ByteAt(bytes, at + 2);
    if (ByteAt(bytes, at) != 0xEDU || second < 0xA0U || second > 0xBFU || (third & 0xC0U) != 0x80U) return 0;
    return static_cast<char16_t>(0xD000U | ((second & 0x3FU) << 6U) | (third & 0x3FU));
}

bool IsEscapedByte(char16_t unit) {
    return unit == cnEscapedBackslash || (unit >= cnEscapeBase + 0x80 && unit <= cnEscapeBase + 0xFF);
}

void AppendUtf8(UChar32 character, std::string& out) {
    std::array<char, U8_MAX_LENGTH> encoded{};
    std::size_t length = 0;
    U8_APPEND_UNSAFE(encoded.data(), length, character);
    out.append(encoded.data(), length);
}

std::string ReplaceSurrogates(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();) {
        const char16_t unit = SurrogateAt(bytes, at);
        const char16_t next = U16_IS_LEAD(unit) ? SurrogateAt(bytes, at + 3) : u'\0';
        if (unit == 0) {
            out += bytes[at] == '\\' ? '/' : bytes[at];
            at += 1;
        } else if (U16_IS_TRAIL(next)) {
            AppendUtf8(U16_GET_SUPPLEMENTARY(unit, next), out);
            at += 6;
        } else {
            if (IsEscapedByte(unit)) {
                out += static_cast<char>(unit & 0xFFU);
            } else {
                out.append(bytes.substr(at, 3));
            }
            at += 3;
        }
    }
    return out;
}

// ICU's macro narrows inside.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
// The character at `at`, which moves behind it; negative for bytes that are no UTF-8.
UChar32 NextCharacter(std::string_view bytes, std::size_t& at) {
    UChar32 character = 0;
    U8_NEXT(bytes.data(), at, bytes.size(), character);
    return character;
}
#pragma GCC diagnostic pop

std::u16string ToUnits(std::string_view bytes) {
    std::u16string units;
    units.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t start = at;
        const UChar32 character = NextCharacter(bytes, at);
        if (character < 0 || character == '\\') {
            units += static_cast<char16_t>(cnEscapeBase | ByteAt(bytes, start));
            at = start + 1;
        } else if (U_IS_BMP(character)) {
            units += static_cast<char16_t>(character);
        } else {
            units += static_cast<char16_t>(U16_LEAD(character));
            units += static_cast<char16_t>(U16_TRAIL(character));
        }
    }
    return units;
}

}  // namespace

std::string ToNativePath(const CStringU& path) {
    const std::string_view bytes = path.PayloadView();
    if (bytes.find(cnSurrogateLead) != std::string_view::npos) return ReplaceSurrogates(bytes);
    std::string out(bytes);
    std::replace(out.begin(), out.end(), '\\', '/');
    return out;
}

CStringU FromNativePath(std::string_view bytes) {
    const bool isPlain = std::all_of(bytes.begin(), bytes.end(), [](char byte) {
        return static_cast<unsigned char>(byte) < 0x80U && byte != '\\';
    });
    if (!isPlain) return CStringU(std::u16string_view(ToUnits(bytes)));
    return {bytes.data(), TextEncoding::Raw, static_cast<int>(bytes.size())};
}

}  // namespace vapp_platform
