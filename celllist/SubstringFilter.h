/// @file
/// SubstringFilter: which rows hold the text that the user typed, in one of the columns that are searched.
///
/// It looks at shown texts and asks the host only for columns of the host. Built-in columns are tested once
/// for each distinct name.
#pragma once

#include <optional>
#include <vector>

#include "celllist/CellRows.h"
#include "celllist/NameSearch.h"
#include "vapp/celllist/TCellNamesReportCtrl.h"

namespace vapp_library_browser {

class SubstringFilter {
public:
    /// Notes the visible columns that are searched, in their order.
    SubstringFilter(const TCellNamesReportCtrl& report, const CStringU& text);

    /// True if the test of a row may ask the host.
    [[nodiscard]] bool MayAskHost() const;
    /// Drops the rows that don't hold the text; none if there is no text.
    void Apply(CellRows& rows);

private:
    struct Test {
        TCellNamesReportCtrl::TColumn* column = nullptr;
        std::optional<NameRole> role;    ///< of a built-in column
        std::vector<NameAnswer> answer;  ///< by number of the name
    };

    [[nodiscard]] bool Matches(Test& test, const CellRows& rows, std::size_t row) const;

    CStringU m_text;
    bool m_caseSensitive;
    std::vector<Test> m_tests;
};

}  // namespace vapp_library_browser
