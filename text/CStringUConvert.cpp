/// @file
/// How a CStringU leaves: as plain UTF-8 bytes, as UTF-16, as bytes of a code page; and how long it is.
///
/// ASCII text goes out byte by byte and never asks the platform.

#include <algorithm>

#include "text/Codec.h"
#include "text/PlatformText.h"
#include "vapp/text/CStringU.h"

namespace {

// Fills any kind of wide text; it has at most as many units as the payload has bytes.
template <typename Text>
Text Widen(const CStringU& source) {
    using Unit = typename Text::value_type;
    const std::string_view bytes = source.PayloadView();
    Text wide;
    if (!source.HasNonAscii()) {
        wide.resize(bytes.size());
        std::transform(bytes.begin(), bytes.end(), wide.begin(),
                       [](char byte) { return static_cast<Unit>(static_cast<unsigned char>(byte)); });
        return wide;
    }
    wide.reserve(bytes.size());
    for (const char* walk = bytes.data(); *walk != '\0';) {
        wide += static_cast<Unit>(vapp_text::DecodeNext(walk));
    }
    return wide;
}

}  // namespace

int CStringU::GetCharCount() const noexcept {
    if (!HasNonAscii()) return m_stored.GetLength();
    int count = 0;
    for (const char* walk = Payload(); *walk != '\0'; ++count) {
        static_cast<void>(vapp_text::DecodeNext(walk));
    }
    return count;
}

CString CStringU::StripMarker() const {
    return Payload() == m_stored.GetString() ? m_stored : CString(PayloadView());
}

std::u16string CStringU::ToWide() const {
    return Widen<std::u16string>(*this);
}

std::wstring CStringU::ToStdWstring() const {
    return Widen<std::wstring>(*this);
}

std::u16string CStringU::ToWideSwapped() const {
    std::u16string units = ToWide();
    std::transform(units.begin(), units.end(), units.begin(), [](char16_t unit) {
        const unsigned value = unit;
        return static_cast<char16_t>((value << 8U) | (value >> 8U));
    });
    return units;
}

CString CStringU::ToAnsi(unsigned codePage) const {
    if (!HasNonAscii()) return m_stored;
    const std::u16string units = ToWide();
    if (std::all_of(units.begin(), units.end(), [](char16_t unit) { return unit < 0x80U; })) {
        return StripMarker();
    }
    // NATIVE: a code page's bytes go out. The platform reads up to a NUL, and an overlong one counts.
    const std::u16string_view text(units.c_str());
    const std::string bytes = vapp_platform::Utf16ToCodePage(codePage, text);
    return CString(bytes);
}

CString CStringU::ToAnsi() const {
    return ToAnsi(vapp_platform::ActiveCodePage());
}
