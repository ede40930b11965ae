/// @file
/// CStringU: the one text type of the system.
///
/// Every name, path, message and keyword that crosses a class boundary is a CStringU. It is a CString whose
/// bytes are UTF-8, with one addition: text that holds a non-ASCII character but begins with an ASCII one has
/// a marker byte, 0x80, in front. So the first stored byte alone tells whether a text is pure ASCII, and pure
/// ASCII text takes the plain byte path everywhere. The text behind the marker is the payload; everything
/// that leaves for the outside (an interpreter, a file, printf) is the payload, never the stored bytes.
///
/// The marker invariant:
///  - no byte >= 0x80: no marker;
///  - a non-ASCII character in it, the first one ASCII: one marker, at the very front;
///  - the first character non-ASCII: no marker, for its own lead byte (0xC0 and above) says the same.
/// A text of the marker alone can come about; it counts as empty in every length, blank and iteration
/// operation, though HasNonAscii is true of it, which is harmless.
///
/// Characters are UTF-16 units of 16 bits; offsets are bytes of the payload; counts of characters are counts
/// of units, so that a surrogate pair counts two and takes six bytes. How units become bytes stands in
/// text/Codec.h. Embedded NULs are not supported: every text ends at its first one.
///
/// The surprises: a narrow `const char*` with high bytes is in the active code page, not in UTF-8. That is
/// the locale's, on Windows the system's, unless the host sets one (vapp/text/ActiveCodePage.h). Malformed
/// UTF-8 never fails, and comes out as its bits say. There is no order by locale: `<` puts the shorter
/// payload first, then goes by bytes. Where `wchar_t` is wider than 16 bits, a value above 0xFFFF comes in as
/// a surrogate pair, and each unit goes out as one `wchar_t`.
#pragma once

#include <compare>
#include <concepts>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "vapp/Export.h"
#include "vapp/text/CString.h"
#include "vapp/text/CStringUPos.h"
#include "vapp/text/TextEncoding.h"

/// What printf takes: numbers, enumerators and pointers. A text is passed by its Payload() or GetString().
template <typename Type>
concept FormatArgument = std::is_arithmetic_v<Type> || std::is_enum_v<Type> || std::is_pointer_v<Type>;

/// A character in a type of its own. A `char` with its high bit is one of the active code page.
template <typename Type>
concept TextCharacter =
    std::same_as<Type, char> || std::same_as<Type, wchar_t> || std::same_as<Type, char16_t>;

class VAPP_EXPORT CStringU {
public:
    /// Name the way in at a constructor, where the type of the text alone doesn't tell it.
    struct TSwapped {};
    struct TMarked {};
    struct TAscii {};
    struct TAnsi {
        unsigned codePage;
    };
    struct TAnsiAuto {
        unsigned codePage;
    };

    // --- Construction and assignment -------------------------------------------------------------------

    /// Empty text.
    CStringU() noexcept = default;
    CStringU(std::nullptr_t) noexcept {}
    /// Narrow text: ASCII stays, and with a high byte in it the whole is read in the active code page
    /// (TextEncoding::AnsiAuto). A null pointer gives empty text.
    CStringU(const char* text);
    CStringU(const CString& text);
    /// Narrow text in a named encoding; see Assign.
    CStringU(const char* text, TextEncoding encoding, int length = -1);
    /// UTF-16, to its NUL or `count` units; see AssignWide.
    CStringU(const char16_t* text, int count = -1);
    CStringU(const wchar_t* text, int count = -1);
    explicit CStringU(std::u16string_view text);
    /// One character; 0 gives empty text.
    explicit CStringU(char16_t unit);
    explicit CStringU(wchar_t character);
    /// AssignWideSwapped, AssignAnsi, AssignAnsiAuto and AssignMarked as constructors.
    CStringU(const char16_t* text, TSwapped way);
    CStringU(const wchar_t* text, TSwapped way);
    CStringU(const char* text, TAnsi way, int length = -1);
    CStringU(const char* text, TAnsiAuto way, int length = -1);
    CStringU(const CString& utf8, TMarked way);
    /// Takes a narrow text known to be ASCII as it stands, without a look at it: for what is made byte by
    /// byte here, such as the text of a number.
    CStringU(CString&& ascii, TAscii) noexcept : m_stored(std::move(ascii)) {}

    CStringU& operator=(const char* text);
    CStringU& operator=(const CString& text);
    CStringU& operator=(const char16_t* text) { return AssignWide(text); }
    CStringU& operator=(const wchar_t* text) { return AssignWide(text); }
    CStringU& operator=(char16_t unit);
    CStringU& operator=(wchar_t character);

