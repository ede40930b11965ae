/// @file
/// How the rows are fetched anew, and how selection, focus and scroll position come through it.
///
/// The new rows are gathered aside and shown at the end, so that host script which runs in the middle sees an
/// empty list and never half of one.
#include <algorithm>
#include <array>
#include <climits>
#include <memory>
#include <optional>
#include <utility>

#include "celllist/CellLines.h"
#include "celllist/CellRows.h"
#include "celllist/CellSet.h"
#include "celllist/ColumnSort.h"
#include "celllist/CountFormat.h"
#include "celllist/RowOrder.h"
#include "celllist/SubstringFilter.h"
#include "toolkit/FlagGuard.h"
#include "vapp/browser/HostCallScope.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/PendingHighlight.h"
#include "vapp/browser/StateWords.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/browser/TSymbolPreview.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/celllist/TCellNamesReportCtrl.h"

namespace vapp_library_browser {

namespace {

using TReport = TCellNamesReportCtrl;

constexpr char csNoCells[] = "__$$Translatable$$_No cells";
constexpr char csAllFilteredOut[] = "__$$Translatable$$_All %Iu cells are filtered out";
constexpr char csCells[] = "__$$Translatable$$_%Iu cells";
constexpr char csCellsOfCells[] = "__$$Translatable$$_%Iu of %Iu cells";

constexpr COLORREF cnFilteredList = 0xE8FAFF;
constexpr COLORREF cnFilteredListDark = 0x003C46;

struct ThemeColor {
    TReportColor color;
    COLORREF dark;
};
constexpr std::array cnThemeColors = {
    ThemeColor{TReportColor::ControlBack, cnDarkBackground},
    ThemeColor{TReportColor::ControlText, 0xFFFFFF},
    ThemeColor{TReportColor::HeaderBack, cnDarkBackground},
    ThemeColor{TReportColor::HeaderText, 0xFFFFFF},
    ThemeColor{TReportColor::GrayText, 0xA0A0A0},
};

template <typename... Counts>
CStringU Worded(const char* key, Counts... counts) {
    return CStringU::Formatted(CountFormat(key), counts...);
}

// The interpreter is taken anew for each line: the one before may have ended or replaced it.
TTclObject Send(const CellQuery& query, void (*append)(const CellQuery&, TLineBuilder&),
                const TLibraryView& view) {
    TLineBuilder line;
    append(query, line);
    return AskTcl(view.GetTclInterp(), line.GetString());
}

// The text of a host's column may cost a line: it is fetched once for each row and never during the sort.
RowKeys KeysOf(const CellRows& rows, const RowOrderPart& part) {
    RowKeys keys;
    keys.forward = part.keyForward;
    keys.ofRow.reserve(rows.Count());
    for (std::size_t row = 0; row < rows.Count(); ++row) {
        const CStringU text = part.keyColumn != nullptr ? part.keyColumn->GetCellText(rows.At(row)) : csEmpty;
        keys.ofRow.push_back(keys.texts.Intern(text.Payload()));
    }
    return keys;
}

// What the column finds equal stands in the order of the names behind it.
void ArrangeByCompare(CellRows& rows, const RowOrderPart& part) {
    rows.ArrangeByTies(part.names);
    std::vector<TLibCellView> cells;
    cells.reserve(rows.Count());
    for (std::size_t row = 0; row < rows.Count(); ++row)
        cells.push_back(rows.At(row));
    rows.Reorder(SortByColumn(*part.keyColumn, part.keyForward, cells));
}

void ArrangeByPart(CellRows& rows, const RowOrderPart& part) {
    if (part.comparesCells) {
        ArrangeByCompare(rows, part);
    } else {
        rows.ArrangeByKeys(KeysOf(rows, part), part.names);
    }
}

}  // namespace

/// What the user sees of the list before a population.
class TCellNamesReportCtrl::SavedView {
public:
    explicit SavedView(const TCellNamesReportCtrl& report) {
        CellSet::Adder adder(selection, *report.m_cells);
        const std::size_t rowCount = report.m_cells->Count();
        for (const RowSelection::Range& range : report.GetSelectedRows().GetSelection().GetRanges()) {
            for (int row = range.first; row <= range.last; ++row) {
                if (static_cast<std::size_t>(row) >= rowCount) break;
                adder.Add(static_cast<std::size_t>(row));
            }
        }
        if (const auto row = report.GetFocusedRow()) focus = row->GetIndex();
        distance = focus - report.GetTopRowIndex();
    }

