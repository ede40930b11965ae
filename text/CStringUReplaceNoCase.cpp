/// @file
/// The replacement of a text without case.
///
/// The surprise is where it replaces. It searches a folded copy that is never edited, but applies each hit to
/// the text that is: with a new text of another length every hit behind the first lands off its place, by as
/// much as the text has grown or shrunk so far. "aXbX" from "x" to "yy" becomes "ayyyyX": the second hit, at
/// index 3, is applied where by then the "b" stands. Texts have been stored that way, and so it stays. What
/// is added here are two ends that the rule lacks: an empty new text goes on behind its hit, and a hit that
/// has drifted behind the end is none.
///
/// Where all three texts are ASCII, bytes are units, and nothing is decoded. Nor is it where the two that are
/// exchanged are, and as long as one another: nothing drifts, and any encoded text is edited where it stands.

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "text/AsciiBytes.h"
#include "text/Codec.h"
#include "text/Fold.h"
#include "text/LinearSearch.h"
#include "text/PlainNoCaseSearch.h"
#include "text/Search.h"
#include "text/StoredForm.h"
#include "vapp/text/CStringU.h"

namespace {

using vapp_text::IsPlain;
using vapp_text::LinearSearch;
using vapp_text::LongNoCaseSearch;
using vapp_text::ShortNoCaseSearch;

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

// A text that grows or shrinks at each hit; the first is known.
template <typename Search>
int ReplaceDrifting(CString& text, Search& search, std::size_t hit, std::string_view wanted,
                    std::string_view inserted) {
    DriftingEdit<std::string> edit{std::string(text.View())};
    const std::size_t step = inserted.empty() ? wanted.size() : inserted.size();
    int replaced = 0;
    for (; hit <= edit.Size(); hit = search.Find(text.View(), hit + step)) {
        edit.ReplaceAt(hit, wanted.size(), inserted);
        ++replaced;
    }
    text = CString(edit.Finish());
    return replaced;
}

// Plain texts, the wanted one not empty and no part of the edited one, which may be encoded where nothing
// drifts.
template <typename Search>
int ReplacePlain(CString& text, Search&& search, std::string_view wanted, std::string_view inserted) {
    std::size_t hit = search.Find(text.View(), 0);
    if (hit == std::string_view::npos) return 0;
    if (inserted.size() != wanted.size()) return ReplaceDrifting(text, search, hit, wanted, inserted);
    // Nothing drifts, and what is edited is not searched again.
    char* const bytes = text.GetBufferSetLength(text.GetLength());
    int replaced = 0;
    for (; hit != std::string_view::npos; hit = search.Find(text.View(), hit + inserted.size())) {
        inserted.copy(bytes + hit, inserted.size());
        ++replaced;
    }
    return replaced;
}

int ReplacePlain(CString& text, std::string_view wanted, std::string_view inserted) {
    if (wanted.size() <= ShortNoCaseSearch::cnLongest) {
        return ReplacePlain(text, ShortNoCaseSearch(wanted), wanted, inserted);
    }
    return ReplacePlain(text, LongNoCaseSearch(text.View(), wanted), wanted, inserted);
}

// Whether a text holds a character that Unicode folds into ASCII: the dotted capital I or the sign of Kelvin.
// A system's own table may do so or not.
bool HoldsForeignLetter(std::string_view payload) {
    return payload.find("\xC4\xB0") != std::string_view::npos ||
           payload.find("\xE2\x84\xAA") != std::string_view::npos;
}

// Whether a plain text is found in this one just where its bytes stand, in either case.
bool GoesByBytes(const CStringU& text, std::string_view wanted) {
    if (!text.HasNonAscii() || !vapp_text::HasDueMarker(text) || !vapp_text::IsEncoded(text)) return false;
    return wanted.find_first_of("iIkK") == std::string_view::npos || !HoldsForeignLetter(text.PayloadView());
}

std::u16string Folded(std::u16string units) {
    std::transform(units.begin(), units.end(), units.begin(), vapp_text::FoldChar);
    return units;
}

std::u16string FoldedUnits(const char* payload) {
    std::u16string units;
    while (*payload != '\0')
        units += vapp_text::FoldChar(vapp_text::DecodeNext(payload));
    return units;
}

// Whether FindTextNoCaseU finds the old text, of any length, in time that both lengths bound by their sum;
// that search has no such bound. An overlong NUL ends the old text, and is an end within the other. An old
// text of more bytes than units has to stand at an end (Search.h tells why).
bool IsLongFound(const char* payload, const char* oldPayload) {
    const std::u16string searched = FoldedUnits(payload);
    std::u16string wanted = FoldedUnits(oldPayload);
    wanted.resize(std::min(wanted.find(u'\0'), wanted.size()));
    const bool atEnd = wanted.size() < std::strlen(oldPayload);
    if (atEnd) wanted += u'\0';
    // A string has a NUL behind its end. A place there is tested only where there is no other.
    const std::u16string_view places(searched.data(), searched.size() + (atEnd ? 1 : 0));
    const std::size_t hit = LinearSearch<char16_t>(wanted).Find(places, 0);
    return hit != std::u16string_view::npos && (hit < searched.size() || searched.empty());
}

bool IsFound(const char* payload, const char* oldPayload) {
    if (std::strlen(oldPayload) > LinearSearch<char16_t>::cnShort) return IsLongFound(payload, oldPayload);
    return vapp_text::FindTextNoCaseU(payload, oldPayload) != vapp_text::cnNotFound;
}

}  // namespace

int CStringU::ReplaceNoCase(const CStringU& oldText, const CStringU& newText) {
    if (this == &oldText || this == &newText) return ReplaceNoCase(CStringU(oldText), CStringU(newText));
    const std::string_view oldBytes = oldText.PayloadView();
    const std::string_view newBytes = newText.PayloadView();
    if (!oldBytes.empty() && IsPlain(oldBytes) && IsPlain(newBytes)) {
        // A text may say that it isn't ASCII, and be: the marker is no part of what is searched.
        const bool asciiText = !HasNonAscii() && IsPlain(PayloadView());
        if (asciiText || (oldBytes.size() == newBytes.size() && GoesByBytes(*this, oldBytes))) {
            return ReplacePlain(m_stored, oldBytes, newBytes);
        }
    }
    if (!IsFound(Payload(), oldText.Payload())) return 0;
    DriftingEdit edit(ToWide());
    const std::u16string searched = Folded(edit.Original());
    const std::u16string wanted = Folded(oldText.ToWide());
    const std::u16string inserted = newText.ToWide();
    const std::size_t step = !inserted.empty() ? inserted.size() : std::max<std::size_t>(wanted.size(), 1);
    LinearSearch<char16_t> search(wanted);
    int replaced = 0;
    for (std::size_t hit = search.Find(searched, 0); hit <= edit.Size();
         hit = search.Find(searched, hit + step)) {
        edit.ReplaceAt(hit, wanted.size(), inserted);
        ++replaced;
    }
    AssignWide(std::u16string_view(edit.Finish()));
    return replaced;
}
