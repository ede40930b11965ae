/// @file
/// What is done to the bytes of a CString: cutting, inserting, removing, replacing, trimming, ASCII case.
///
/// Only bytes: a multi-byte character is nothing special here. Every argument is clamped to the text first,
/// so that the arithmetic behind it can't leave the buffer.

#include <algorithm>
#include <cstring>

#include "text/ByteReplacement.h"
#include "text/LinearSearch.h"
#include "text/Words.h"
#include "vapp/text/CString.h"

namespace {

using vapp_text::cnWordBytes;
using vapp_text::Word;

constexpr std::string_view csWhiteSpace = " \t\n\v\f\r";

int Clamp(int index, int length) {
    return std::clamp(index, 0, length);
}

// Where the first word begins that has another form; the text's size for none. A last word may overlap with
// the one before it.
template <typename Form>
std::size_t FirstToForm(std::string_view text, const Form& form) {
    const char* const bytes = text.data();
    const std::size_t size = text.size();
    if (size < cnWordBytes) {
        const Word part = vapp_text::LoadPart(bytes, size);
        return form(part) != part ? 0 : size;
    }
    for (std::size_t at = 0; at < size; at += cnWordBytes) {
        const std::size_t from = std::min(at, size - cnWordBytes);
        const Word word = vapp_text::LoadWord(bytes + from);
        if (form(word) != word) return from;
    }
    return size;
}

// Writes the form of each byte; `to` may be where the text lies. What has its form keeps it, so that words
// may overlap.
template <typename Form>
void WriteForms(std::string_view text, char* to, const Form& form) {
    const char* const bytes = text.data();
    const std::size_t size = text.size();
    if (size < cnWordBytes) {
        vapp_text::StorePart(to, size, form(vapp_text::LoadPart(bytes, size)));
        return;
    }
    for (std::size_t at = 0; at < size; at += cnWordBytes) {
        const std::size_t from = std::min(at, size - cnWordBytes);
        vapp_text::StoreWord(to + from, form(vapp_text::LoadWord(bytes + from)));
    }
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

// Gives every byte its form, eight at a time; what already has it stays shared.
template <typename Form>
CString& CString::MakeForm(const Form& form) {
    const std::string_view text = View();
    const std::size_t first = FirstToForm(text, form);
    if (first == text.size()) return *this;
    if (!IsShared()) {
        WriteForms(text.substr(first), m_text + first, form);
        return *this;
    }
    CString formed(TUnfilled(), text.size());
    WriteForms(text, formed.m_text, form);
    Swap(formed);
    return *this;
}

int CString::Replace(char oldCharacter, char newCharacter) {
    const std::string_view text = View();
    if (oldCharacter == newCharacter)
        return static_cast<int>(std::count(text.begin(), text.end(), oldCharacter));
    const vapp_text::ByteReplacement replacement(oldCharacter, newCharacter);
    if (!IsShared()) return static_cast<int>(replacement.Copy(m_text, m_text, text.size()));
    if (text.find(oldCharacter) == std::string_view::npos) return 0;
    CString changed(TUnfilled(), text.size());
    const std::size_t replaced = replacement.Copy(m_text, changed.m_text, text.size());
    Swap(changed);
    return static_cast<int>(replaced);
}

int CString::Replace(const char* oldText, const char* newText) {
    const std::string_view searched = ViewOf(oldText);
    const std::string_view inserted = ViewOf(newText);
    if (searched.empty()) return 0;
    const std::string_view source = View();
    vapp_text::LinearSearch search(searched);
    const std::size_t first = search.Find(source, 0);
    std::size_t hits = 0;
    for (std::size_t at = first; at != std::string_view::npos; at = search.Find(source, at + searched.size()))
        ++hits;
    if (hits == 0) return 0;
    CString result = Filled(source.size() - hits * searched.size() + hits * inserted.size(), [&](char* out) {
        std::size_t from = 0;
        std::size_t hit = first;
        for (std::size_t left = hits; left > 0; --left) {
            out += source.copy(out, hit - from, from);
            out += inserted.copy(out, inserted.size());
            from = hit + searched.size();
            if (left > 1) hit = search.Find(source, from);
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
    return MakeForm([](Word word) { return vapp_text::LowerWord(word); });
}

CString& CString::MakeUpper() {
    return MakeForm([](Word word) { return vapp_text::UpperWord(word); });
}
