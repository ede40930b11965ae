/// @file
/// CString: the host's narrow string, one pointer wide, shared by its copies and copied when written.
///
/// For plain bytes: printf results, narrow texts of hosts, the stored bytes of CStringU. It is not the text
/// type of the system (that is CStringU): it knows no encoding, and its case operations change ASCII letters
/// only.
///
/// The surprises: out-of-range arguments never fail. An index is clamped to the text, a negative count is
/// none, a null pointer is empty text. And printf goes by the C library, whose real numbers have the decimal
/// point of the host's locale: for numbers that a file or another program reads take vapp_text's number
/// formats.
#pragma once

#include <atomic>
#include <compare>
#include <concepts>
#include <cstdarg>
#include <cstddef>
#include <functional>
#include <string_view>
#include <utility>

#include "vapp/Export.h"

/// A narrow string of bytes with its length in front and a NUL at its end.
///
/// Copies share one buffer, counted atomically; the first write through a copy gives it a buffer of its own.
/// So a text is shared between threads by copying it; one object is not to be written from two threads. The
/// empty string owns no memory. Lengths are `int`; a text that would be longer is refused with
/// std::bad_alloc.
class VAPP_EXPORT CString {
public:
    /// Empty text.
    CString() noexcept : m_text(EmptyText()) {}
    /// A copy of the bytes up to the NUL; a null pointer gives empty text.
    CString(const char* text);
    /// A copy of exactly `length` bytes, NULs among them included; below 1 gives empty text.
    CString(const char* text, int length);
    /// A copy of the bytes of a view.
    explicit CString(std::string_view text);
    /// One character, `count` times.
    explicit CString(char character, int count = 1);
    CString(const CString& other) noexcept;
    CString(CString&& other) noexcept : m_text(std::exchange(other.m_text, EmptyText())) {}
    ~CString() { Release(); }

    CString& operator=(const CString& other) noexcept;
    CString& operator=(CString&& other) noexcept;
    CString& operator=(const char* text);
    /// Becomes a copy of the bytes of a view, in the buffer that it has if they fit well. The view may be a
    /// part of this text.
    CString& Assign(std::string_view text);
    /// The same of two views, one behind the other; `front` is no part of this text.
    CString& Assign(std::string_view front, std::string_view text);
    /// A text of `length` bytes that `fill` writes, each of them, to the `char*` that it is called with.
    template <std::invocable<char*> Fill>
    [[nodiscard]] static CString Filled(std::size_t length, const Fill& fill) {
        CString text(TUnfilled(), length);
        if (length > 0) fill(text.m_text);
        return text;
    }

    /// The number of bytes before the terminating NUL.
    [[nodiscard]] int GetLength() const noexcept { return GetHeader().length; }
    [[nodiscard]] bool IsEmpty() const noexcept { return GetLength() == 0; }
    /// The bytes, NUL at the end; never null. Valid until this text is changed or destroyed.
    [[nodiscard]] const char* GetString() const noexcept { return m_text; }
    operator const char*() const noexcept { return m_text; }
    [[nodiscard]] std::string_view View() const noexcept {
        return {m_text, static_cast<std::size_t>(GetLength())};
    }
    /// True while another CString uses the same buffer; never for empty text.
    [[nodiscard]] bool IsShared() const noexcept {
        return GetHeader().shares.load(std::memory_order_acquire) > 1;
    }

    /// The byte at an index; 0 outside of the text.
    [[nodiscard]] char GetAt(int index) const noexcept {
        return index >= 0 && index < GetLength() ? m_text[index] : '\0';
    }
    template <std::integral Index>
    [[nodiscard]] char operator[](Index index) const noexcept {
        return std::in_range<int>(index) ? GetAt(static_cast<int>(index)) : '\0';
    }
    /// Writes the byte at an index; nothing happens outside of the text.
    void SetAt(int index, char character);

    /// Gives a buffer of this text alone, with room for at least `minLength` bytes and a NUL, to be filled in
    /// place. ReleaseBuffer must follow before any other operation.
    [[nodiscard]] char* GetBuffer(int minLength = 0);
    /// Ends what GetBuffer began: takes `length` bytes, or with -1 those up to the NUL, never more than the
    /// buffer holds.
    void ReleaseBuffer(int length = -1);
    /// GetBuffer, with the length set already.
    [[nodiscard]] char* GetBufferSetLength(int length);
    /// Makes room for `length` bytes without changing the text.
    void Reserve(int length);

    /// Makes the text empty and gives up its buffer.
    void Empty() noexcept;
    void Swap(CString& other) noexcept { std::swap(m_text, other.m_text); }

    CString& Append(const char* text);
    CString& Append(const char* text, int length);
    CString& Append(const CString& other);
    CString& Append(std::string_view text);
    CString& AppendChar(char character);
    CString& operator+=(const CString& other) { return Append(other); }
    CString& operator+=(const char* text) { return Append(text); }
    CString& operator+=(char character) { return AppendChar(character); }
    friend CString operator+(CString left, const CString& right) { return std::move(left.Append(right)); }
    friend CString operator+(CString left, const char* right) { return std::move(left.Append(right)); }
    friend CString operator+(CString left, char right) { return std::move(left.AppendChar(right)); }
    friend CString operator+(const char* left, const CString& right) { return CString(left) + right; }
    friend CString operator+(char left, const CString& right) { return CString(left) + right; }

