/// @file
/// A plain text, ASCII without a NUL, that is looked for without case in another one, byte by byte: in one
/// that is encoded it is found where it stands.
///
/// For the replacement of texts. The short search makes nothing before it begins and takes eight places at a
/// time; the long one folds both texts first, so that a search takes no more than their lengths together,
/// however alike they are.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "text/Fold.h"
#include "text/LinearSearch.h"
#include "text/Words.h"

namespace vapp_text {

/// The small letter of an ASCII byte that is a capital one.
[[nodiscard]] constexpr char FoldAsciiByte(char byte) noexcept {
    return static_cast<char>(FoldAsciiChar(static_cast<unsigned char>(byte)));
}

/// For a text of 1 to cnLongest bytes, which must outlive the search.
class ShortNoCaseSearch {
public:
    static constexpr std::size_t cnLongest = LinearSearch<char>::cnShort;

    explicit ShortNoCaseSearch(std::string_view wanted) noexcept
        : m_wanted(wanted), m_first(wanted.front()), m_last(wanted.back()) {}

    /// The first place at or behind `from`; npos for none.
    [[nodiscard]] std::size_t Find(std::string_view text, std::size_t from) const noexcept {
        const std::size_t toLast = m_wanted.size() - 1;
        if (text.size() <= toLast) return std::string_view::npos;
        const char* const bytes = text.data();
        const std::size_t places = text.size() - toLast;
        if (from >= places) return std::string_view::npos;
        if (places < cnWordBytes) {
            const std::size_t left = places - from;
            const Word hits = HitsOf(LoadPart(bytes + from, left), LoadPart(bytes + from + toLast, left));
            return FirstHeld(bytes, from, hits);
        }
        for (; from < places; from += cnWordBytes) {
            // The last eight places may be some that were looked at before.
            const std::size_t begin = from < places - cnWordBytes ? from : places - cnWordBytes;
            const Word hits = HitsOf(LoadWord(bytes + begin), LoadWord(bytes + begin + toLast));
            const std::size_t hit = FirstHeld(bytes, begin, hits & (cnHighBits << (8U * (from - begin))));
            if (hit != std::string_view::npos) return hit;
        }
        return std::string_view::npos;
    }

private:
    // A character eight times. Capital and small letter differ in one bit, and no other ASCII character
    // becomes the small letter by it.
    struct TEightOf {
        explicit TEightOf(char byte) noexcept
            : folded(EightOf(FoldAsciiByte(byte))), caseBits(EightOf(AsciiCaseBit(byte))) {}
        // Zero for each byte that is the character.
        [[nodiscard]] Word Differences(Word bytes) const noexcept { return (bytes | caseBits) ^ folded; }

        Word folded;
        Word caseBits;
    };

    // Marks the places of eight that hold the first and the last character, given what stands where each
    // would have to.
    [[nodiscard]] Word HitsOf(Word firsts, Word lasts) const noexcept {
        return ZeroBytes(m_first.Differences(firsts) | m_last.Differences(lasts));
    }
    [[nodiscard]] std::size_t FirstHeld(const char* text, std::size_t from, Word hits) const noexcept {
        for (; hits != 0; hits &= hits - 1) {
            const std::size_t place = from + FirstMarked(hits);
            if (HoldsAt(text + place)) return place;
        }
        return std::string_view::npos;
    }
    [[nodiscard]] bool HoldsAt(const char* text) const noexcept {
        for (std::size_t at = 1; at + 1 < m_wanted.size(); ++at) {
            if (FoldAsciiByte(text[at]) != FoldAsciiByte(m_wanted[at])) return false;
        }
        return true;
    }

    std::string_view m_wanted;
    TEightOf m_first;
    TEightOf m_last;
};

/// For a text of any length. The searched text is that of the constructor, whatever is edited later.
class LongNoCaseSearch {
public:
    LongNoCaseSearch(std::string_view text, std::string_view wanted)
        : m_text(Folded(text)), m_wanted(Folded(wanted)), m_search(m_wanted) {}
    LongNoCaseSearch(const LongNoCaseSearch&) = delete;
    LongNoCaseSearch& operator=(const LongNoCaseSearch&) = delete;

    /// The first place at or behind `from` in the text that was given first; npos for none. Quick where calls
    /// go forward.
    [[nodiscard]] std::size_t Find(std::string_view /*edited*/, std::size_t from) {
        return m_search.Find(m_text, from);
    }

private:
    [[nodiscard]] static std::string Folded(std::string_view text) {
        std::string folded(text);
        std::transform(folded.begin(), folded.end(), folded.begin(), FoldAsciiByte);
        return folded;
    }

    std::string m_text;
    std::string m_wanted;
    LinearSearch<char> m_search;
};

}  // namespace vapp_text