    /// Reads bytes as `encoding` says: exactly `length` of them, or up to the NUL where `length` is negative;
    /// never beyond a NUL. A null pointer gives empty text.
    CStringU& Assign(const char* text, TextEncoding encoding, int length = -1);
    /// Takes bytes known to be ASCII, as the constructor with TAscii does.
    CStringU& AssignAscii(std::string_view ascii) {
        m_stored.Assign(ascii);
        return *this;
    }
    /// Takes bytes known to be UTF-8 without a NUL, with the marker where it is due: TextEncoding::Utf8Auto
    /// without the search for the end.
    CStringU& AssignUtf8(std::string_view utf8);
    /// Encodes UTF-16, up to `count` units or the NUL, and puts the marker in front where it is due. A null
    /// pointer gives empty text.
    CStringU& AssignWide(const char16_t* text, int count = -1);
    CStringU& AssignWide(const wchar_t* text, int count = -1);
    CStringU& AssignWide(std::u16string_view text);
    /// Encodes UTF-16 of the other byte order, up to its NUL.
    CStringU& AssignWideSwapped(const char16_t* text);
    CStringU& AssignWideSwapped(const wchar_t* text);
    /// Converts bytes of a named code page, always, ASCII or not.
    CStringU& AssignAnsi(const char* text, unsigned codePage, int length = -1);
    /// Copies pure ASCII, converts anything else as AssignAnsi.
    CStringU& AssignAnsiAuto(const char* text, unsigned codePage, int length = -1);
    /// Takes a narrow text known to be UTF-8: the marker in front if its first byte is ASCII (so also on pure
    /// ASCII), otherwise the text as it stands, sharing its bytes.
    CStringU& AssignMarked(const CString& utf8);
    /// Makes the text empty.
    void Empty() noexcept { m_stored.Empty(); }

    // --- Read-only views -------------------------------------------------------------------------------

    /// The bytes behind any marker, NUL at the end. Valid until this text is changed or destroyed.
    [[nodiscard]] const char* Payload() const noexcept {
        const char* stored = m_stored.GetString();
        return stored + static_cast<int>(*stored == cnMarker);
    }
    /// The payload with its length.
    [[nodiscard]] std::string_view PayloadView() const noexcept {
        return {Payload(), static_cast<std::size_t>(GetByteLength())};
    }
    /// True if the first stored byte has its high bit set.
    [[nodiscard]] bool HasNonAscii() const noexcept {
        return static_cast<signed char>(*m_stored.GetString()) < 0;
    }
    /// Bytes of the payload.
    [[nodiscard]] int GetByteLength() const noexcept {
        return m_stored.GetLength() - static_cast<int>(*m_stored.GetString() == cnMarker);
    }
    /// Characters of the payload, counted by decoding; at once for ASCII.
    [[nodiscard]] int GetCharCount() const noexcept;
    /// True for no text, and for a marker alone.
    [[nodiscard]] bool IsEmpty() const noexcept { return GetByteLength() == 0; }
    /// The bytes as they are stored, marker included; for tests and for keeping a text as it is.
    [[nodiscard]] const CString& Stored() const noexcept { return m_stored; }

    // --- Conversions out -------------------------------------------------------------------------------

    /// The payload as plain narrow text; shares storage where there is no marker.
    [[nodiscard]] CString StripMarker() const;
    [[nodiscard]] std::u16string ToWide() const;
    /// ToWide with the two bytes of every unit swapped.
    [[nodiscard]] std::u16string ToWideSwapped() const;
    /// The text in a code page; what it can't express becomes its default character. Ends at an overlong NUL.
    [[nodiscard]] CString ToAnsi(unsigned codePage) const;
    /// The text in the active code page.
    [[nodiscard]] CString ToAnsi() const;
    /// ToWide, one `wchar_t` for each unit.
    [[nodiscard]] std::wstring ToStdWstring() const;

    // --- Concatenation ---------------------------------------------------------------------------------

    /// Appends the other payload; then the marker goes in front if `other` HasNonAscii and the first stored
    /// byte here is ASCII.
    CStringU& AppendU(const CStringU& other);
    CStringU& operator+=(const CStringU& other) { return AppendU(other); }
    /// Appends one character, with the marker where it becomes due; 0 appends nothing.
    CStringU& operator+=(char16_t unit);
    CStringU& operator+=(wchar_t character);
    /// Appends the byte as it stands, without a thought for the marker: for ASCII only. 0 appends nothing.
    CStringU& operator+=(char ascii);
    friend CStringU operator+(CStringU left, const CStringU& right) { return std::move(left.AppendU(right)); }
    friend CStringU operator+(CStringU left, char16_t right) { return std::move(left += right); }
    friend CStringU operator+(CStringU left, wchar_t right) { return std::move(left += right); }
    friend CStringU operator+(CStringU left, char right) { return std::move(left += right); }

