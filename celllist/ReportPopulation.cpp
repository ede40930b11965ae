/// @file
/// How the rows are fetched anew, and how selection, focus and scroll position come through it.
///
/// The new rows are gathered aside and shown at the end, so that host script which runs in the middle sees an
/// empty list and never half of one.
#include <climits>
#include <memory>
#include <optional>
#include <utility>

#include "celllist/CellLines.h"
#include "celllist/CellRows.h"
#include "celllist/CellSet.h"
#include "celllist/RowOrder.h"
#include "celllist/SubstringFilter.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/PendingHighlight.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/browser/TSymbolPreview.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/celllist/TCellNamesReportCtrl.h"
#include "vapp/toolkit/Translate.h"

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

// Sets a flag for the time of a scope.
class FlagGuard {
public:
    explicit FlagGuard(bool& flag) : m_flag(flag), m_before(std::exchange(flag, true)) {}
    FlagGuard(const FlagGuard&) = delete;
    FlagGuard& operator=(const FlagGuard&) = delete;
    ~FlagGuard() { m_flag = m_before; }

private:
    bool& m_flag;
    bool m_before;
};

template <typename... Counts>
CStringU Worded(const char* key, Counts... counts) {
    return CStringU::Formatted(CStringU(vlang::gTranslate(key), TextEncoding::Utf8Auto), counts...);
}

TTclObject Send(const CellQuery& query, void (*append)(const CellQuery&, TLineBuilder&), Tcl_Interp* interp) {
    TLineBuilder line;
    append(query, line);
    return AskTcl(interp, line.GetString());
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
    const CStringU design = m_pane.GetLibraryView()->GetSelectedDesign();
    if (design.IsEmpty()) {
        BlankStatus();
        return true;
    }
    const CStringU sanitised = SanitizeTclInput(design);
    Tcl_Interp* interp = m_pane.GetLibraryView()->GetTclInterp();
    const TTclObject count = Send(MakeQuery(sanitised), &AppendCountLine, interp);
    if (!count) return false;
    const int total = ReadInteger(count.Get()).value_or(0);
    std::optional<CellRows> rows;
    {
        const TTclObject list = Send(MakeQuery(sanitised), &AppendListLine, interp);
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
    if (filter.MayAskHost() || order.keyColumn != nullptr || !order.HasAllNames()) {
        rows.ArrangeAsSet();
        filter.Apply(rows);
        WordStatus(rows.Count(), total, dark);
        SortRows(rows, order);
        return;
    }
    rows.ArrangeByNames(order.names, true);
    filter.Apply(rows);
    WordStatus(rows.Count(), total, dark);
}

// The text of a host's column may cost a line: it is fetched once for each row and never during the sort.
void TReport::SortRows(CellRows& rows, const RowOrder& order) {
    if (order.keyColumn == nullptr) {
        rows.ArrangeByNames(order.names, false);
        return;
    }
    RowKeys keys;
    keys.forward = order.keyForward;
    keys.ofRow.reserve(rows.Count());
    for (std::size_t row = 0; row < rows.Count(); ++row)
        keys.ofRow.push_back(keys.texts.Intern(order.keyColumn->GetCellText(rows.At(row)).Payload()));
    rows.ArrangeByKeys(keys, order.names);
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
