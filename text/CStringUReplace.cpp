/// @file
/// The replacements of a CStringU: of a character with and without case, and of a text with case. That of a
/// text without case stands in CStringUReplaceNoCase.cpp.
///
/// Whatever its script, a text that is encoded as this type encodes is replaced byte by byte: in it, bytes
/// stand exactly where their characters stand. All else, malformed, overlong or with a NUL inside, goes by
/// characters as they decode, and comes back classified anew; an overlong NUL in it ends it on that way.

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "text/AsciiBytes.h"
#include "text/ByteReplacement.h"
#include "text/Codec.h"
#include "text/Fold.h"
#include "text/LinearSearch.h"
#include "text/MappedText.h"
#include "text/StoredForm.h"
#include "text/Upper.h"
#include "vapp/text/CStringU.h"

namespace {

using vapp_text::FoldChar;
using vapp_text::HasDueMarker;
using vapp_text::IsEncoded;

constexpr bool IsAsciiUnit(char16_t unit) {
    return unit < 0x80U;
}

// The bytes of a character, with a NUL behind them.
class EncodedUnit {
public:
    explicit EncodedUnit(char16_t unit) { vapp_text::EncodeChar(unit, m_bytes.data()); }
    [[nodiscard]] const char* Bytes() const { return m_bytes.data(); }

private:
    std::array<char, vapp_text::cnMaxEncodedBytes + 1> m_bytes{};
};

// What is stored of a text once each of its units is changed by `change`, which gives the number of its
// replacements; they are summed up in `replaced`. Text outside of ASCII goes straight from bytes to bytes.
template <typename Change>
CString WithChangedUnits(const CStringU& text, int& replaced, const Change& change) {
    if (!text.HasNonAscii()) {
        std::u16string units = text.ToWide();
        for (char16_t& unit : units)
            replaced += change(unit);
        return CStringU(std::u16string_view(units)).Stored();
    }
    const auto counted = [&](char16_t unit) {
        replaced += change(unit);
        return unit;
    };
    const vapp_text::TMappedSize size = vapp_text::MeasureMapped(text.Payload(), counted);
    return vapp_text::Mapped(text.Payload(), size, [&](char16_t unit) {
        static_cast<void>(change(unit));
        return unit;
    });
}

int ReplaceUnits(std::u16string& units, std::u16string_view oldText, std::u16string_view newText) {
    if (oldText.empty()) return 0;
    vapp_text::LinearSearch search(oldText);
    int replaced = 0;
    std::size_t from = 0;
    std::u16string result;
    for (std::size_t hit = search.Find(units, 0); hit != std::u16string::npos;
         hit = search.Find(units, from)) {
        result.append(units, from, hit - from).append(newText);
        from = hit + oldText.size();
        ++replaced;
    }
    if (replaced != 0) units = result.append(units, from);
    return replaced;
}

}  // namespace

void CStringU::DeriveMarker() {
    if (!HasDueMarker(*this)) AssignUtf8(PayloadView());
}

int CStringU::Replace(char16_t oldUnit, char16_t newUnit) {
    if (oldUnit == 0 || newUnit == 0) return 0;
    const bool bothAscii = IsAsciiUnit(oldUnit) && IsAsciiUnit(newUnit);
    if (!HasNonAscii() && IsAsciiUnit(newUnit)) {
        return bothAscii ? m_stored.Replace(static_cast<char>(oldUnit), static_cast<char>(newUnit)) : 0;
    }
    if (!IsEncoded(*this)) return ReplaceByDecoding(oldUnit, newUnit);
    const int replaced = bothAscii
                             ? m_stored.Replace(static_cast<char>(oldUnit), static_cast<char>(newUnit))
                             : m_stored.Replace(EncodedUnit(oldUnit).Bytes(), EncodedUnit(newUnit).Bytes());
    if (replaced != 0) DeriveMarker();
    return replaced;
}

