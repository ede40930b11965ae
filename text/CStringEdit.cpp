/// @file
/// What is done to the bytes of a CString: cutting, inserting, removing, replacing, trimming, ASCII case.
///
/// Only bytes: a multi-byte character is nothing special here. Every argument is clamped to the text first,
/// so that the arithmetic behind it can't leave the buffer.

#include <algorithm>
#include <cstring>

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

int CString::Replace(char oldCharacter, char newCharacter) {
    const auto replaced = std::count(m_text, m_text + GetLength(), oldCharacter);
    if (replaced == 0 || oldCharacter == newCharacter) return static_cast<int>(replaced);
    MakeWritable(0, false);
    std::replace(m_text, m_text + GetLength(), oldCharacter, newCharacter);
    return static_cast<int>(replaced);
}

int CString::Replace(const char* oldText, const char* newText) {
    const std::string_view searched = ViewOf(oldText);
    const std::string_view inserted = ViewOf(newText);
    if (searched.empty()) return 0;
    const std::string_view source = View();
    int replaced = 0;
    std::size_t from = 0;
    CString result;
    for (std::size_t hit = source.find(searched); hit != std::string_view::npos;
         hit = source.find(searched, from)) {
        result.Append(source.substr(from, hit - from)).Append(inserted);
        from = hit + searched.size();
        ++replaced;
    }
    if (replaced == 0) return 0;
    result.Append(source.substr(from));
    Swap(result);
    return replaced;
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
    if (std::any_of(m_text, m_text + GetLength(), [](char byte) { return LowerAscii(byte) != byte; })) {
        MakeWritable(0, false);
        std::transform(m_text, m_text + GetLength(), m_text, LowerAscii);
    }
    return *this;
}

CString& CString::MakeUpper() {
    if (std::any_of(m_text, m_text + GetLength(), [](char byte) { return UpperAscii(byte) != byte; })) {
        MakeWritable(0, false);
        std::transform(m_text, m_text + GetLength(), m_text, UpperAscii);
    }
    return *this;
}
