/// @file
/// The rows as text: lists for the clipboard, and the dump of the table.
#include <map>
#include <string>

#include "celllist/CellRows.h"
#include "vapp/browser/HostCallScope.h"
#include "vapp/celllist/TCellNamesReportCtrl.h"

namespace vapp_library_browser {

namespace {

using TReport = TCellNamesReportCtrl;

CStringU FromUtf8(const std::string& text) {
    return {text.c_str(), TextEncoding::Utf8Auto};
}

std::vector<TReport::TColumn*> VisibleColumns(const CXTPReportColumns& columns) {
    std::vector<TReport::TColumn*> visible;
    for (int position = 0; position < columns.GetCount(); ++position) {
        auto* column = dynamic_cast<TReport::TColumn*>(columns.GetAt(position));
        if (column != nullptr && column->IsVisible()) visible.push_back(column);
    }
    return visible;
}

std::vector<TReport::TColumn*> ColumnsByCaption(const CXTPReportColumns& columns,
                                                const std::vector<CStringU>& captions) {
    std::map<CString, TReport::TColumn*> byCaption;
    for (int position = 0; position < columns.GetCount(); ++position) {
        auto* column = dynamic_cast<TReport::TColumn*>(columns.GetAt(position));
        if (column != nullptr) byCaption[column->GetCaption()] = column;
    }
    std::vector<TReport::TColumn*> chosen;
    for (const CStringU& caption : captions) {
        const auto found = byCaption.find(caption.ToAnsi());
        if (found != byCaption.end()) chosen.push_back(found->second);
    }
    return chosen;
}

}  // namespace

void TReport::DumpContents(const std::vector<CStringU>& columns, CStringU& out) {
    const HostCallScope scope;
    const std::vector<TColumn*> chosen =
        columns.empty() ? VisibleColumns(GetColumns()) : ColumnsByCaption(GetColumns(), columns);
    out.Empty();
    if (chosen.empty()) return;
    std::string text;
    for (const TColumn* column : chosen)
        text.append(CStringU(column->GetCaption()).Payload()).append(1, ',');
    text.back() = '\n';
    // The text of a host's column may populate the list: by number, with the count read anew for a list that
    // shrinks, and no further than it reached at first for one that grows with every row.
    const std::uint64_t countAtStart = GetCellViewCount();
    for (std::uint64_t row = 0; row < countAtStart && row < GetCellViewCount(); ++row) {
        const TLibCellView cell = GetCell(row);
        for (TColumn* column : chosen)
            text.append(column->GetCellText(cell).Payload()).append(1, ',');
        text.back() = '\n';
    }
    out = FromUtf8(text);
}

CStringU TReport::GetShownCellList() const {
    std::string text;
    for (std::size_t row = 0; row < m_cells->Count(); ++row) {
        const char* cell = m_cells->Name(row, NameRole::Cell).data();
        if (*cell != '\0') text.append(cell).append("\r\n");
    }
    return FromUtf8(text);
}

CStringU TReport::GetShownCellViewList() const {
    std::string text;
    for (std::size_t row = 0; row < m_cells->Count(); ++row) {
        const char* cell = m_cells->Name(row, NameRole::Cell).data();
        if (*cell == '\0') continue;
        text.append(m_cells->Name(row, NameRole::Library).data()).append(" ").append(cell).append(" ");
        text.append(m_cells->Name(row, NameRole::View).data()).append("\r\n");
    }
    return FromUtf8(text);
}

}  // namespace vapp_library_browser
