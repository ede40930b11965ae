/// @file
/// Taking characters off the ends of a CStringU, and the tests that ask what stands there.
///
/// A piece that is left gets or loses the marker by its own content. Walks forward decode by the lead byte,
/// walks backward go by the look of the bytes, as everywhere; on malformed text the two ends of a text may
/// therefore be read differently.
///
/// The surprise is IsBlank: in pure ASCII it takes only the space and the tab for blank, so that a line feed
/// alone is text, whereas beside one wide space the same line feed is blank. Callers that ask "has the user
/// typed anything" rely on either answer.

#include <algorithm>
#include <iterator>
#include <string_view>

#include "text/AsciiBytes.h"
#include "text/BlankChars.h"
#include "text/CharSet.h"
#include "text/Codec.h"
#include "text/Words.h"
#include "vapp/text/CStringU.h"

namespace {

using vapp_text::CharSet;
using vapp_text::cnWordBytes;
using vapp_text::DecodeNext;
using vapp_text::IsAsciiByte;
using vapp_text::IsBlankCharU;
using vapp_text::Word;

/// The offset of the first character for which `goesOn` does not hold.
template <typename GoesOn>
std::int64_t BehindFirst(std::string_view text, const GoesOn& goesOn) {
    const char* const start = text.data();
    for (const char* at = start;;) {
        const char* next = at;
        if (*at == '\0' || !goesOn(DecodeNext(next))) return at - start;
        at = next;
    }
}

/// The offset behind the last character, at or behind `first`, for which `goesOn` does not hold.
template <typename GoesOn>
std::int64_t BehindLast(std::string_view text, std::int64_t first, const GoesOn& goesOn) {
    const char* const start = text.data() + first;
    std::int64_t behind = static_cast<std::int64_t>(text.size()) - first;
    while (behind > 0) {
        const char last = start[behind - 1];
        const std::int64_t at = IsAsciiByte(last) ? behind - 1 : vapp_text::StepBackward(start, behind);
        if (!goesOn(vapp_text::PeekChar(start + at))) break;
        behind = at;
    }
    return first + behind;
}

/// What is left of a text.
struct TRange {
    std::int64_t first;
    std::int64_t behind;
};

template <typename Removed>
TRange WithoutLeft(const CStringU& text, const Removed& removed) {
    return {BehindFirst(text.PayloadView(), removed), text.GetByteLength()};
}

template <typename Removed>
TRange WithoutRight(const CStringU& text, const Removed& removed) {
    return {0, BehindLast(text.PayloadView(), 0, removed)};
}

template <typename Removed>
TRange WithoutBoth(const CStringU& text, const Removed& removed) {
    const std::int64_t first = BehindFirst(text.PayloadView(), removed);
    return {first, BehindLast(text.PayloadView(), first, removed)};
}

/// What CString::Trim leaves, byte by byte: what that takes for white space are the blank characters of
/// ASCII.
TRange WithoutAsciiBlanks(std::string_view text) {
    const auto isBlank = [](char byte) {
        return IsAsciiByte(byte) && IsBlankCharU(static_cast<unsigned char>(byte));
    };
    const auto first = std::find_if_not(text.begin(), text.end(), isBlank);
    const auto behind = std::find_if_not(text.rbegin(), std::make_reverse_iterator(first), isBlank).base();
    return {first - text.begin(), behind - text.begin()};
}

/// A set as a test.
class Member {
public:
    explicit Member(const CStringU& set) : m_set(set.Payload()) {}
    bool operator()(char16_t unit) const noexcept { return m_set.Holds(unit); }

private:
    CharSet m_set;
};

/// The same of a few plain characters, as most sets are: nothing is made before it is asked, and all of them
/// are asked at once.
class FewMember {
public:
    static constexpr std::size_t cnMost = 2 * cnWordBytes;

    /// 1 to cnMost bytes.
    explicit FewMember(std::string_view set) noexcept
        : m_first(FirstOf(set)),
          m_last(set.size() < cnWordBytes ? m_first
                                          : vapp_text::LoadWord(set.data() + set.size() - cnWordBytes)) {}
    bool operator()(char16_t unit) const noexcept {
        if (unit >= 0x80U) return false;
        const Word wanted = vapp_text::EightOf(static_cast<char>(unit));
        return (vapp_text::ZeroBytes(m_first ^ wanted) | vapp_text::ZeroBytes(m_last ^ wanted)) != 0;
    }

private:
    // What is left of the word holds the set's first character too.
    static Word FirstOf(std::string_view set) noexcept {
        if (set.size() >= cnWordBytes) return vapp_text::LoadWord(set.data());
        const Word rest = vapp_text::EightOf(set.front()) << (8U * set.size());
        return vapp_text::LoadPart(set.data(), set.size()) | rest;
    }