    // --- Positions -------------------------------------------------------------------------------------

    [[nodiscard]] CStringUPos Begin() const noexcept { return {0, this}; }
    [[nodiscard]] CStringUPos End() const noexcept { return {GetByteLength(), this}; }

    // --- Substrings: each result gets or loses the marker by its own content ---------------------------

    /// The first `byteCount` bytes of the payload.
    [[nodiscard]] CStringU Left(std::int64_t byteCount) const;
    /// The text before, and from, a position.
    [[nodiscard]] CStringU Head(const CStringUPos& pos) const { return Left(pos.offset); }
    [[nodiscard]] CStringU Tail(const CStringUPos& pos) const;
    /// `count` characters from a position.
    [[nodiscard]] CStringU Mid(const CStringUPos& pos, std::int64_t count) const;
    /// The first two characters: where a path has its drive.
    [[nodiscard]] CStringU Prefix2() const;
    /// The bytes of the first two characters; always 2 for ASCII text, however short.
    [[nodiscard]] int PrefixBytes2() const noexcept;
    /// The last character; 0 for empty text.
    [[nodiscard]] char16_t LastChar() const noexcept;

    // --- Editing at a position: each gives the new count of characters ---------------------------------

    int Insert(const CStringUPos& pos, char16_t unit);
    int Insert(const CStringUPos& pos, wchar_t character);
    int Insert(const CStringUPos& pos, const CStringU& text);
    /// Removes `count` characters from a position.
    int Erase(const CStringUPos& pos, std::int64_t count);
    /// Removes what stands between two positions, in either order.
    int Erase(const CStringUPos& pos1, const CStringUPos& pos2);

    // --- Trimming: in place, and as a new text. A set counts its characters, case-sensitively -----------

    /// Removes blank characters (IsBlankCharU) from one end or both; a text of blanks alone becomes empty.
    CStringU& TrimLeft();
    CStringU& TrimRight();
    CStringU& Trim();
    [[nodiscard]] CStringU TrimmedLeft() const;
    [[nodiscard]] CStringU TrimmedRight() const;
    [[nodiscard]] CStringU Trimmed() const;
    /// Removes the characters of a set from one end.
    CStringU& TrimLeft(const CStringU& set);
    CStringU& TrimRight(const CStringU& set);
    [[nodiscard]] CStringU TrimmedLeft(const CStringU& set) const;
    [[nodiscard]] CStringU TrimmedRight(const CStringU& set) const;
    /// True for empty text and for text of blanks alone. What counts as blank differs: in pure ASCII only the
    /// space and the tab, so that a line feed is text there; otherwise every blank character.
    [[nodiscard]] bool IsBlank() const noexcept;
    /// The head of the text up to the first character that is in the set, or that is not.
    [[nodiscard]] CStringU SpanExcluding(const CStringU& set) const;
    [[nodiscard]] CStringU SpanIncluding(const CStringU& set) const;

    // --- Quotes: any two of five quote characters, matching or not (see CStringUQuotes.cpp) --------------

    /// Removes a quote character from both ends, where both have one and they are two characters.
    CStringU& RemoveQuotes();
    [[nodiscard]] CStringU WithoutQuotes() const;
    /// Puts a plain quote at each end, unless the text has quote characters there; empty text becomes two
    /// quotes.
    CStringU& AddQuotes();
    [[nodiscard]] CStringU WithQuotes() const;

    // --- Replacing: each gives the number of replacements ------------------------------------------------

    /// Replaces every such character; a 0 on either side replaces nothing.
    int Replace(char16_t oldUnit, char16_t newUnit);
    /// The same without regard to case. Text outside of ASCII knows three forms of a character: as given, its
    /// lower-case and its upper-case form, replaced one after the other.
    int ReplaceNoCase(char16_t oldUnit, char16_t newUnit);
    /// Both for characters of other types. One that is a pair of units replaces, or is replaced, as a text.
    template <TextCharacter Old, TextCharacter New>
    int Replace(Old oldCharacter, New newCharacter) {
        return IsUnit(oldCharacter) && IsUnit(newCharacter)
                   ? Replace(static_cast<char16_t>(oldCharacter), static_cast<char16_t>(newCharacter))
                   : ReplaceCharacter(OfCharacter(oldCharacter), OfCharacter(newCharacter), true);
    }
    template <TextCharacter Old, TextCharacter New>
    int ReplaceNoCase(Old oldCharacter, New newCharacter) {
        return IsUnit(oldCharacter) && IsUnit(newCharacter)
                   ? ReplaceNoCase(static_cast<char16_t>(oldCharacter), static_cast<char16_t>(newCharacter))
                   : ReplaceCharacter(OfCharacter(oldCharacter), OfCharacter(newCharacter), false);
    }
    /// Replaces every such text from left to right. An empty `oldText` replaces nothing.
    int Replace(const CStringU& oldText, const CStringU& newText);
    /// The same without regard to case, for a `newText` as long as the old one: hits are places in the
    /// unedited text and are applied to the edited one, so that with another length later hits drift. An
    /// `oldText` outside of ASCII is only found if it stands at the text's very end (see Search.h).
    int ReplaceNoCase(const CStringU& oldText, const CStringU& newText);

