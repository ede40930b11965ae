/// @file
/// The compares and searches that are members of CStringU: those that give positions, and those that take the
/// payloads of whole texts. The work on payloads stands in Compare.h and Search.h.
#include <algorithm>
#include <array>
#include <string_view>

#include "text/Codec.h"
#include "text/Compare.h"
#include "text/Fold.h"
#include "text/Search.h"
#include "vapp/text/CStringU.h"

namespace {

using vapp_text::FoldChar;
using vapp_text::PeekChar;
using vapp_text::StepBackward;
using vapp_text::StepForward;

/// True for text that the plain narrow rule takes as it stands.
bool IsAscii(const char* narrow) noexcept {
    while (*narrow != '\0' && vapp_text::IsAsciiByte(*narrow))
        ++narrow;
    return *narrow == '\0';
}

/// One character that is looked for, folded once.
class WantedChar {
public:
    WantedChar(char16_t unit, bool caseSensitive) noexcept
        : m_unit(caseSensitive ? unit : FoldChar(unit)), m_fold(!caseSensitive) {}

    [[nodiscard]] bool IsAt(const char* at) const noexcept {
        const char16_t found = PeekChar(at);
        return (m_fold ? FoldChar(found) : found) == m_unit;
    }

private:
    char16_t m_unit;
    bool m_fold;
};

/// Walks both payloads backward in step until the suffix is used up (true), or the text is, or they differ.
template <bool Fold>
bool EndsWithPayload(std::string_view text, std::string_view suffix) noexcept {
    auto textAt = static_cast<std::int64_t>(text.size());
    auto suffixAt = static_cast<std::int64_t>(suffix.size());
    while (suffixAt > 0) {
        if (textAt <= 0) return false;
        textAt = StepBackward(text.data(), textAt);
        suffixAt = StepBackward(suffix.data(), suffixAt);
        const char16_t ofText = PeekChar(text.data() + textAt);
        const char16_t ofSuffix = PeekChar(suffix.data() + suffixAt);
        if (ofText != ofSuffix && !(Fold && FoldChar(ofText) == FoldChar(ofSuffix))) return false;
    }
    return true;
}

}  // namespace

int CStringU::CompareNoCase(const CStringU& other) const {
    return vapp_text::CompareNoCaseU(*this, other);
}

int CStringU::CompareNoCase(const char* narrow) const {
    // Keywords are ASCII nearly always: those are compared where they stand, without a text being made.
    if (narrow != nullptr && IsAscii(narrow)) return vapp_text::CompareNoCaseU(Payload(), narrow);
    return CompareNoCase(CStringU(narrow));
}

CStringUPos CStringU::FindChar(char16_t unit, bool caseSensitive, CStringUPos from) const {
    const char* text = Payload();
    const std::int64_t length = GetByteLength();
    const WantedChar wanted(unit, caseSensitive);
    for (std::int64_t at = ClampOffset(from.offset); at < length; at = StepForward(text, at)) {
        if (wanted.IsAt(text + at)) return {at, this};
    }
    return End();
}

CStringUPos CStringU::FindCharBack(char16_t unit, bool caseSensitive, CStringUPos from) const {
    const char* text = Payload();
    const WantedChar wanted(unit, caseSensitive);
    for (std::int64_t at = ClampOffset(from.offset);; at = StepBackward(text, at)) {
        if (wanted.IsAt(text + at)) return {at, this};
        if (at == 0) return End();
    }
}

CStringUPos CStringU::FindTextNoCase(const CStringU& needle) const {
    const std::int64_t at = vapp_text::FindTextNoCaseU(Payload(), needle.Stored().GetString());
    return at == vapp_text::cnNotFound ? End() : CStringUPos(at, this);
}

bool CStringU::StartsWithNoCase(const CStringU& prefix) const {
    const char* text = Payload();
    const char* wanted = prefix.Payload();
    while (*wanted != '\0') {
        const char16_t ofPrefix = vapp_text::DecodeNext(wanted);
        if (ofPrefix == 0) return true;
        if (*text == '\0') return false;
        const char16_t ofText = vapp_text::DecodeNext(text);
        if (ofText != ofPrefix && FoldChar(ofText) != FoldChar(ofPrefix)) return false;
    }
    return true;
}

bool CStringU::EndsWith(const CStringU& suffix) const {
    return EndsWithPayload<false>(PayloadView(), suffix.PayloadView());
}

bool CStringU::EndsWith(const char* narrow) const {
    return EndsWith(CStringU(narrow));
}

bool CStringU::EndsWithNoCase(const CStringU& suffix) const {
    return EndsWithPayload<true>(PayloadView(), suffix.PayloadView());
}

bool CStringU::ToBool(bool defaultValue) const {
    static constexpr std::array csFalse{"0", "no", "False", "nil", "f", "n"};
    static constexpr std::array csTrue{"yes", "True", "t"};
    const auto isThis = [this](const char* word) { return EqualsNoCase(word); };
    if (m_stored.IsEmpty()) return false;
    if (std::any_of(csFalse.begin(), csFalse.end(), isThis)) return false;
    return std::any_of(csTrue.begin(), csTrue.end(), isThis) || defaultValue;
}

CStringUPos CStringU::FindExtensionDot() const {
    return FindCharBack(u'.', true, --End());
}