    Word m_first;
    Word m_last;
};

/// What `walk` gives for a set as a test.
template <typename Walk>
auto WithSet(const CStringU& set, const Walk& walk) {
    const std::string_view members = set.PayloadView();
    if (!members.empty() && members.size() <= FewMember::cnMost && vapp_text::IsPlain(members)) {
        return walk(FewMember(members));
    }
    return walk(Member(set));
}

TRange WithoutLeftOf(const CStringU& text, const CStringU& set) {
    return WithSet(set, [&text](const auto& member) { return WithoutLeft(text, member); });
}

TRange WithoutRightOf(const CStringU& text, const CStringU& set) {
    return WithSet(set, [&text](const auto& member) { return WithoutRight(text, member); });
}

}  // namespace

// Cuts ASCII that nobody shares where it lies.
CStringU& CStringU::Keep(std::int64_t first, std::int64_t behind) {
    if (HasNonAscii() || m_stored.IsShared()) return *this = Piece(first, behind);
    if (behind < m_stored.GetLength()) m_stored.Delete(static_cast<int>(behind), m_stored.GetLength());
    if (first > 0) m_stored.Delete(0, static_cast<int>(first));
    return *this;
}

CStringU CStringU::TrimmedLeft() const {
    const TRange kept = WithoutLeft(*this, IsBlankCharU);
    return Piece(kept.first, kept.behind);
}

CStringU CStringU::TrimmedRight() const {
    const TRange kept = WithoutRight(*this, IsBlankCharU);
    return Piece(kept.first, kept.behind);
}

CStringU CStringU::TrimmedLeft(const CStringU& set) const {
    const TRange kept = WithoutLeftOf(*this, set);
    return Piece(kept.first, kept.behind);
}

CStringU CStringU::TrimmedRight(const CStringU& set) const {
    const TRange kept = WithoutRightOf(*this, set);
    return Piece(kept.first, kept.behind);
}

CStringU& CStringU::TrimLeft() {
    const TRange kept = WithoutLeft(*this, IsBlankCharU);
    return Keep(kept.first, kept.behind);
}

CStringU& CStringU::TrimRight() {
    const TRange kept = WithoutRight(*this, IsBlankCharU);
    return Keep(kept.first, kept.behind);
}

CStringU& CStringU::TrimLeft(const CStringU& set) {
    const TRange kept = WithoutLeftOf(*this, set);
    return Keep(kept.first, kept.behind);
}

CStringU& CStringU::TrimRight(const CStringU& set) {
    const TRange kept = WithoutRightOf(*this, set);
    return Keep(kept.first, kept.behind);
}

CStringU CStringU::Trimmed() const {
    const TRange kept = HasNonAscii() ? WithoutBoth(*this, IsBlankCharU) : WithoutAsciiBlanks(PayloadView());
    return Piece(kept.first, kept.behind);
}

CStringU& CStringU::Trim() {
    if (HasNonAscii()) {
        const TRange kept = WithoutBoth(*this, IsBlankCharU);
        return Keep(kept.first, kept.behind);
    }
    m_stored.Trim();
    return *this;
}

bool CStringU::IsBlank() const noexcept {
    const std::string_view text = PayloadView();
    if (HasNonAscii()) return BehindFirst(text, IsBlankCharU) == static_cast<std::int64_t>(text.size());
    return std::all_of(text.begin(), text.end(), [](char byte) { return byte == ' ' || byte == '\t'; });
}

CStringU CStringU::SpanExcluding(const CStringU& set) const {
    return Piece(0, WithSet(set, [this](const auto& member) {
                     return BehindFirst(PayloadView(), [&](char16_t unit) { return !member(unit); });
                 }));
}

CStringU CStringU::SpanIncluding(const CStringU& set) const {
    return Piece(0, WithoutLeftOf(*this, set).first);
}