int CStringU::ReplaceByDecoding(char16_t oldUnit, char16_t newUnit) {
    if (FindChar(oldUnit, true, Begin()) == End()) return 0;
    int replaced = 0;
    m_stored = WithChangedUnits(*this, replaced, [=](char16_t& unit) {
        const bool hit = unit == oldUnit;
        unit = hit ? newUnit : unit;
        return static_cast<int>(hit);
    });
    return replaced;
}

int CStringU::ReplaceNoCase(char16_t oldUnit, char16_t newUnit) {
    if (oldUnit == 0 || newUnit == 0) return 0;
    const char16_t lower = FoldChar(oldUnit);
    const char16_t upper = vapp_text::UpperChar(oldUnit);
    const bool bothAscii = IsAsciiUnit(oldUnit) && IsAsciiUnit(newUnit);
    if (!HasNonAscii() && bothAscii) {
        return ReplaceAsciiNoCase(static_cast<char>(lower), static_cast<char>(newUnit));
    }
    if (bothAscii && HasDueMarker(*this) && IsEncoded(*this)) {
        const auto replace = [&](char16_t form) {
            return m_stored.Replace(static_cast<char>(form), static_cast<char>(newUnit));
        };
        int replaced = replace(oldUnit);
        if (lower != oldUnit) replaced += replace(lower);
        if (upper != oldUnit) replaced += replace(upper);
        return replaced;
    }
    if (FindChar(oldUnit, false, Begin()) == End()) return 0;
    int replaced = 0;
    m_stored = WithChangedUnits(*this, replaced, [=](char16_t& unit) {
        int ofUnit = 0;
        const auto replace = [&](char16_t form) {
            if (unit != form) return;
            unit = newUnit;
            ++ofUnit;
        };
        replace(oldUnit);
        if (lower != oldUnit) replace(lower);
        if (upper != oldUnit) replace(upper);
        return ofUnit;
    });
    return replaced;
}

int CStringU::ReplaceAsciiNoCase(char lower, char newByte) {
    const char upper = static_cast<char>(vapp_text::UpperChar(static_cast<unsigned char>(lower)));
    const std::string_view text = m_stored.View();
    if (text.find(lower) == std::string_view::npos && text.find(upper) == std::string_view::npos) return 0;
    const int length = m_stored.GetLength();
    char* const bytes = m_stored.GetBuffer();
    const vapp_text::ByteReplacement replacement(lower, newByte, true);
    const std::size_t replaced = replacement.Copy(bytes, bytes, text.size());
    m_stored.ReleaseBuffer(length);
    return static_cast<int>(replaced);
}

int CStringU::ReplaceCharacter(const CStringU& oldText, const CStringU& newText, bool caseSensitive) {
    if (oldText.IsEmpty() || newText.IsEmpty()) return 0;
    if (oldText.GetCharCount() > 1 || newText.GetCharCount() > 1) {
        return caseSensitive ? Replace(oldText, newText) : ReplaceNoCase(oldText, newText);
    }
    return caseSensitive ? Replace(*oldText.Begin(), *newText.Begin())
                         : ReplaceNoCase(*oldText.Begin(), *newText.Begin());
}

int CStringU::Replace(const CStringU& oldText, const CStringU& newText) {
    if (!HasNonAscii() && !newText.HasNonAscii()) {
        return oldText.HasNonAscii() ? 0 : m_stored.Replace(oldText.Payload(), newText.Payload());
    }
    if (!IsEncoded(*this) || !IsEncoded(oldText) || !IsEncoded(newText)) {
        return ReplaceByDecoding(oldText, newText);
    }
    const bool always = oldText.IsEmpty();
    const int replaced = m_stored.Replace(oldText.Payload(), newText.Payload());
    if (replaced != 0 || always) DeriveMarker();
    return replaced;
}

int CStringU::ReplaceByDecoding(const CStringU& oldText, const CStringU& newText) {
    vapp_text::LinearSearch search(oldText.PayloadView());
    if (search.Find(PayloadView(), 0) == std::string_view::npos) return 0;
    std::u16string units = ToWide();
    const int replaced = ReplaceUnits(units, oldText.ToWide(), newText.ToWide());
    AssignWide(std::u16string_view(units));
    return replaced;
}
