/// @file
/// What is done to the bytes of a CString: cutting, inserting, removing, replacing, trimming, ASCII case.
///
/// Only bytes: a multi-byte character is nothing special here. Every argument is clamped to the text first,
/// so that the arithmetic behind it can't leave the buffer.

#include <algorithm>
#include <cstring>

#include "text/ReplaceBytes.h"
#include "vapp/text/CString.h"

namespace {

constexpr std::string_view csWhiteSpace = " \t\n\v\f\r";

int Clamp(int index, int length) {
    return std::clamp(index, 0, length);
}

char LowerAscii(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte;
}
char UpperAscii(char byte) {
    return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 32) : byte;
}

std::size_t FirstNotOf(std::string_view text, std::string_view set) {
    return std::min(text.find_first_not_of(set), text.size());
}

std::size_t BehindLastNotOf(std::string_view text, std::string_view set) {
    const std::size_t last = text.find_last_not_of(set);
    return last == std::string_view::npos ? 0 : last + 1;
}

}  // namespace

CString CString::Left(int count) const {
    return Mid(0, count);
}

CString CString::Right(int count) const {
    const int taken = Clamp(count, GetLength());
    return Mid(GetLength() - taken, taken);
}

CString CString::Mid(int first) const {
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const {
    const int begin = Clamp(first, GetLength());
    const int taken = Clamp(count, GetLength() - begin);
    return taken == GetLength() ? *this : CString(m_text + begin, taken);
}

// Replaces `count` bytes at `first`, both inside of the text.
void CString::ReplaceRange(int first, int count, std::string_view text) {
    const CString keep = OwnsBytesAt(text.data()) ? *this : CString();
    const int tail = GetLength() - first - count;
    const auto head = static_cast<std::size_t>(first);
    const auto rest = static_cast<std::size_t>(tail);
    MakeWritable(head + text.size() + rest, true);
    std::memmove(m_text + head + text.size(), m_text + first + count, rest);
    if (!text.empty()) std::memcpy(m_text + head, text.data(), text.size());
    SetLength(static_cast<int>(head + text.size() + rest));
}

int CString::Insert(int index, char character) {
    ReplaceRange(Clamp(index, GetLength()), 0, std::string_view(&character, 1));
    return GetLength();
}

int CString::Insert(int index, const char* text) {
    const std::string_view inserted = ViewOf(text);
    if (!inserted.empty()) ReplaceRange(Clamp(index, GetLength()), 0, inserted);
    return GetLength();
}

int CString::Delete(int index, int count) {
    const int first = Clamp(index, GetLength());
    const int removed = Clamp(count, GetLength() - first);
    if (removed > 0) ReplaceRange(first, removed, {});
    return GetLength();
}

int CString::Remove(char character) {
    const auto removed = std::count(m_text, m_text + GetLength(), character);
    if (removed == 0) return 0;
    MakeWritable(0, false);
    const char* const end = std::remove(m_text, m_text + GetLength(), character);
    SetLength(static_cast<int>(end - m_text));
    return static_cast<int>(removed);
}

// Writes the form of every byte from `first`, which is inside of the text, to the end: where the text lies,
// or else, where it is shared, on the way into a buffer of its own.
template <typename Form>
void CString::MapFrom(std::size_t first, const Form& form) {
    const std::string_view text = View();
    const char* const behind = text.data() + text.size();
    if (!IsShared()) {
        std::transform(text.data() + first, behind, m_text + first, form);
        return;
    }
    CString mapped(TUnfilled(), text.size());
    text.copy(mapped.m_text, first);
    std::transform(text.data() + first, behind, mapped.m_text + first, form);
    Swap(mapped);
}

// Gives every byte its form; what already has it stays shared.
template <typename Form>
CString& CString::MakeForm(const Form& form) {
    const char* const behind = m_text + GetLength();
    const char* first = m_text;
    while (first != behind && form(*first) == *first)
        ++first;
    if (first != behind) MapFrom(static_cast<std::size_t>(first - m_text), form);
    return *this;
}

int CString::Replace(char oldCharacter, char newCharacter) {
    const std::size_t first = View().find(oldCharacter);
    if (first == std::string_view::npos) return 0;
    if (oldCharacter == newCharacter) {
        return static_cast<int>(std::count(m_text + first, m_text + GetLength(), oldCharacter));
    }
    MakeWritable(0, false);
    return static_cast<int>(
        vapp_text::ReplaceBytes(m_text + first, View().size() - first, oldCharacter, newCharacter));
}

int CString::Replace(const char* oldText, const char* newText) {
    const std::string_view searched = ViewOf(oldText);
    const std::string_view inserted = ViewOf(newText);
    if (searched.empty()) return 0;
    const std::string_view source = View();
    const std::size_t first = source.find(searched);
    std::size_t hits = 0;
    for (std::size_t at = first; at != std::string_view::npos;
         at = source.find(searched, at + searched.size()))
        ++hits;
    if (hits == 0) return 0;
    CString result = Filled(source.size() - hits * searched.size() + hits * inserted.size(), [&](char* out) {
        std::size_t from = 0;
        std::size_t hit = first;
        for (std::size_t left = hits; left > 0; --left) {
            out += source.copy(out, hit - from, from);
            out += inserted.copy(out, inserted.size());
            from = hit + searched.size();
            if (left > 1) hit = source.find(searched, from);
        }
        source.copy(out, source.size() - from, from);
    });
    Swap(result);
    return static_cast<int>(hits);
}

CString& CString::KeepRange(std::size_t first, std::size_t behind) {
    const std::size_t begin = std::min(first, behind);
    if (begin == 0 && behind == View().size()) return *this;
    const int kept = static_cast<int>(behind - begin);
    MakeWritable(0, false);
    std::memmove(m_text, m_text + begin, behind - begin);
    SetLength(kept);
    return *this;
}

CString& CString::TrimSet(std::string_view set, bool left, bool right) {
    const std::size_t first = left ? FirstNotOf(View(), set) : 0;
    const std::size_t behind = right ? BehindLastNotOf(View(), set) : View().size();
    return KeepRange(first, behind);
}

CString& CString::Trim() {
    return TrimSet(csWhiteSpace, true, true);
}
CString& CString::Trim(char character) {
    return TrimSet({&character, 1}, true, true);
}
CString& CString::Trim(const char* set) {
    return TrimSet(CString(set).View(), true, true);
}
CString& CString::TrimLeft() {
    return TrimSet(csWhiteSpace, true, false);
}
CString& CString::TrimLeft(char character) {
    return TrimSet({&character, 1}, true, false);
}
CString& CString::TrimLeft(const char* set) {
    return TrimSet(CString(set).View(), true, false);
}
CString& CString::TrimRight() {
    return TrimSet(csWhiteSpace, false, true);
}
CString& CString::TrimRight(char character) {
    return TrimSet({&character, 1}, false, true);
}
CString& CString::TrimRight(const char* set) {
    return TrimSet(CString(set).View(), false, true);
}

CString& CString::MakeLower() {
    return MakeForm([](char byte) { return LowerAscii(byte); });
}

CString& CString::MakeUpper() {
    return MakeForm([](char byte) { return UpperAscii(byte); });
}
