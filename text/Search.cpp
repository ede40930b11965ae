/// @file
/// Each search is a walk with a test: the forward walk goes from character to character by decoding, the
/// backward ones go by bytes (searches with case) or by the look of the bytes (all others). The tests are
/// small function objects, so that a search is one loop for the compiler.
#include "text/Search.h"

#include <cstring>
#include <string>

#include "text/Codec.h"
#include "text/Compare.h"
#include "text/EncodedNeedle.h"
#include "text/Fold.h"

namespace vapp_text {
namespace {

/// Where a forward walk ended: at the hit, or at the terminator when there was none.
struct Hit {
    bool m_found;
    std::int64_t m_byte;
    std::int64_t m_index;

    [[nodiscard]] std::int64_t Byte() const noexcept { return m_found ? m_byte : cnNotFound; }
    [[nodiscard]] std::int64_t Index() const noexcept { return m_found ? m_index : cnNotFound; }
};

/// Walks over the characters, without the terminator, until `test` of a pointer to a character is true.
template <typename Test>
Hit WalkForward(const char* text, Test test) noexcept {
    const char* walk = text;
    std::int64_t index = 0;
    for (; *walk != '\0'; ++index) {
        if (test(walk)) return {true, walk - text, index};
        (void)DecodeNext(walk);
    }
    return {false, walk - text, index};
}

/// The terminator counts as a character here, so that character 0 is found there.
template <bool Fold>
Hit FindChar(const char* text, char16_t c) noexcept {
    const char16_t wanted = Fold ? FoldChar(c) : c;
    Hit hit = WalkForward(text, [wanted](const char* at) noexcept {
        const char16_t found = DecodeNext(at);
        return (Fold ? FoldChar(found) : found) == wanted;
    });
    if (wanted == 0) hit.m_found = true;
    return hit;
}

template <bool Fold, typename Unit>
Hit FindText(const char* text, const Unit* needle, std::size_t count) noexcept {
    const auto matches = [needle, count](const char* at) noexcept {
        return (Fold ? CompareNNoCaseU(at, needle, count) : CompareNU(at, needle, count)) == 0;
    };
    // Offset 0 is tested even where it is the end of the text, so that an empty needle is always found.
    if (*text == '\0') return {matches(text), 0, 0};
    return WalkForward(text, matches);
}

std::size_t UnitCount(const char16_t* units) noexcept {
    return std::char_traits<char16_t>::length(units);
}

/// The number of characters of a payload, by decoding.
std::size_t UnitCount(const char* payload) noexcept {
    std::size_t count = 0;
    for (; *payload != '\0'; ++count)
        (void)DecodeNext(payload);
    return count;
}

bool SetHolds(const char16_t* set, char16_t c) noexcept {
    for (; *set != 0; ++set) {
        if (*set == c) return true;
    }
    return false;
}

bool SetHolds(const char* set, char16_t c) noexcept {
    while (*set != '\0') {
        if (DecodeNext(set) == c) return true;
    }
    return false;
}

template <bool Fold, typename Unit>
Hit FindOneOf(const char* text, const Unit* set) noexcept {
    return WalkForward(text, [set](const char* at) noexcept {
        const char16_t c = DecodeNext(at);
        return SetHolds(set, Fold ? FoldChar(c) : c);
    });
}

std::u16string FoldedSet(const char16_t* set) {
    std::u16string folded(set);
    for (char16_t& c : folded)
        c = FoldChar(c);
    return folded;
}

std::u16string FoldedSet(const char* set) {
    std::u16string folded;
    folded.reserve(std::strlen(set));
    while (*set != '\0')
        folded.push_back(FoldChar(DecodeNext(set)));
    return folded;
}

/// The offset at which a backward search really starts: never outside the text.
std::int64_t StartWithin(const char* text, std::int64_t from) noexcept {
    if (from < 0) return cnNotFound;
    const auto length = static_cast<std::int64_t>(std::strlen(text));
    return from < length ? from : length;
}

/// Tests the start, then every offset that `stepBack` gives, up to and including 0.
template <typename Test, typename StepBack>
std::int64_t WalkBack(const char* text, std::int64_t from, Test test, StepBack stepBack) noexcept {
    std::int64_t offset = StartWithin(text, from);
    if (offset < 0) return cnNotFound;
    while (!test(text + offset)) {
        if (offset == 0) return cnNotFound;
        offset = stepBack(offset);
    }
    return offset;
}

template <typename Test>
std::int64_t WalkBackByBytes(const char* text, std::int64_t from, Test test) noexcept {
    return WalkBack(text, from, test, [](std::int64_t offset) noexcept { return offset - 1; });
}

template <typename Test>
std::int64_t WalkBackByChars(const char* text, std::int64_t from, Test test) noexcept {
    return WalkBack(text, from, test,
                    [text](std::int64_t offset) noexcept { return StepBackward(text, offset); });
}

template <typename Unit>
std::int64_t ReverseFindTextFolded(const char* text, const Unit* needle, std::int64_t from) noexcept {
    return WalkBackByChars(text, from, [needle, count = UnitCount(needle)](const char* at) noexcept {
        return CompareNNoCaseU(at, needle, count) == 0;
    });
}

template <bool Fold, typename Unit>
std::int64_t ReverseFindOneOf(const char* text, const Unit* set, std::int64_t from) noexcept {
    return WalkBackByChars(text, from, [set](const char* at) noexcept {
        if (*at == '\0') return false;
        const char16_t c = DecodeNext(at);
        return SetHolds(set, Fold ? FoldChar(c) : c);
    });
}

std::int64_t OffsetOf(const char* text, const char* hit) noexcept {
    return hit == nullptr ? cnNotFound : hit - text;
}

}  // namespace

std::int64_t FindCharU(const char* text, char16_t c) noexcept {
    if (c < 0x80) return OffsetOf(text, std::strchr(text, static_cast<char>(c)));
    char encoded[cnMaxEncodedBytes + 1];
    encoded[EncodeChar(c, encoded)] = '\0';
    return OffsetOf(text, std::strstr(text, encoded));
}

std::int64_t FindCharIndexU(const char* text, char16_t c) noexcept {
    return FindChar<false>(text, c).Index();
}

std::int64_t FindCharNoCaseU(const char* text, char16_t c) noexcept {
    return FindChar<true>(text, c).Byte();
}

std::int64_t FindCharIndexNoCaseU(const char* text, char16_t c) noexcept {
    return FindChar<true>(text, c).Index();
}

std::int64_t FindTextU(const char* text, const char* needle) noexcept {
    return OffsetOf(text, std::strstr(text, needle));
}

std::int64_t FindTextU(const char* text, const char16_t* needle) {
    return FindTextU(text, EncodedNeedle(needle).Bytes());
}

// The byte length of a UTF-8 needle stands in for its count of characters in the next three; Search.h tells
// what that does.
std::int64_t FindTextIndexU(const char* text, const char* needle) noexcept {
    return FindText<false>(text, needle, std::strlen(needle)).Index();
}

std::int64_t FindTextNoCaseU(const char* text, const char* needle) noexcept {
    return FindText<true>(text, needle, std::strlen(needle)).Byte();
}

std::int64_t FindTextIndexNoCaseU(const char* text, const char* needle) noexcept {
    return FindText<true>(text, needle, std::strlen(needle)).Index();
}

std::int64_t FindTextNoCaseU(const char* text, const char16_t* needle) noexcept {
    return FindText<true>(text, needle, UnitCount(needle)).Byte();
}

std::int64_t FindTextIndexNoCaseU(const char* text, const char16_t* needle) noexcept {
    return FindText<true>(text, needle, UnitCount(needle)).Index();
}

std::int64_t FindTextIndexNU(const char* text, const char* needle, std::size_t count) noexcept {
    return FindText<false>(text, needle, count).Index();
}

std::int64_t FindTextIndexNU(const char* text, const char16_t* needle, std::size_t count) noexcept {
    return FindText<false>(text, needle, count).Index();
}

std::int64_t FindTextNoCaseNU(const char* text, const char* needle, std::size_t count) noexcept {
    return FindText<true>(text, needle, count).Byte();
}

std::int64_t FindTextNoCaseNU(const char* text, const char16_t* needle, std::size_t count) noexcept {
    return FindText<true>(text, needle, count).Byte();
}

std::int64_t FindTextIndexNoCaseNU(const char* text, const char* needle, std::size_t count) noexcept {
    return FindText<true>(text, needle, count).Index();
}

std::int64_t FindTextIndexNoCaseNU(const char* text, const char16_t* needle, std::size_t count) noexcept {
    return FindText<true>(text, needle, count).Index();
}

std::int64_t FindOneOfU(const char* text, const char* set) noexcept {
    return FindOneOf<false>(text, set).Byte();
}

std::int64_t FindOneOfU(const char* text, const char16_t* set) noexcept {
    return FindOneOf<false>(text, set).Byte();
}

std::int64_t FindOneOfIndexU(const char* text, const char16_t* set) noexcept {
    return FindOneOf<false>(text, set).Index();
}

std::int64_t FindOneOfFoldedU(const char* text, const char16_t* foldedSet) noexcept {
    return FindOneOf<true>(text, foldedSet).Byte();
}

std::int64_t FindOneOfNoCaseU(const char* text, const char* set) {
    return FindOneOfFoldedU(text, FoldedSet(set).c_str());
}

std::int64_t FindOneOfNoCaseU(const char* text, const char16_t* set) {
    return FindOneOfFoldedU(text, FoldedSet(set).c_str());
}

std::int64_t FindOneOfIndexNoCaseU(const char* text, const char16_t* set) {
    return FindOneOf<true>(text, FoldedSet(set).c_str()).Index();
}

std::int64_t ReverseFindCharU(const char* text, char16_t c, std::int64_t from) noexcept {
    const std::int64_t start = StartWithin(text, from);
    if (start >= 0 && c < 0x80 && text[start] == '\0') {
        return OffsetOf(text, std::strrchr(text, static_cast<char>(c)));
    }
    char encoded[cnMaxEncodedBytes];
    const auto size = static_cast<std::size_t>(EncodeChar(c, encoded));
    return WalkBackByBytes(text, start, [&encoded, size](const char* at) noexcept {
        return std::strncmp(at, encoded, size) == 0;
    });
}

std::int64_t ReverseFindCharNoCaseU(const char* text, char16_t c, std::int64_t from) noexcept {
    return WalkBackByChars(text, from, [wanted = FoldChar(c)](const char* at) noexcept {
        return FoldChar(PeekChar(at)) == wanted;
    });
}

std::int64_t ReverseFindTextU(const char* text, const char* needle, std::int64_t from) noexcept {
    return WalkBackByBytes(text, from, [needle, size = std::strlen(needle)](const char* at) noexcept {
        return std::strncmp(at, needle, size) == 0;
    });
}

std::int64_t ReverseFindTextU(const char* text, const char16_t* needle, std::int64_t from) {
    return ReverseFindTextU(text, EncodedNeedle(needle).Bytes(), from);
}

std::int64_t ReverseFindTextNoCaseU(const char* text, const char* needle, std::int64_t from) noexcept {
    return ReverseFindTextFolded(text, needle, from);
}

std::int64_t ReverseFindTextNoCaseU(const char* text, const char16_t* needle, std::int64_t from) noexcept {
    return ReverseFindTextFolded(text, needle, from);
}

std::int64_t ReverseFindOneOfU(const char* text, const char* set, std::int64_t from) noexcept {
    return ReverseFindOneOf<false>(text, set, from);
}

std::int64_t ReverseFindOneOfU(const char* text, const char16_t* set, std::int64_t from) noexcept {
    return ReverseFindOneOf<false>(text, set, from);
}

std::int64_t ReverseFindOneOfNoCaseU(const char* text, const char* lowerSet, std::int64_t from) noexcept {
    return ReverseFindOneOf<true>(text, lowerSet, from);
}

std::int64_t ReverseFindOneOfNoCaseU(const char* text, const char16_t* lowerSet, std::int64_t from) noexcept {
    return ReverseFindOneOf<true>(text, lowerSet, from);
}

}  // namespace vapp_text
