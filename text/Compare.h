/// @file
/// Compares payloads character by character: with and without case, with and without a limit, against UTF-8
/// and against UTF-16.
///
/// For payloads, the text behind any marker: a caller that hands the stored bytes of a marked text compares
/// the marker too. Not for the order of names that users read; that is NaturalOrder.h. Two payloads with case
/// and without a limit need nothing from here: the order of the bytes is the order of the characters.
///
/// Every routine gives the difference of the two characters at the first difference, left minus right: the
/// sign is the order, the magnitude means nothing. A text that ends first is less, because its end counts as
/// character 0; equal texts give 0. What ends a comparison is a difference, the end of either side, or the
/// limit; an overlong encoding of NUL ends it like the NUL that it stands for.
///
/// The surprise is in malformed text. The unlimited folded compare skips a common prefix by bytes and then
/// backs each side up to a character boundary by the look of its bytes, so that two malformed texts may be
/// taken up at different distances and the answers need not form an order. Whoever sorts text of unknown
/// origin sorts by the keys of NaturalKey.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text/PlatformText.h"
#include "vapp/text/CStringU.h"

namespace vapp_text {

/// Compares with case.
[[nodiscard]] std::int32_t CompareU(const char* left, const char16_t* right) noexcept;

/// Compares at most `count` characters with case; a count of 0 gives 0. Of a right side that is not
/// terminated, no more than `count` units are read.
[[nodiscard]] std::int32_t CompareNU(const char* left, const char* right, std::size_t count) noexcept;
[[nodiscard]] std::int32_t CompareNU(const char* left, const char16_t* right, std::size_t count) noexcept;

/// Compares by folded characters: the order of CStringIU, of sets of names and of keywords.
[[nodiscard]] std::int32_t CompareNoCaseU(const char* left, const char* right) noexcept;
[[nodiscard]] std::int32_t CompareNoCaseU(const char* left, const char16_t* right) noexcept;
/// The same for payloads of known length, which are terminated by NUL all the same and hold none: quicker
/// over a common prefix.
[[nodiscard]] std::int32_t CompareNoCaseU(std::string_view left, std::string_view right) noexcept;
/// The same for whole texts, and the quickest: of pure ASCII on both sides, which one byte each tells,
/// nothing has to be decoded, and the C library compares many bytes at a time.
[[nodiscard]] inline std::int32_t CompareNoCaseU(const CStringU& left, const CStringU& right) noexcept {
    if (left.HasNonAscii() || right.HasNonAscii()) {
        return CompareNoCaseU(left.PayloadView(), right.PayloadView());
    }
    return vapp_platform::CompareAsciiNoCase(left.Payload(), right.Payload());
}

/// Compares at most `count` characters by their folded forms; a count of 0 gives 0. Of a right side that is
/// not terminated, no more than `count` units are read.
[[nodiscard]] std::int32_t CompareNNoCaseU(const char* left, const char* right, std::size_t count) noexcept;
[[nodiscard]] std::int32_t CompareNNoCaseU(const char* left, const char16_t* right,
                                           std::size_t count) noexcept;

/// Backs up from `at` to the start of the character that holds it: over at most four continuation bytes, and
/// never to before `start`.
[[nodiscard]] const char* CharBoundary(const char* start, const char* at) noexcept;

}  // namespace vapp_text
