/// @file
/// The four replacements of a CStringU: of a character and of a text, with and without case.
///
/// What is all ASCII is replaced byte by byte. Everything else goes by characters, and comes back classified
/// anew; an overlong NUL in it ends it on that way. For texts that way leads through UTF-16.
///
/// The surprise is ReplaceNoCase of texts. It searches a folded copy that is never edited, but applies each
/// hit to the text that is: with a new text of another length every hit behind the first lands off its place,
/// by as much as the text has grown or shrunk so far. "aXbX" from "x" to "yy" becomes "ayyyyX": the second
/// hit, at index 3, is applied where by then the "b" stands. Texts have been stored that way, and so it
/// stays. What is added here are two ends that the rule lacks: an empty new text goes on behind its hit, and
/// a hit that has drifted behind the end is none.

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "text/AsciiBytes.h"
#include "text/Codec.h"
#include "text/Fold.h"
#include "text/MappedText.h"
#include "text/ReplaceBytes.h"
#include "text/Search.h"
#include "text/Upper.h"
#include "vapp/text/CStringU.h"

namespace {

using vapp_text::FoldChar;

// An ASCII byte is no part of another character, so that FindChar finds the first one, if nothing before.
bool HoldsByte(std::string_view payload, char16_t unit) {
    return unit < 0x80U && payload.find(static_cast<char>(unit)) != std::string_view::npos;
}

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

int ReplaceText(std::u16string& units, std::u16string_view oldText, std::u16string_view newText) {
    if (oldText.empty()) return 0;
    int replaced = 0;
    std::size_t from = 0;
    std::u16string result;
    for (std::size_t hit = units.find(oldText); hit != std::u16string::npos;
         hit = units.find(oldText, from)) {
        result.append(units, from, hit - from).append(newText);
        from = hit + oldText.size();
        ++replaced;
    }
    if (replaced != 0) units = result.append(units, from);
    return replaced;
}

std::u16string Folded(std::u16string units) {
    std::transform(units.begin(), units.end(), units.begin(), FoldChar);
    return units;
}

/// A text under edits from left to right: what is done, and what is left of the original.
template <typename Text>
class DriftingEdit {
public:
    explicit DriftingEdit(Text original) : m_original(std::move(original)) {}

    [[nodiscard]] const Text& Original() const { return m_original; }
    /// Units of the text as it is now.
    [[nodiscard]] std::size_t Size() const { return m_done.size() + (m_original.size() - m_taken); }

    /// Replaces `count` units at an index of the text as it is now, at or behind the last edit.
    void ReplaceAt(std::size_t index, std::size_t count,
                   std::basic_string_view<typename Text::value_type> inserted) {
        const std::size_t kept = index - m_done.size();
        m_done.append(m_original, m_taken, kept).append(inserted);
        m_taken = std::min(m_taken + kept + count, m_original.size());
    }
    [[nodiscard]] const Text& Finish() { return m_done.append(m_original, m_taken); }

private:
    Text m_original;
    Text m_done;
    std::size_t m_taken = 0;
};

// Text of which each byte is a character, and which ends at its end.
bool IsPlain(const CStringU& text) {
    const std::string_view payload = text.PayloadView();
    return vapp_text::AllAscii(payload) && payload.find('\0') == std::string_view::npos;
}

std::size_t FindFolded(std::string_view text, std::string_view wanted, std::size_t from) {
    if (from > text.size()) return std::string_view::npos;
    const auto first = text.begin() + static_cast<std::ptrdiff_t>(from);
    const auto folded = [](char byte) { return vapp_text::FoldAsciiChar(static_cast<unsigned char>(byte)); };
    const auto hit = std::search(first, text.end(), wanted.begin(), wanted.end(),
                                 [&](char left, char right) { return folded(left) == folded(right); });
    return hit != text.end() ? static_cast<std::size_t>(hit - text.begin()) : std::string_view::npos;
}

// ReplaceNoCase of texts, all of them plain and `wanted` not empty, by bytes.
int ReplacePlainNoCase(CString& text, std::string_view wanted, std::string_view inserted) {
    const CString original = text;  // a share: hits are searched in what is never edited
    std::size_t hit = FindFolded(original.View(), wanted, 0);
    if (hit == std::string_view::npos) return 0;
    const std::size_t step = inserted.empty() ? wanted.size() : inserted.size();
    int replaced = 0;
    if (inserted.size() == wanted.size()) {  // nothing drifts
        char* const bytes = text.GetBuffer();
        for (; hit != std::string_view::npos; hit = FindFolded(original.View(), wanted, hit + step)) {
            inserted.copy(bytes + hit, inserted.size());
            ++replaced;
        }
        text.ReleaseBuffer(original.GetLength());
        return replaced;
    }
    DriftingEdit<std::string> edit{std::string(original.View())};
    for (; hit <= edit.Size(); hit = FindFolded(original.View(), wanted, hit + step)) {
        edit.ReplaceAt(hit, wanted.size(), inserted);
        ++replaced;
    }
    text = CString(edit.Finish());
    return replaced;
}

bool IsAsciiUnit(char16_t unit) {
    return unit < 0x80U;
}

}  // namespace

