/// @file
/// Writing and reading quoted lists: runs of plain bytes are copied at once, only quotes and backslashes are
/// looked at one by one. A list is written once, at its final size.

#include "text/QuotedList.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace vapp_text {

namespace {

constexpr char cnQuote = '"';
constexpr char cnEscape = '\\';

bool IsSpecial(char byte) {
    return byte == cnQuote || byte == cnEscape;
}

// A loop, for the library's search for one of a set makes a call for each byte.
std::size_t FindSpecial(std::string_view text) {
    return static_cast<std::size_t>(std::find_if(text.begin(), text.end(), IsSpecial) - text.begin());
}

std::size_t QuotedSize(std::string_view item) {
    return item.size() + static_cast<std::size_t>(std::count_if(item.begin(), item.end(), IsSpecial)) + 2;
}

char* WriteQuoted(std::string_view item, char* out) {
    *out++ = cnQuote;
    for (std::size_t special = FindSpecial(item); special < item.size(); special = FindSpecial(item)) {
        out += item.copy(out, special);
        *out++ = cnEscape;
        *out++ = item[special];
        item.remove_prefix(special + 1);
    }
    out += item.copy(out, item.size());
    *out++ = cnQuote;
    return out;
}

/// Reads an item from behind its quote into `item` and moves `text` behind the closing one; false where none
/// comes.
bool ReadItem(std::string_view& text, std::string& item) {
    item.clear();
    for (;;) {
        const std::size_t special = FindSpecial(text);
        if (special == text.size()) return false;
        item.append(text.substr(0, special));
        const bool closes = text[special] == cnQuote;
        text.remove_prefix(special + 1);
        if (closes) return true;
        if (text.empty()) return false;
        item += text.front();
        text.remove_prefix(1);
    }
}

}  // namespace

CString JoinQuoted(const CStringArray& array) {
    std::size_t size = 0;
    for (const CString& item : array)
        size += QuotedSize(item.View()) + (size > 0 ? 1 : 0);
    return CString::Filled(size, [&](char* out) {
        const char* const start = out;
        for (const CString& item : array) {
            if (out != start) *out++ = ',';
            out = WriteQuoted(item.View(), out);
        }
    });
}

int SplitQuoted(const CString& text, CStringArray& array) {
    const CString source = text;  // a share: the text may be an element of the array
    array.RemoveAll();
    std::string_view left = source.View();
    std::string unescaped;
    for (std::size_t quote = left.find(cnQuote); quote != std::string_view::npos;
         quote = left.find(cnQuote)) {
        left.remove_prefix(quote + 1);
        const std::size_t special = FindSpecial(left);
        if (special < left.size() && left[special] == cnQuote) {
            array.Add(CString(left.substr(0, special)));
            left.remove_prefix(special + 1);
            continue;
        }
        if (!ReadItem(left, unescaped)) break;
        array.Add(CString(unescaped));
    }
    return array.GetSize();
}

}  // namespace vapp_text
