/// @file
/// What text asks of the platform: the case of one character, and code pages.
///
/// Implemented once for each system in platform/posix and platform/win32; text itself knows neither. ASCII
/// never gets here: callers take the ASCII path before they ask.
///
/// The surprise: nothing in this interface can fail. Bytes that mean nothing in a code page, characters that
/// it can't express and code pages that the system does not know all give a result.
#pragma once

#include <string>
#include <string_view>

namespace vapp_platform {

/// The number of the code page UTF-8.
inline constexpr unsigned cnCodePageUtf8 = 65001;

/// The lower-case form of one 16-bit character: one character in, one out, no locale, simple mapping over the
/// Basic Multilingual Plane. What has no lower-case form, a surrogate half among it, comes back as it is, and
/// so does a character whose lower-case form is that of another one (the Kelvin sign, say, or a title-case
/// letter).
[[nodiscard]] char16_t LowerCaseChar(char16_t unit) noexcept;

/// The upper-case form of one 16-bit character, by the same rules.
[[nodiscard]] char16_t UpperCaseChar(char16_t unit) noexcept;

/// Compares two texts of ASCII without regard to case, whatever the host's locale: the difference of the
/// first small letters that differ, 0 for equal texts. Of bytes above 0x7F the answer means nothing.
[[nodiscard]] int CompareAsciiNoCase(const char* a, const char* b) noexcept;

/// The number of the code page that narrow text with high bytes is in: the one set by SetActiveCodePage,
/// otherwise the system's. Where the system names its encodings by locale, UTF-8 counts as 65001.
[[nodiscard]] unsigned ActiveCodePage() noexcept;

/// The number of the system's own code page, whatever was set: what other programs take narrow text for.
[[nodiscard]] unsigned SystemCodePage() noexcept;

/// Sets the active code page for the whole process, for hosts that know better and for tests; 0 returns to
/// the system's own. May be called from any thread.
void SetActiveCodePage(unsigned codePage) noexcept;

/// Bytes of a code page as UTF-16. Invalid bytes become the replacement character of the converter, U+FFFD in
/// UTF-8, where a four-byte sequence becomes a surrogate pair. A code page that the system does not know
/// gives empty text; 0 is the active one.
[[nodiscard]] std::u16string CodePageToUtf16(unsigned codePage, std::string_view bytes);

/// UTF-16 as bytes of a code page. What it can't express becomes a character that looks alike, where the
/// system's table has one (a full-width digit becomes a digit), otherwise its default character, "?", once
/// for each unit; invisible characters are no exception (U+FFFD in UTF-8, where only half a surrogate pair
/// can't be expressed). So no character vanishes. A code page that the system does not know gives empty text;
/// 0 is the active one.
[[nodiscard]] std::string Utf16ToCodePage(unsigned codePage, std::u16string_view text);

}  // namespace vapp_platform
