/// @file
/// How a row looks, asked of the host at the moment of painting.
///
/// Between any two lines the host may have populated anew, so the row is copied first and never looked up
/// again; the record itself is kept alive by the report while it is being asked.
#include <string_view>

#include "vapp/browser/HostCallScope.h"
#include "vapp/browser/StateWords.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/celllist/TCellNamesReportCtrl.h"

namespace vapp_library_browser {

namespace {

using TReport = TCellNamesReportCtrl;

constexpr COLORREF cnReservedBack = 0xE6E6FF;
constexpr COLORREF cnUnresolvedText = 0x0000DF;
constexpr COLORREF cnHiddenUnresolvedText = 0x0000BF;
constexpr COLORREF cnHiddenText = 0x808080;

// Asks about one cell view: "START design library cell view ". The interpreter is taken anew for each
// question: the one before may have ended or replaced it.
class Questions {
public:
    Questions(const TLibraryView& view, const CStringU& design, const TLibCellView& cell) : m_view(view) {
        m_subject.Name(design).Literal(" ").Triple(cell).Literal(" ");
    }
    [[nodiscard]] TTclObject Ask(std::string_view start) const {
        TLineBuilder line(start);
        line.Literal(m_subject.View());
        return AskTcl(m_view.GetTclInterp(), line.GetString());
    }
    [[nodiscard]] bool IsTrue(std::string_view start) const { return ReadFlag(Ask(start).Get()); }

private:
    const TLibraryView& m_view;
    TLineBuilder m_subject;
};

bool IsUnresolved(std::string_view state) {
    return state == csUnresolved.PayloadView() || state == csCycle.PayloadView();
}

}  // namespace

TReport::TRecord::TRecord(TCellNamesReportCtrl& report) : m_report(report) {
    for (int column = 0; column < report.GetColumns().GetCount(); ++column)
        AddItem(CXTPReportRecordItem());
}

void TReport::TRecord::GetItemMetrics(const CXTPReportRecordItemDrawArgs& drawArgs,
                                      CXTPReportRecordItemMetrics& metrics) {
    const HostCallScope scope;
    TCellNamesReportCtrl& report = m_report;
    auto* column = dynamic_cast<TColumn*>(drawArgs.column);
    const TLibCellView cell = report.GetCell(drawArgs.row);
    if (column == nullptr || cell.cell.IsEmpty()) return;
    metrics.text = column->GetCellText(cell).ToAnsi();
    metrics.icon = column->GetCellIcon(cell);

    const TLibraryView* view = report.GetPane().GetLibraryView();
    const CStringU design = view != nullptr ? view->GetSelectedDesign() : CStringU();
    if (design.IsEmpty()) return;
    const Questions questions(*view, design, cell);
    const bool modified = questions.IsTrue("database cellviewinfo is_modified ");
    if (modified && dynamic_cast<TColCellName*>(column) != nullptr)
        metrics.font = &XTPPaintManager::GetRegularBoldFont();
    if (report.m_options.colorReservedCells && questions.IsTrue("database cellviewinfo is_reserved "))
        metrics.background = cnReservedBack;
    const bool hiddenInLists = questions.IsTrue("database cellviewinfo is_hiddeninlists ");
    const bool hidden = hiddenInLists && report.m_options.colorHiddenCells;
    const TTclObject cache = questions.Ask("database cellviewinfo cache ");
    if (!cache) return;
    if (report.m_options.colorUnresolvedCells && IsUnresolved(ReadBytes(cache.Get()))) {
        metrics.foreground = hidden ? cnHiddenUnresolvedText : cnUnresolvedText;
    } else if (hidden) {
        metrics.foreground = cnHiddenText;
    }
}

TReport::TReportHeader::TReportHeader(TCellNamesReportCtrl& report)
    : CXTPReportHeader(report), m_report(report) {}

void TReport::TReportHeader::OnColumnsChanged(int change, CXTPReportColumn* column) {
    m_report.OnColumnsChanged(change, column);
    CXTPReportHeader::OnColumnsChanged(change, column);
}

}  // namespace vapp_library_browser