    CellSet selection;
    int focus = 0;
    int distance = 0;  ///< rows between the first one shown and the focused one
};

void TReport::Populate() {
    if (!IsWindow()) return;
    // Rows are being fetched further up on the stack; what the host wants to see anew is asked for when that
    // has come to its end.
    if (m_populating) {
        m_postponed = true;
        return;
    }
    m_postponed = false;
    {
        const HostCallScope scope;
        const FlagGuard populating(m_populating);
        const FlagGuard ignoring(m_ignoreSelectionChange);
        const SavedView saved(*this);
        m_populated = false;
        GetSelectedRows().Clear();
        m_cells = std::make_unique<CellRows>();
        if (m_pane.GetLibraryView() == nullptr || FetchRows()) {
            m_populated = true;
            ShowRows(saved);
        }
    }
    if (m_postponed) m_pane.SetNeedsPopulate(true);
}

// False if the host gave no proper answer: the list stays empty, and what is written about it stays.
bool TReport::FetchRows() {
    const bool dark = gIsDarkTheme();
    ApplyTheme(dark);
    // The main window, which was asked for the theme, may have taken the neighbour away.
    const TLibraryView* view = m_pane.GetLibraryView();
    if (view == nullptr) return false;
    const CStringU design = view->GetSelectedDesign();
    if (design.IsEmpty()) {
        BlankStatus();
        return true;
    }
    const CStringU sanitised = SanitizeTclInput(design);
    const TTclObject count = Send(MakeQuery(sanitised), &AppendCountLine, *view);
    if (!count) return false;
    const int total = ReadInteger(count.Get()).value_or(0);
    std::optional<CellRows> rows;
    {
        const TTclObject list = Send(MakeQuery(sanitised), &AppendListLine, *view);
        if (list) rows = CellRows::Read(list.Get());
    }
    if (!rows) return false;
    ArrangeRows(*rows, total, dark);
    *m_cells = std::move(*rows);
    return true;
}

CellQuery TReport::MakeQuery(const CStringU& design) const {
    CellQuery query;
    query.design = design;
    query.showHiddenCells = m_options.showHiddenCells;
    query.showVias = m_options.showVias;
    query.views = m_options.viewFilter;
    query.filterType = m_pane.GetDropDownFilter();
    const TLibraryView* view = m_pane.GetLibraryView();
    if (view == nullptr) return query;
    query.selectedLibraries = view->GetSelectedLibrariesSet();
    query.allLibraries = view->GetAllLibrariesSet();
    if (view->GetQEdit()) query.tab = m_pane.GetSetupTab();
    return query;
}

// Where the host is asked about rows, it is asked in the order of the set, which is known without asking.
void TReport::ArrangeRows(CellRows& rows, int total, bool dark) {
    const RowOrder order = RowOrder::Read(GetColumns());
    SubstringFilter filter(*this, m_pane.GetFilterText());
    if (filter.MayAskHost() || !order.IsByNamesAlone()) {
        rows.ArrangeAsSet();
        filter.Apply(rows);
        WordStatus(rows.Count(), total, dark);
        SortRows(rows, order);
        return;
    }
    rows.ArrangeByNames(order.parts[0].names, true);
    filter.Apply(rows);
    WordStatus(rows.Count(), total, dark);
}

// From the least important part to the most important one, each of which keeps what the others have done
// where it finds no difference.
void TReport::SortRows(CellRows& rows, const RowOrder& order) {
    if (order.IsByNamesAlone()) {
        rows.ArrangeByNames(order.parts[0].names, false);
        return;
    }
    std::for_each(order.parts.rbegin(), order.parts.rend(),
                  [&rows](const RowOrderPart& part) { ArrangeByPart(rows, part); });
}

void TReport::ApplyTheme(bool dark) {
    for (const ThemeColor& color : cnThemeColors)
        GetPaintManager().SetCustomColor(color.color, dark ? color.dark : cnNoColor);
}

void TReport::BlankStatus() {
    m_pane.SetStatusText(CStringU());
    GetPaintManager().SetNoItemsText("");
    GetPaintManager().SetCustomColor(TReportColor::FilteredList, cnNoColor);
}

// The colour of a filtered list goes back only when no design is selected: once a filter has hidden rows, it
// stays while the design does, also after the filter is gone.
void TReport::WordStatus(std::size_t rows, int answeredTotal, bool dark) {
    // A host may answer anything; less than nothing is nothing.
    const std::size_t total = answeredTotal < 0 ? 0 : static_cast<std::size_t>(answeredTotal);
    if (rows < total) {
        GetPaintManager().SetNoItemsText(Worded(csAllFilteredOut, total).ToAnsi());
        if (m_options.colorFilteredList) {
            GetPaintManager().SetCustomColor(TReportColor::FilteredList,
                                             dark ? cnFilteredListDark : cnFilteredList);
        }
    } else if (total == 0) {
        GetPaintManager().SetNoItemsText(Worded(csNoCells).ToAnsi());
    }
    m_pane.SetStatusText(rows == total ? Worded(csCells, total) : Worded(csCellsOfCells, rows, total));
}

void TReport::ShowRows(const SavedView& saved) {
    const std::size_t count = m_cells->Count();
    SetVirtualMode(std::make_unique<TRecord>(*this), count > INT_MAX ? INT_MAX : static_cast<int>(count));
    CXTPReportControl::Populate();
    // Taken away before it is used: whatever happens, the next population must not find it again.
    if (const std::unique_ptr<TLibCellView> highlight = std::move(gPendingHighlight())) {
        ShowHighlight(*highlight);
        return;
    }
    ShowRowsAsBefore(saved);
    if (TSymbolPreview* preview = m_pane.GetPreviewView()) preview->DisplayNewPreview();
}

// The focus stays with the number of the row, the selection with its names.
void TReport::ShowRowsAsBefore(const SavedView& saved) {
    BeginUpdate();
    const std::optional<CXTPReportRow> focused = GetRows().GetAt(saved.focus);
    if (focused) SetFocusedRow(*focused);
    GetSelectedRows().Clear();
    SelectRows(saved.selection);
    if (saved.distance >= 0 && focused && saved.focus - saved.distance > 0)
        SetTopRow(saved.focus - saved.distance);
    EndUpdate();
}

void TReport::ShowHighlight(const TLibCellView& cell) {
    GetSelectedRows().Clear();
    const std::optional<std::size_t> found = m_cells->Find(cell.library, cell.cell, &cell.view);
    if (!found) return;
    const CXTPReportRow row(static_cast<int>(*found));
    BeginUpdate();
    GetSelectedRows().Select(row);
    SetFocusedRow(row);
    EndUpdate();
    SetFocus();
}

}  // namespace vapp_library_browser