    // --- Case, words, places -----------------------------------------------------------------------------

    /// The text in lower or in upper case, character by character, in no locale. Shares the text where
    /// nothing changes.
    [[nodiscard]] CStringU ToLower() const;
    [[nodiscard]] CStringU ToUpper() const;
    /// Reads a word: "0", "no", "False", "nil", "f", "n" and empty text are false, "yes", "True" and "t" are
    /// true, in any case; all else, "1" and "y" among it, is the default.
    [[nodiscard]] bool ToBool(bool defaultValue) const;
    /// The last "." of the text, whether or not a path separator follows it; the end position for none.
    [[nodiscard]] CStringUPos FindExtensionDot() const;

    // --- Formatting ------------------------------------------------------------------------------------

    /// A printf result, with the payload of `format` as the format, classified by TextEncoding::Utf8Auto.
    /// Numbers get the decimal point, and with "'" the groups, of the host's locale, as CString's do; nothing
    /// else of it counts.
    /// Sizes may be written "%Iu" (see CString::FormatV). Texts are passed by Payload(): a CStringU itself
    /// does not compile.
    template <FormatArgument... Arguments>
    [[nodiscard]] static CStringU Formatted(const CStringU& format, Arguments... arguments) {
        return FormattedRaw(format.Payload(), arguments...);
    }
    /// Formatted, in place.
    template <FormatArgument... Arguments>
    void Format(const CStringU& format, Arguments... arguments) {
        *this = FormattedRaw(format.Payload(), arguments...);
    }
    [[nodiscard]] static CStringU FormattedV(const CStringU& format, va_list arguments);

    // --- Comparing and searching -----------------------------------------------------------------------

    /// The sign says the order without regard to case, the magnitude nothing. Narrow text is read by the
    /// plain narrow rule (see the constructor).
    [[nodiscard]] int CompareNoCase(const CStringU& other) const;
    [[nodiscard]] int CompareNoCase(const char* narrow) const;
    [[nodiscard]] bool EqualsNoCase(const CStringU& other) const { return CompareNoCase(other) == 0; }
    [[nodiscard]] bool EqualsNoCase(const char* narrow) const { return CompareNoCase(narrow) == 0; }

    /// The first hit at or behind `from`; the end position for none.
    [[nodiscard]] CStringUPos FindChar(char16_t unit, bool caseSensitive, CStringUPos from) const;
    /// The nearest hit going backward from `from`; the end position for none.
    [[nodiscard]] CStringUPos FindCharBack(char16_t unit, bool caseSensitive, CStringUPos from) const;
    /// Both for characters of other types. One that is a pair of units is no one character, and not found.
    template <TextCharacter Character>
    [[nodiscard]] CStringUPos FindChar(Character character, bool caseSensitive, CStringUPos from) const {
        if (IsUnit(character)) return FindChar(static_cast<char16_t>(character), caseSensitive, from);
        const CStringU text = OfCharacter(character);
        return text.GetCharCount() == 1 ? FindChar(*text.Begin(), caseSensitive, from) : End();
    }
    template <TextCharacter Character>
    [[nodiscard]] CStringUPos FindCharBack(Character character, bool caseSensitive, CStringUPos from) const {
        if (IsUnit(character)) return FindCharBack(static_cast<char16_t>(character), caseSensitive, from);
        const CStringU text = OfCharacter(character);
        return text.GetCharCount() == 1 ? FindCharBack(*text.Begin(), caseSensitive, from) : End();
    }
    /// The first hit of the needle's *stored* bytes, so that a marked needle is not found; the end position
    /// for none.
    [[nodiscard]] CStringUPos FindTextNoCase(const CStringU& needle) const;

