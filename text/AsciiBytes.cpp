/// @file
/// The form of a payload, found without decoding it.
///
/// What EncodeChar writes is a lead byte with exactly the continuation bytes that it calls for, and no
/// character in more bytes than it needs. Both are asked of eight bytes at a time: where continuation bytes
/// have to stand is where the lead bytes are, moved on by one and by two.

#include "text/AsciiBytes.h"

namespace vapp_text {

namespace {

/// Walks over the words of a text.
class EncodedWords {
public:
    /// False where the text can't be what EncodeChar writes.
    bool Take(Word word) noexcept {
        if (ZeroBytes(word) != 0) return false;
        const Word high = word & cnHighBits;
        if (high == 0) {
            const bool ended = m_due == 0;
            m_due = m_wide = 0;
            return ended;
        }
        // Marks, by the bits of the bytes below the high one.
        const Word lead = high & (word << 1U);
        const Word ofThree = lead & (word << 2U);
        const Word due = (lead << 8U) | (ofThree << 16U) | m_due;
        const Word widened = ((word << 3U) | (word << 4U) | (word << 5U));
        // Lead bytes 0xC0 and 0xC1 carry no bit that a character of two bytes needs.
        const Word overlong = lead & ~(word << 2U) & ~(widened | (word << 6U));
        const Word ofFour = ofThree & (word << 3U);
        // Behind 0xE0 a continuation byte needs its bit 0x20.
        const Word bare = ofThree & ~(widened | (word << 6U) | (word << 7U));
        const Word tooSmall = ((bare << 8U) | m_wide) & ~(word << 2U);
        if ((high & ~lead) != due || (overlong | ofFour | tooSmall) != 0) return false;
        m_due = (lead >> 56U) | (ofThree >> 48U);
        m_wide = bare >> 56U;
        return true;
    }
    [[nodiscard]] bool HasEnded() const noexcept { return m_due == 0; }

private:
    Word m_due = 0;   // marks, of the next word: where the last lead bytes call for a continuation
    Word m_wide = 0;  // and where one must not be small
};

}  // namespace

TextForm FormOf(std::string_view payload) noexcept {
    if (IsPlain(payload)) return TextForm::Plain;
    EncodedWords words;
    const char* walk = payload.data();
    std::size_t left = payload.size();
    for (; left >= cnWordBytes; left -= cnWordBytes, walk += cnWordBytes) {
        if (!words.Take(LoadWord(walk))) return TextForm::Other;
    }
    if (left > 0 && !words.Take(LoadPart(walk, left) | (cnEachByte << (8U * left)))) return TextForm::Other;
    if (!words.HasEnded()) return TextForm::Other;
    return TextForm::Encoded;
}

}  // namespace vapp_text
