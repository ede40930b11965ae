/// @file
/// CStringArray: the framework's array of narrow strings, with the searches and sorts over it.
///
/// For plain narrow texts that come and go in lists: command lines, quoted lists. Sets of names are
/// std::set<CStringIU>.
///
/// Like CString it never fails on an index: outside of the array there is empty text, and nothing to set.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <utility>
#include <vector>

#include "vapp/text/CString.h"

/// An array of texts, a std::vector underneath.
class CStringArray {
public:
    CStringArray() = default;
    CStringArray(std::initializer_list<CString> texts) : m_texts(texts) {}

    [[nodiscard]] int GetSize() const noexcept { return static_cast<int>(m_texts.size()); }
    [[nodiscard]] bool IsEmpty() const noexcept { return m_texts.empty(); }
    /// The text at an index; empty text outside of the array.
    [[nodiscard]] CString GetAt(int index) const { return Holds(index) ? m_texts[Place(index)] : CString(); }
    [[nodiscard]] CString operator[](int index) const { return GetAt(index); }
    /// Replaces the text at an index; nothing happens outside of the array.
    void SetAt(int index, CString text) {
        if (Holds(index)) m_texts[Place(index)] = std::move(text);
    }
    /// Appends a text; gives its index.
    int Add(CString text) {
        m_texts.push_back(std::move(text));
        return GetSize() - 1;
    }
    void RemoveAll() noexcept { m_texts.clear(); }

    [[nodiscard]] auto begin() noexcept { return m_texts.begin(); }
    [[nodiscard]] auto end() noexcept { return m_texts.end(); }
    [[nodiscard]] auto begin() const noexcept { return m_texts.begin(); }
    [[nodiscard]] auto end() const noexcept { return m_texts.end(); }
    friend bool operator==(const CStringArray&, const CStringArray&) = default;

private:
    [[nodiscard]] static std::size_t Place(int index) noexcept { return static_cast<std::size_t>(index); }
    [[nodiscard]] bool Holds(int index) const noexcept { return index >= 0 && index < GetSize(); }

    std::vector<CString> m_texts;
};

namespace vapp_text {

/// The first index whose text is equal, with case or with ASCII letters folded; -1 for none.
[[nodiscard]] int FindInArray(const CStringArray& array, const CString& text) noexcept;
[[nodiscard]] int FindInArrayNoCase(const CStringArray& array, const CString& text) noexcept;

/// Sorts by bytes, or with ASCII letters folded. The sort is the C library's and not stable: the order of
/// texts that differ only in case is left to it, and need not be the same on every system.
void SortArray(CStringArray& array);
void SortArrayNoCase(CStringArray& array);

}  // namespace vapp_text