    /// Order of the bytes as unsigned numbers; below, equal to or above 0. All bytes of this text count, and
    /// all of the other; of a C string those to its NUL. So it is one order with that of == and <=>.
    [[nodiscard]] int Compare(const CString& other) const noexcept { return View().compare(other.View()); }
    [[nodiscard]] int Compare(const char* text) const noexcept { return View().compare(ViewOf(text)); }
    /// The same with ASCII letters folded.
    [[nodiscard]] int CompareNoCase(const CString& other) const noexcept {
        return CompareFolded(other.View());
    }
    [[nodiscard]] int CompareNoCase(const char* text) const noexcept { return CompareFolded(ViewOf(text)); }
    friend bool operator==(const CString& left, const CString& right) noexcept {
        return left.View() == right.View();
    }
    friend bool operator==(const CString& left, const char* right) noexcept {
        return left.View() == ViewOf(right);
    }
    friend std::strong_ordering operator<=>(const CString& left, const CString& right) noexcept {
        return left.View() <=> right.View();
    }
    friend std::strong_ordering operator<=>(const CString& left, const char* right) noexcept {
        return left.View() <=> ViewOf(right);
    }

    /// The first, the last `count` bytes, or those from `first`; less where the text ends.
    [[nodiscard]] CString Left(int count) const;
    [[nodiscard]] CString Right(int count) const;
    [[nodiscard]] CString Mid(int first) const;
    [[nodiscard]] CString Mid(int first, int count) const;

    /// The index of the first hit at or behind `start`, -1 for none. An empty text is found at `start`.
    [[nodiscard]] int Find(char character, int start = 0) const noexcept;
    [[nodiscard]] int Find(const char* text, int start = 0) const noexcept;
    /// The index of the last hit, -1 for none.
    [[nodiscard]] int ReverseFind(char character) const noexcept;
    /// The index of the first byte that is one of `set`, -1 for none.
    [[nodiscard]] int FindOneOf(const char* set) const noexcept;

    /// Inserts at an index, clamped to the text; gives the new length.
    int Insert(int index, char character);
    int Insert(int index, const char* text);
    /// Removes up to `count` bytes from an index; gives the new length.
    int Delete(int index, int count = 1);
    /// Removes every such byte; gives their number.
    int Remove(char character);
    /// Replaces every such byte, or every such text from left to right; gives the number of replacements. An
    /// empty `oldText` replaces nothing.
    int Replace(char oldCharacter, char newCharacter);
    int Replace(const char* oldText, const char* newText);

    /// Removes white space (blank, \\t, \\n, \\v, \\f, \\r), one character, or the characters of a set, from
    /// one end or both.
    CString& Trim();
    CString& Trim(char character);
    CString& Trim(const char* set);
    CString& TrimLeft();
    CString& TrimLeft(char character);
    CString& TrimLeft(const char* set);
    CString& TrimRight();
    CString& TrimRight(char character);
    CString& TrimRight(const char* set);

    /// Changes the case of ASCII letters, and of nothing else: no locale is asked.
    CString& MakeLower();
    CString& MakeUpper();

    /// The head of the text of bytes that are, or are not, in the set.
    [[nodiscard]] CString SpanIncluding(const char* set) const;
    [[nodiscard]] CString SpanExcluding(const char* set) const;

    /// The next token at or behind index `start`: a run of bytes that are not in `separators`. Moves `start`
    /// behind the token and one separator; when no token is left gives empty text and sets `start` to -1.
    [[nodiscard]] CString Tokenize(const char* separators, int& start) const;

    /// Replaces the text by a printf result. For formats that the compiler sees; sizes are "%zu" there.
    void Format(const char* format, ...) VAPP_PRINTF_LIKE(2, 3);
    /// Appends a printf result.
    void AppendFormat(const char* format, ...) VAPP_PRINTF_LIKE(2, 3);
    /// Format for texts that come at run time (from users, from translations). There the size prefix `I`
    /// stands for a size of this machine ("%Iu cells"), `I64` and `I32` for 64 and 32 bits. A format that the
    /// system refuses gives empty text.
    void FormatV(const char* format, va_list arguments);
    void AppendFormatV(const char* format, va_list arguments);

    /// The bytes up to the NUL as a view; empty for a null pointer.
    [[nodiscard]] static std::string_view ViewOf(const char* text) noexcept {
        return text != nullptr ? std::string_view(text) : std::string_view();
    }

private:
    // Stands right before the bytes. A capacity of 0 marks the one empty buffer that nobody owns or counts.
    struct Header {
        std::atomic<int> shares;
        int length;
        int capacity;
    };
    struct EmptyBuffer {
        Header header;
        char nul;
    };
    static EmptyBuffer s_empty;
    struct TUnfilled {};

    CString(TUnfilled way, std::size_t length);

    [[nodiscard]] static char* EmptyText() noexcept { return &s_empty.nul; }
    [[nodiscard]] static char* Allocate(int capacity, int length);
    [[nodiscard]] Header& GetHeader() const noexcept {
        return *reinterpret_cast<Header*>(m_text - sizeof(Header));
    }
    [[nodiscard]] bool OwnsBytesAt(const char* text) const noexcept;
    void Release() noexcept {
        if (GetHeader().capacity != 0) ReleaseBlock();
    }
    void ReleaseBlock() noexcept;
    [[nodiscard]] bool Suits(std::size_t length) const noexcept;
    void SetLength(int length) noexcept;
    void MakeWritable(std::size_t capacity, bool grow);
    [[nodiscard]] int CompareFolded(std::string_view other) const noexcept;
    void ReplaceRange(int first, int count, std::string_view text);
    template <typename Form>
    CString& MakeForm(const Form& form);
    CString& KeepRange(std::size_t first, std::size_t behind);
    CString& TrimSet(std::string_view set, bool left, bool right);

    char* m_text;
};

static_assert(sizeof(CString) == 8, "a text is one pointer wide: rows and nodes count on it");

/// Hashes the bytes.
template <>
struct std::hash<CString> {
    std::size_t operator()(const CString& text) const noexcept {
        return std::hash<std::string_view>()(text.View());
    }
};
