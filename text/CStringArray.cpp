/// @file
/// Searching and sorting arrays of narrow strings, by CString's own compares.
///
/// The sort is the C library's qsort over a table of pointers, on purpose: lists in files of hosts were
/// ordered by it, ties included, and a stable sort would rewrite them.

#include "text/CStringArray.h"

#include <cstdlib>

namespace vapp_text {

namespace {

using EntryOrder = int (*)(const void*, const void*);

const CString& TextBehind(const void* entry) noexcept {
    return **static_cast<const CString* const*>(entry);
}

int CompareEntries(const void* left, const void* right) noexcept {
    return TextBehind(left).Compare(TextBehind(right));
}

int CompareEntriesNoCase(const void* left, const void* right) noexcept {
    return TextBehind(left).CompareNoCase(TextBehind(right));
}

void SortBy(CStringArray& array, EntryOrder compare) {
    if (array.IsEmpty()) return;
    std::vector<CString> copies(array.begin(), array.end());
    std::vector<CString*> table;
    table.reserve(copies.size());
    for (CString& copy : copies)
        table.push_back(&copy);
    std::qsort(table.data(), table.size(), sizeof(CString*), compare);
    auto place = array.begin();
    for (CString* const sorted : table)
        *place++ = std::move(*sorted);
}

template <typename IsHit>
int FindFirst(const CStringArray& array, const IsHit& isHit) noexcept {
    int index = 0;
    for (const CString& text : array) {
        if (isHit(text)) return index;
        ++index;
    }
    return -1;
}

}  // namespace

int FindInArray(const CStringArray& array, const CString& text) noexcept {
    return FindFirst(array, [&](const CString& element) { return element.Compare(text) == 0; });
}

int FindInArrayNoCase(const CStringArray& array, const CString& text) noexcept {
    return FindFirst(array, [&](const CString& element) { return element.CompareNoCase(text) == 0; });
}

void SortArray(CStringArray& array) {
    SortBy(array, &CompareEntries);
}

void SortArrayNoCase(CStringArray& array) {
    SortBy(array, &CompareEntriesNoCase);
}

}  // namespace vapp_text
