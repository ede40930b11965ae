/// @file
/// Writing and reading quoted lists: runs of plain bytes are copied at once, only quotes and backslashes are
/// looked at one by one.

#include "text/QuotedList.h"

#include <string>
#include <string_view>

namespace vapp_text {

namespace {

constexpr char cnQuote = '"';
constexpr char cnEscape = '\\';
constexpr std::string_view csSpecial = "\"\\";

void AppendEscaped(std::string_view item, std::string& out) {
    for (std::size_t special = item.find_first_of(csSpecial); special != std::string_view::npos;
         special = item.find_first_of(csSpecial)) {
        out.append(item.substr(0, special)).append({cnEscape, item[special]});
        item.remove_prefix(special + 1);
    }
    out.append(item);
}

/// Reads an item from behind its quote into `item` and moves `text` behind the closing one; false where none
/// comes.
bool ReadItem(std::string_view& text, std::string& item) {
    item.clear();
    for (;;) {
        const std::size_t special = text.find_first_of(csSpecial);
        if (special == std::string_view::npos) return false;
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
    std::string joined;
    for (const CString& item : array) {
        if (!joined.empty()) joined += ',';
        joined += cnQuote;
        AppendEscaped(item.View(), joined);
        joined += cnQuote;
    }
    return CString(joined);
}

int SplitQuoted(const CString& text, CStringArray& array) {
    const CString source = text;  // a share: the text may be an element of the array
    array.RemoveAll();
    std::string_view left = source.View();
    std::string item;
    for (std::size_t quote = left.find(cnQuote); quote != std::string_view::npos;
         quote = left.find(cnQuote)) {
        left.remove_prefix(quote + 1);
        if (!ReadItem(left, item)) break;
        array.Add(CString(item));
    }
    return array.GetSize();
}

}  // namespace vapp_text
