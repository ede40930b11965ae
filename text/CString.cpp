/// @file
/// CString's buffer: where the bytes live, who shares them, and when they are copied. What is done to the
/// bytes stands in CStringEdit.cpp, CStringFind.cpp and CStringFormat.cpp.
///
/// The surprise: a writing operation may be handed a pointer into its own text (`text += text.GetString()`).
/// Whoever appends or replaces first keeps a share of the old buffer, which copy on write then leaves alone.

#include "vapp/text/CString.h"

#include <ext/atomicity.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <new>

#include "text/BlockCache.h"
#include "text/Words.h"

namespace {

using vapp_text::CopyBytes;

// Header, bytes and NUL together must have a size that an int can count.
constexpr std::size_t cnMaxLength = static_cast<std::size_t>(std::numeric_limits<int>::max()) - 64;

// The room that an assigned text may leave unused, beside as much as it has itself.
constexpr std::size_t cnSpareRoom = 64;

int CheckedLength(std::size_t length) {
    if (length > cnMaxLength) throw std::bad_alloc();
    return static_cast<int>(length);
}

std::size_t ClampedToZero(int count) {
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

// Counts owners; gives their number before. A locked operation costs as much as a short text's copy, so that
// a program of one thread is spared it, as by the standard library's own counted pointers.
int AddShares(std::atomic<int>& shares, int added) {
    if (!__gnu_cxx::__is_single_threaded()) return shares.fetch_add(added, std::memory_order_acq_rel);
    const int before = shares.load(std::memory_order_relaxed);
    shares.store(before + added, std::memory_order_relaxed);
    return before;
}

}  // namespace

constinit CString::EmptyBuffer CString::s_empty{{{1}, 0, 0}, '\0'};

inline char* CString::Allocate(int capacity, int length) {
    static_assert(offsetof(EmptyBuffer, nul) == sizeof(Header), "the bytes follow their header");
    const std::size_t size = sizeof(Header) + static_cast<std::size_t>(capacity) + 1;
    char* const bytes = vapp_text::TakeBlock(size);
    new (bytes) Header{{1}, length, capacity};
    char* const text = bytes + sizeof(Header);
    text[length] = '\0';
    return text;
}

void CString::ReleaseBlock() noexcept {
    Header& header = GetHeader();
    // The last owner must see what the others did to the buffer before they let go of it. A sole owner stays
    // alone, since only it could share the buffer, so that it needs no locked operation.
    if (header.shares.load(std::memory_order_acquire) != 1 && AddShares(header.shares, -1) != 1) return;
    const std::size_t size = sizeof(Header) + static_cast<std::size_t>(header.capacity) + 1;
    header.~Header();
    vapp_text::GiveBlock(m_text - sizeof(Header), size);
}

void CString::SetLength(int length) noexcept {
    GetHeader().length = length;
    m_text[length] = '\0';
}

// Makes the buffer one of this text alone, with room for `capacity` bytes and with the old bytes in it. With
// `grow` a new buffer has room to spare, so that appending byte by byte stays linear.
void CString::MakeWritable(std::size_t capacity, bool grow) {
    const Header& header = GetHeader();
    const std::size_t length = ClampedToZero(header.length);
    const std::size_t held = ClampedToZero(header.capacity);
    if (held > 0 && held >= capacity && !IsShared()) return;

    std::size_t wanted = std::max(std::max(capacity, length), std::size_t{1});
    if (grow) wanted = std::max(wanted, std::min(length + length / 2, cnMaxLength));
    char* const text = Allocate(CheckedLength(wanted), static_cast<int>(length));
    CopyBytes(text, m_text, length);
    Release();
    m_text = text;
}

bool CString::OwnsBytesAt(const char* text) const noexcept {
    const std::less<> before;
    return !before(text, m_text) && !before(m_text + GetLength(), text);
}

CString::CString(const char* text) : CString(ViewOf(text)) {}

CString::CString(const char* text, int length)
    : CString(text != nullptr ? std::string_view(text, ClampedToZero(length)) : std::string_view()) {}

CString::CString(TUnfilled /*way*/, std::size_t length) : m_text(EmptyText()) {
    if (length == 0) return;
    const int checked = CheckedLength(length);
    m_text = Allocate(checked, checked);
}

CString::CString(std::string_view text) : m_text(EmptyText()) {
    if (text.empty()) return;
    const int length = CheckedLength(text.size());
    m_text = Allocate(length, length);
    CopyBytes(m_text, text.data(), text.size());
}

CString::CString(char character, int count) : CString(TUnfilled(), ClampedToZero(count)) {
    if (count > 0) std::memset(m_text, character, ClampedToZero(count));
}

CString::CString(const CString& other) noexcept : m_text(other.m_text) {
    Header& header = GetHeader();
    if (header.capacity != 0) AddShares(header.shares, 1);
}

// Whether an assigned text of so many bytes is written where this one lies. A buffer that is too wide for it
// is given up: a text that lives on is not to hold the room of one that was there for a moment.
bool CString::Suits(std::size_t length) const noexcept {
    const std::size_t held = ClampedToZero(GetHeader().capacity);
    return length > 0 && held >= length && held <= 2 * length + cnSpareRoom && !IsShared();
}

CString& CString::Assign(std::string_view text) {
    if (!Suits(text.size())) {
        CString(text).Swap(*this);
        return *this;
    }
    CopyBytes(m_text, text.data(), text.size());
    SetLength(static_cast<int>(text.size()));
    return *this;
}

CString& CString::Assign(std::string_view front, std::string_view text) {
    const std::size_t length = front.size() + text.size();
    if (!Suits(length)) {
        CString joined =
            Filled(length, [&](char* out) { text.copy(out + front.copy(out, front.size()), text.size()); });
        Swap(joined);
        return *this;
    }
    if (!text.empty()) std::memmove(m_text + front.size(), text.data(), text.size());
    front.copy(m_text, front.size());
    SetLength(static_cast<int>(length));
    return *this;
}

CString& CString::operator=(const CString& other) noexcept {
    CString(other).Swap(*this);
    return *this;
}

CString& CString::operator=(CString&& other) noexcept {
    CString(std::move(other)).Swap(*this);
    return *this;
}

CString& CString::operator=(const char* text) {
    CString(text).Swap(*this);
    return *this;
}

void CString::SetAt(int index, char character) {
    if (index < 0 || index >= GetLength()) return;
    MakeWritable(0, false);
    m_text[index] = character;
}

char* CString::GetBuffer(int minLength) {
    MakeWritable(ClampedToZero(minLength), false);
    return m_text;
}

void CString::ReleaseBuffer(int length) {
    const Header& header = GetHeader();
    if (header.capacity == 0) return;
    const std::size_t room = ClampedToZero(header.capacity);
    const std::size_t taken = length < 0 ? strnlen(m_text, room) : std::min(ClampedToZero(length), room);
    MakeWritable(taken, false);
    SetLength(static_cast<int>(taken));
}

char* CString::GetBufferSetLength(int length) {
    const int old = GetLength();
    const int wanted = std::max(length, 0);
    MakeWritable(ClampedToZero(wanted), false);
    if (wanted > old) std::memset(m_text + old, 0, static_cast<std::size_t>(wanted - old));
    SetLength(wanted);
    return m_text;
}

void CString::Reserve(int length) {
    if (length > GetLength()) MakeWritable(ClampedToZero(length), false);
}

void CString::Empty() noexcept {
    Release();
    m_text = EmptyText();
}

CString& CString::Append(std::string_view text) {
    if (text.empty()) return *this;
    const CString keep = OwnsBytesAt(text.data()) ? *this : CString();
    const std::size_t length = ClampedToZero(GetLength());
    MakeWritable(length + text.size(), true);
    std::memcpy(m_text + length, text.data(), text.size());
    SetLength(static_cast<int>(length + text.size()));
    return *this;
}

CString& CString::Append(const char* text) {
    return Append(ViewOf(text));
}

CString& CString::Append(const char* text, int length) {
    return text != nullptr ? Append(std::string_view(text, ClampedToZero(length))) : *this;
}

CString& CString::Append(const CString& other) {
    // Nothing here yet and nothing reserved: share instead of copying.
    if (GetHeader().capacity == 0) return *this = other;
    return Append(other.View());
}

CString& CString::AppendChar(char character) {
    return Append(std::string_view(&character, 1));
}