int CStringU::Replace(char16_t oldUnit, char16_t newUnit) {
    if (oldUnit == 0 || newUnit == 0) return 0;
    if (!HasNonAscii() && IsAsciiUnit(newUnit)) {
        if (!IsAsciiUnit(oldUnit)) return 0;
        return m_stored.Replace(static_cast<char>(oldUnit), static_cast<char>(newUnit));
    }
    if (!HoldsByte(PayloadView(), oldUnit) && FindChar(oldUnit, true, Begin()) == End()) return 0;
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
    if (!HasNonAscii() && IsAsciiUnit(oldUnit) && IsAsciiUnit(newUnit)) {
        return ReplaceAsciiNoCase(static_cast<char>(lower), static_cast<char>(newUnit));
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

// The form that the new character is, if it is one, comes first, so that none is replaced and counted twice.
int CStringU::ReplaceAsciiNoCase(char lower, char newByte) {
    const char upper = static_cast<char>(vapp_text::UpperChar(static_cast<unsigned char>(lower)));
    const std::string_view text = m_stored.View();
    if (text.find(lower) == std::string_view::npos && text.find(upper) == std::string_view::npos) return 0;
    const int length = m_stored.GetLength();
    const std::size_t size = text.size();
    char* const bytes = m_stored.GetBuffer();
    const char first = newByte == upper ? upper : lower;
    std::size_t replaced = vapp_text::ReplaceBytes(bytes, size, first, newByte);
    if (upper != lower) {
        replaced += vapp_text::ReplaceBytes(bytes, size, first == upper ? lower : upper, newByte);
    }
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
    if (PayloadView().find(oldText.PayloadView()) == std::string_view::npos) return 0;
    std::u16string units = ToWide();
    const int replaced = ReplaceText(units, oldText.ToWide(), newText.ToWide());
    AssignWide(std::u16string_view(units));
    return replaced;
}

int CStringU::ReplaceNoCase(const CStringU& oldText, const CStringU& newText) {
    if (!oldText.IsEmpty() && IsPlain(*this) && IsPlain(oldText) && IsPlain(newText)) {
        return ReplacePlainNoCase(m_stored, CStringU(oldText).PayloadView(), CStringU(newText).PayloadView());
    }
    if (vapp_text::FindTextNoCaseU(Payload(), oldText.Payload()) == vapp_text::cnNotFound) return 0;
    DriftingEdit edit(ToWide());
    const std::u16string searched = Folded(edit.Original());
    const std::u16string wanted = Folded(oldText.ToWide());
    const std::u16string inserted = newText.ToWide();
    const std::size_t step = !inserted.empty() ? inserted.size() : std::max<std::size_t>(wanted.size(), 1);
    int replaced = 0;
    for (std::size_t hit = searched.find(wanted); hit <= edit.Size();
         hit = searched.find(wanted, hit + step)) {
        edit.ReplaceAt(hit, wanted.size(), inserted);
        ++replaced;
    }
    AssignWide(std::u16string_view(edit.Finish()));
    return replaced;
}