    [[nodiscard]] bool StartsWithNoCase(const CStringU& prefix) const;
    /// Empty text ends every text.
    [[nodiscard]] bool EndsWith(const CStringU& suffix) const;
    [[nodiscard]] bool EndsWith(const char* narrow) const;
    [[nodiscard]] bool EndsWithNoCase(const CStringU& suffix) const;

    // --- Numbers ---------------------------------------------------------------------------------------
    // All begin at the front of the text and leave the rest unread. `pos`, unless null, becomes the place in
    // this text where reading ended. No locale has a say in digits and points: the point is always
    // ".". But what reads floating numbers reads text outside of ASCII in the active code page. Text without
    // a number is 0.

    /// What strtod reads in C's plain locale: decimal and hexadecimal floats, "inf", "nan". `pos` gets the
    /// place behind the number, or offset 0 for none. Out of range is infinity or 0 with errno ERANGE.
    double ToDouble(CStringUPos* pos = nullptr) const;
    /// A number with an engineering suffix: *1.5k*, *10MEG*, *3mil*, *50%*, by the SPICE reading of suffixes
    /// ("M" is milli) or by the SI one ("M" is mega). `pos` as in ToDouble, with one oddity that callers
    /// count on: in the SI reading a number without a suffix leaves it on the number's last character.
    double ToDoubleEngineering(bool spiceOnly, CStringUPos* pos = nullptr) const;
    /// An integer in the decimal digits of any script, behind blanks and one sign; "x" or "#" behind zeros or
    /// in front of all digits means base 16. The unsigned forms take no minus. A digit that would overflow
    /// ends the number before it. `pos` gets the place behind the last character taken, blanks, sign and "x"
    /// included.
    std::int32_t ToInt(CStringUPos* pos = nullptr) const noexcept;
    std::uint32_t ToUInt(CStringUPos* pos = nullptr) const noexcept;
    std::int64_t ToInt64(CStringUPos* pos = nullptr) const noexcept;
    std::uint64_t ToUInt64(CStringUPos* pos = nullptr) const noexcept;

    /// Equal payload bytes.
    friend bool operator==(const CStringU& left, const CStringU& right) noexcept {
        return left.PayloadView() == right.PayloadView();
    }
    /// Equal to narrow text by the plain narrow rule.
    friend bool operator==(const CStringU& left, const char* right) { return left.EqualsNarrow(right); }
    /// The plain order: the shorter payload first, then the order of the bytes.
    friend std::strong_ordering operator<=>(const CStringU& left, const CStringU& right) noexcept {
        const auto byLength = left.GetByteLength() <=> right.GetByteLength();
        return byLength != 0 ? byLength : left.PayloadView() <=> right.PayloadView();
    }

private:
    static constexpr char cnMarker = '\x80';

    // True where a character is one unit, and its number that of the unit.
    [[nodiscard]] static constexpr bool IsUnit(char character) noexcept {
        return static_cast<unsigned char>(character) < 0x80U;
    }
    [[nodiscard]] static constexpr bool IsUnit(wchar_t character) noexcept {
        return (static_cast<char32_t>(character) >> 16U) == 0;
    }
    [[nodiscard]] static constexpr bool IsUnit(char16_t /*unit*/) noexcept { return true; }
    [[nodiscard]] static CStringU OfCharacter(char character) { return {CString(character)}; }
    [[nodiscard]] static CStringU OfCharacter(wchar_t character) { return CStringU(character); }
    [[nodiscard]] static CStringU OfCharacter(char16_t unit) { return CStringU(unit); }
    int ReplaceCharacter(const CStringU& oldText, const CStringU& newText, bool caseSensitive);
    [[nodiscard]] static CStringU FormattedRaw(const char* format, ...);
    [[nodiscard]] bool EqualsNarrow(const char* text) const;
    [[nodiscard]] CStringU Piece(std::int64_t first, std::int64_t behind) const;
    CStringU& Keep(std::int64_t first, std::int64_t behind);
    int ReplaceAsciiNoCase(char lower, char newByte);
    void DeriveMarker();
    int ReplaceByDecoding(char16_t oldUnit, char16_t newUnit);
    int ReplaceByDecoding(const CStringU& oldText, const CStringU& newText);
    [[nodiscard]] std::int64_t ClampOffset(std::int64_t offset) const noexcept;
    void AppendBytes(std::string_view bytes, bool bringsNonAscii);

    CString m_stored;
};

static_assert(sizeof(CStringU) == 8, "a text is one pointer wide: rows and nodes count on it");

/// Hashes the payload, in step with ==.
template <>
struct std::hash<CStringU> {
    std::size_t operator()(const CStringU& text) const noexcept {
        return std::hash<std::string_view>()(text.PayloadView());
    }
};
