/// @file
/// Comparing, finding and tokenising the bytes of a CString. Nothing here changes a text, and nothing fails:
/// a start outside of the text finds nothing.

#include <algorithm>
#include <cstring>

#include "vapp/text/CString.h"

namespace {

unsigned FoldedByte(char byte) {
    const unsigned value = static_cast<unsigned char>(byte);
    return value - 'A' < 26U ? value + 32U : value;
}

int ToIndex(std::size_t found) {
    return found == std::string_view::npos ? -1 : static_cast<int>(found);
}

}  // namespace

int CString::CompareFolded(std::string_view right) const noexcept {
    const std::string_view left = View();
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i) {
        const unsigned a = FoldedByte(left[i]);
        const unsigned b = FoldedByte(right[i]);
        if (a != b) return a < b ? -1 : 1;
    }
    return left.size() == right.size() ? 0 : left.size() < right.size() ? -1 : 1;
}

int CString::Find(char character, int start) const noexcept {
    if (start < 0 || start > GetLength()) return -1;
    return ToIndex(View().find(character, static_cast<std::size_t>(start)));
}

int CString::Find(const char* text, int start) const noexcept {
    if (text == nullptr || start < 0 || start > GetLength()) return -1;
    return ToIndex(View().find(text, static_cast<std::size_t>(start)));
}

int CString::ReverseFind(char character) const noexcept {
    return ToIndex(View().rfind(character));
}

int CString::FindOneOf(const char* set) const noexcept {
    return ToIndex(View().find_first_of(ViewOf(set)));
}

CString CString::SpanIncluding(const char* set) const {
    const int behind = ToIndex(View().find_first_not_of(ViewOf(set)));
    return behind < 0 ? *this : Left(behind);
}

CString CString::SpanExcluding(const char* set) const {
    const int behind = FindOneOf(set);
    return behind < 0 ? *this : Left(behind);
}

CString CString::Tokenize(const char* separators, int& start) const {
    const std::string_view set = ViewOf(separators);
    const std::string_view text = View();
    const std::size_t from = start < 0 ? text.size() : static_cast<std::size_t>(start);
    const std::size_t first = from < text.size() ? text.find_first_not_of(set, from) : std::string_view::npos;
    if (first == std::string_view::npos) {
        start = -1;
        return {};
    }
    const std::size_t behind = std::min(text.find_first_of(set, first), text.size());
    start = static_cast<int>(std::min(behind + 1, text.size()));
    return CString(text.substr(first, behind - first));
}
