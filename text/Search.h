/// @file
/// Searches in payloads: for a character, for a text and for one of a set, forward and backward, with and
/// without case.
///
/// For payloads, the text behind any marker. The forms on positions of a CStringU stand in that class.
///
/// The result is -1 when nothing is found. Otherwise it is a byte offset into the payload, or, where the name
/// says Index, a count of characters from the start. All compares are of 16-bit characters, folded by
/// FoldChar where the name says NoCase.
///
/// The surprises, all kept because callers have grown around them:
/// - The forward searches that fold or count characters use the length in bytes of a UTF-8 needle as a limit
///   of characters. An ASCII needle does not notice. A needle with a longer character runs past
///   its own end in the compare, and so is found only where the haystack ends with it. The N forms, UTF-16
///   needles and all backward searches count characters and have no such limit.
/// - The backward folded search for one of a set does not fold the set: hand it a lower-case one.
/// - A search for character 0 finds the terminator.
///
/// A backward search starts at the offset `from`, which is tested itself. A negative offset finds nothing;
/// one behind the text counts as the end of the text.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vapp_text {

/// What every search gives when nothing is found.
inline constexpr std::int64_t cnNotFound = -1;

// Forward, one character.
[[nodiscard]] std::int64_t FindCharU(const char* text, char16_t c) noexcept;
[[nodiscard]] std::int64_t FindCharIndexU(const char* text, char16_t c) noexcept;
[[nodiscard]] std::int64_t FindCharNoCaseU(const char* text, char16_t c) noexcept;
[[nodiscard]] std::int64_t FindCharIndexNoCaseU(const char* text, char16_t c) noexcept;

// Forward, a text. An empty needle is found at 0.
[[nodiscard]] std::int64_t FindTextU(const char* text, const char* needle) noexcept;
[[nodiscard]] std::int64_t FindTextU(const char* text, const char16_t* needle);
[[nodiscard]] std::int64_t FindTextIndexU(const char* text, const char* needle) noexcept;
[[nodiscard]] std::int64_t FindTextNoCaseU(const char* text, const char* needle) noexcept;
[[nodiscard]] std::int64_t FindTextNoCaseU(const char* text, const char16_t* needle) noexcept;
[[nodiscard]] std::int64_t FindTextIndexNoCaseU(const char* text, const char* needle) noexcept;
[[nodiscard]] std::int64_t FindTextIndexNoCaseU(const char* text, const char16_t* needle) noexcept;

// Forward, the first `count` characters of a needle that need not end there.
[[nodiscard]] std::int64_t FindTextIndexNU(const char* text, const char* needle, std::size_t count) noexcept;
[[nodiscard]] std::int64_t FindTextIndexNU(const char* text, const char16_t* needle,
                                           std::size_t count) noexcept;
[[nodiscard]] std::int64_t FindTextNoCaseNU(const char* text, const char* needle, std::size_t count) noexcept;
[[nodiscard]] std::int64_t FindTextNoCaseNU(const char* text, const char16_t* needle,
                                            std::size_t count) noexcept;
[[nodiscard]] std::int64_t FindTextIndexNoCaseNU(const char* text, const char* needle,
                                                 std::size_t count) noexcept;
[[nodiscard]] std::int64_t FindTextIndexNoCaseNU(const char* text, const char16_t* needle,
                                                 std::size_t count) noexcept;

// Forward, one of a set. An empty set finds nothing.
[[nodiscard]] std::int64_t FindOneOfU(const char* text, const char* set) noexcept;
[[nodiscard]] std::int64_t FindOneOfU(const char* text, const char16_t* set) noexcept;
[[nodiscard]] std::int64_t FindOneOfIndexU(const char* text, const char16_t* set) noexcept;
[[nodiscard]] std::int64_t FindOneOfNoCaseU(const char* text, const char* set);
[[nodiscard]] std::int64_t FindOneOfNoCaseU(const char* text, const char16_t* set);
[[nodiscard]] std::int64_t FindOneOfIndexNoCaseU(const char* text, const char16_t* set);
/// FindOneOfNoCaseU for a set that is folded already: saves the copy that the other forms fold.
[[nodiscard]] std::int64_t FindOneOfFoldedU(const char* text, const char16_t* foldedSet) noexcept;

// Backward, one character.
[[nodiscard]] std::int64_t ReverseFindCharU(const char* text, char16_t c, std::int64_t from) noexcept;
[[nodiscard]] std::int64_t ReverseFindCharNoCaseU(const char* text, char16_t c, std::int64_t from) noexcept;

// Backward, a text. An empty needle is found where the search starts.
[[nodiscard]] std::int64_t ReverseFindTextU(const char* text, const char* needle, std::int64_t from) noexcept;
[[nodiscard]] std::int64_t ReverseFindTextU(const char* text, const char16_t* needle, std::int64_t from);
[[nodiscard]] std::int64_t ReverseFindTextNoCaseU(const char* text, const char* needle,
                                                  std::int64_t from) noexcept;
[[nodiscard]] std::int64_t ReverseFindTextNoCaseU(const char* text, const char16_t* needle,
                                                  std::int64_t from) noexcept;

// Backward, one of a set; the set of the folded form is taken as it stands.
[[nodiscard]] std::int64_t ReverseFindOneOfU(const char* text, const char* set, std::int64_t from) noexcept;
[[nodiscard]] std::int64_t ReverseFindOneOfU(const char* text, const char16_t* set,
                                             std::int64_t from) noexcept;
[[nodiscard]] std::int64_t ReverseFindOneOfNoCaseU(const char* text, const char* lowerSet,
                                                   std::int64_t from) noexcept;
[[nodiscard]] std::int64_t ReverseFindOneOfNoCaseU(const char* text, const char16_t* lowerSet,
                                                   std::int64_t from) noexcept;

}  // namespace vapp_text
