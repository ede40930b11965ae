/// @file
/// Appending to a CStringU, cutting pieces out of it, editing it at a position.
///
/// All editing rebuilds the text from pieces, and each piece gets or loses the marker by its own content. So
/// nothing here ever takes a marker away in place, and no stale one survives.

#include <algorithm>
#include <array>
#include <climits>
#include <string_view>

#include "text/AsciiBytes.h"
#include "text/Codec.h"
#include "text/WideUnits.h"
#include "vapp/text/CStringU.h"

// Appends payload bytes, then puts the marker in front if they call for it and nothing shows it yet.
void CStringU::AppendBytes(std::string_view bytes, bool bringsNonAscii) {
    const char first = m_stored.IsEmpty() && !bytes.empty() ? bytes.front() : m_stored.GetAt(0);
    if (!bringsNonAscii || !vapp_text::IsAsciiByte(first)) {
        m_stored.Append(bytes);
        return;
    }
    CString marked;
    const std::size_t length = m_stored.View().size() + bytes.size() + 1;
    marked.Reserve(static_cast<int>(std::min<std::size_t>(length, INT_MAX)));
    marked.AppendChar(vapp_text::cnTextMarker).Append(m_stored.View()).Append(bytes);
    m_stored = std::move(marked);
}

CStringU& CStringU::AppendU(const CStringU& other) {
    const char* const payload = other.Payload();
    const bool staleMarker = payload != other.m_stored.GetString() && !vapp_text::IsAsciiByte(*payload);
    if (m_stored.IsEmpty() && !staleMarker) {
        m_stored = other.m_stored;  // the same bytes as an appended payload with its marker derived again
        return *this;
    }
    AppendBytes(other.PayloadView(), other.HasNonAscii());
    return *this;
}

CStringU& CStringU::operator+=(char16_t unit) {
    if (unit == u'\0') return *this;
    std::array<char, vapp_text::cnMaxEncodedBytes> bytes{};
    const int size = vapp_text::EncodeChar(unit, bytes.data());
    AppendBytes({bytes.data(), static_cast<std::size_t>(size)}, unit >= 0x80U);
    return *this;
}

CStringU& CStringU::operator+=(wchar_t character) {
    std::u16string units;
    vapp_text::AppendUnits(character, units);
    for (const char16_t unit : units) {
        *this += unit;
    }
    return *this;
}

CStringU& CStringU::operator+=(char ascii) {
    if (ascii != '\0') m_stored.AppendChar(ascii);
    return *this;
}

std::int64_t CStringU::ClampOffset(std::int64_t offset) const noexcept {
    return std::clamp<std::int64_t>(offset, 0, GetByteLength());
}

// The payload's bytes from one clamped offset up to another, classified anew.
CStringU CStringU::Piece(std::int64_t first, std::int64_t behind) const {
    const auto length = static_cast<std::size_t>(std::max<std::int64_t>(behind - first, 0));
    if (!HasNonAscii()) {
        if (length == m_stored.View().size()) return *this;
        return {CString(std::string_view(m_stored.GetString() + first, length)), TAscii()};
    }
    const char* const piece = Payload() + first;
    const vapp_text::TScanned scanned = vapp_text::ScanToNul({piece, length});
    const std::string_view bytes(piece, scanned.size);
    if (!scanned.nonAscii || !vapp_text::IsAsciiByte(bytes.front())) return {CString(bytes), TAscii()};
    return {CString::Filled(bytes.size() + 1,
                            [bytes](char* out) {
                                *out = vapp_text::cnTextMarker;
                                bytes.copy(out + 1, bytes.size());
                            }),
            TAscii()};
}

CStringU CStringU::Left(std::int64_t byteCount) const {
    return Piece(0, ClampOffset(byteCount));
}

CStringU CStringU::Tail(const CStringUPos& pos) const {
    return Piece(ClampOffset(pos.offset), GetByteLength());
}

CStringU CStringU::Mid(const CStringUPos& pos, std::int64_t count) const {
    const CStringUPos first(ClampOffset(pos.offset), this);
    return Piece(first.offset, count < 1 ? first.offset : (first + count).offset);
}

int CStringU::PrefixBytes2() const noexcept {
    return HasNonAscii() ? static_cast<int>((Begin() + 2).offset) : 2;
}

CStringU CStringU::Prefix2() const {
    return Left(PrefixBytes2());
}

char16_t CStringU::LastChar() const noexcept {
    return IsEmpty() ? u'\0' : *(--End());
}

int CStringU::Insert(const CStringUPos& pos, char16_t unit) {
    return Insert(pos, CStringU(unit));
}

int CStringU::Insert(const CStringUPos& pos, wchar_t character) {
    return Insert(pos, CStringU(character));
}

int CStringU::Insert(const CStringUPos& pos, const CStringU& text) {
    CStringU result = Head(pos);
    result.AppendU(text).AppendU(Tail(pos));
    *this = std::move(result);
    return GetCharCount();
}

int CStringU::Erase(const CStringUPos& pos, std::int64_t count) {
    const CStringUPos first(ClampOffset(pos.offset), this);
    return Erase(first, count < 1 ? first : first + count);
}

int CStringU::Erase(const CStringUPos& pos1, const CStringUPos& pos2) {
    CStringU result = Head(std::min(pos1, pos2));
    result.AppendU(Tail(std::max(pos1, pos2)));
    *this = std::move(result);
    return GetCharCount();
}
