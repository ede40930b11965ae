/// @file
/// How text comes into a CStringU: from narrow bytes, from UTF-16, from code pages. Each way ends with the
/// marker where its first byte has to show that the text is not all ASCII.

#include "vapp/text/CStringU.h"

#include <algorithm>
#include <climits>
#include <cstring>

#include "text/AsciiBytes.h"
#include "text/Codec.h"
#include "text/PlatformText.h"
#include "text/WideUnits.h"

namespace {

using vapp_text::AllAscii;
using vapp_text::EncodeChar;
using vapp_text::EncodedSize;
using vapp_text::IsAsciiByte;

// The bytes that an operation looks at: `length` of them or all, but none at or behind a NUL.
std::string_view Bytes(const char* text, int length) {
    if (text == nullptr) return {};
    return {text, length < 0 ? std::strlen(text) : strnlen(text, static_cast<std::size_t>(length))};
}

char16_t SwapUnitBytes(char16_t unit) {
    const unsigned value = unit;
    return static_cast<char16_t>((value << 8U) | (value >> 8U));
}

struct TEncodedSize {
    std::size_t bytes = 0;
    bool nonAscii = false;
};

TEncodedSize MeasureEncoded(std::u16string_view units) {
    TEncodedSize size;
    for (const char16_t unit : units) {
        size.bytes += static_cast<std::size_t>(EncodedSize(unit));
        size.nonAscii = size.nonAscii || unit >= 0x80U;
    }
    return size;
}

constexpr std::string_view csMarker(&vapp_text::cnTextMarker, 1);

}  // namespace

CStringU::CStringU(const char* text) {
    Assign(text, TextEncoding::AnsiAuto);
}
CStringU::CStringU(const CString& text) {
    *this = text;
}
CStringU::CStringU(const char* text, TextEncoding encoding, int length) {
    Assign(text, encoding, length);
}
CStringU::CStringU(const char16_t* text, int count) {
    AssignWide(text, count);
}
CStringU::CStringU(const wchar_t* text, int count) {
    AssignWide(text, count);
}
CStringU::CStringU(std::u16string_view text) {
    AssignWide(text);
}
CStringU::CStringU(char16_t unit) {
    *this += unit;
}
CStringU::CStringU(wchar_t character) {
    *this += character;
}
CStringU::CStringU(const char16_t* text, TSwapped /*way*/) {
    AssignWideSwapped(text);
}
CStringU::CStringU(const wchar_t* text, TSwapped /*way*/) {
    AssignWideSwapped(text);
}
CStringU::CStringU(const char* text, TAnsi way, int length) {
    AssignAnsi(text, way.codePage, length);
}
CStringU::CStringU(const char* text, TAnsiAuto way, int length) {
    AssignAnsiAuto(text, way.codePage, length);
}
CStringU::CStringU(const CString& utf8, TMarked /*way*/) {
    AssignMarked(utf8);
}

CStringU& CStringU::operator=(const char* text) {
    return Assign(text, TextEncoding::AnsiAuto);
}

CStringU& CStringU::operator=(const CString& text) {
    const std::string_view bytes = Bytes(text.GetString(), -1);
    if (bytes.size() != text.View().size() || !AllAscii(bytes)) return *this = text.GetString();
    m_stored = text;  // ASCII without an embedded NUL can share
    return *this;
}

CStringU& CStringU::operator=(char16_t unit) {
    return *this = CStringU(unit);
}
CStringU& CStringU::operator=(wchar_t character) {
    return *this = CStringU(character);
}

CStringU& CStringU::Assign(const char* text, TextEncoding encoding, int length) {
    const std::string_view bytes = Bytes(text, length);
    switch (encoding) {
        case TextEncoding::Ansi:
            return AssignAnsi(text, vapp_platform::ActiveCodePage(), length);
        case TextEncoding::AnsiAuto:
            if (!AllAscii(bytes)) return AssignAnsi(text, vapp_platform::ActiveCodePage(), length);
            break;
        case TextEncoding::Utf8Auto:
            return AssignUtf8(bytes);
        case TextEncoding::Utf8:
            if (!bytes.empty() && IsAsciiByte(bytes.front())) {
                m_stored.Assign(csMarker, bytes);
                return *this;
            }
            break;
        case TextEncoding::Raw:
            break;
    }
    m_stored.Assign(bytes);
    return *this;
}

CStringU& CStringU::AssignUtf8(std::string_view utf8) {
    if (!AllAscii(utf8) && IsAsciiByte(utf8.front())) {
        m_stored.Assign(csMarker, utf8);
    } else {
        m_stored.Assign(utf8);
    }
    return *this;
}

CStringU& CStringU::AssignWide(const char16_t* text, int count) {
    if (text == nullptr) return AssignWide(std::u16string_view());
    std::size_t length = 0;
    while ((count < 0 || length < static_cast<std::size_t>(count)) && text[length] != u'\0') {
        ++length;
    }
    return AssignWide(std::u16string_view(text, length));
}

CStringU& CStringU::AssignWide(const wchar_t* text, int count) {
    return AssignWide(std::u16string_view(vapp_text::ToUnits(text, count)));
}

CStringU& CStringU::AssignWide(std::u16string_view text) {
    const std::u16string_view units = text.substr(0, text.find(u'\0'));
    const TEncodedSize size = MeasureEncoded(units);
    const bool marked = size.nonAscii && units.front() < 0x80U;
    const std::size_t stored = size.bytes + static_cast<std::size_t>(marked);
    m_stored = CString::Filled(stored, [&](char* out) {
        if (marked) *out++ = vapp_text::cnTextMarker;
        for (const char16_t unit : units)
            out += EncodeChar(unit, out);
    });
    return *this;
}

CStringU& CStringU::AssignWideSwapped(const char16_t* text) {
    std::u16string units(text != nullptr ? text : u"");
    std::transform(units.begin(), units.end(), units.begin(), SwapUnitBytes);
    return AssignWide(std::u16string_view(units));
}

CStringU& CStringU::AssignWideSwapped(const wchar_t* text) {
    return AssignWideSwapped(vapp_text::ToUnits(text).c_str());
}

CStringU& CStringU::AssignAnsi(const char* text, unsigned codePage, int length) {
    // NATIVE: a code page's bytes come in.
    return AssignWide(std::u16string_view(vapp_platform::CodePageToUtf16(codePage, Bytes(text, length))));
}

CStringU& CStringU::AssignAnsiAuto(const char* text, unsigned codePage, int length) {
    const std::string_view bytes = Bytes(text, length);
    if (!AllAscii(bytes)) return AssignAnsi(text, codePage, length);
    m_stored = CString(bytes);
    return *this;
}

CStringU& CStringU::AssignMarked(const CString& utf8) {
    const std::string_view bytes = Bytes(utf8.GetString(), -1);
    if (!bytes.empty() && IsAsciiByte(bytes.front())) {
        m_stored.Assign(csMarker, bytes);
    } else if (bytes.size() == utf8.View().size()) {
        m_stored = utf8;
    } else {
        m_stored = CString(bytes);
    }
    return *this;
}
