/// @file
/// The columns of the report: texts, icons, order and defaults, and the two ways in which a host adds its
/// own.
#include <array>
#include <cstring>
#include <memory>

#include "celllist/ColumnSort.h"
#include "text/NaturalOrder.h"
#include "text/Search.h"
#include "vapp/browser/StateWords.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/celllist/TCellNamesReportCtrl.h"

namespace vapp_library_browser {

namespace {

using TReport = TCellNamesReportCtrl;

constexpr int cnFirstWidth = 50;

// Queries in the order in which they are sent; the first that is answered by a number other than 0 gives the
// icon.
struct IconQuery {
    const char* start;
    int icon;
};
constexpr std::array cnIconQueries = {
    IconQuery{"database cellviewinfo is_fab ", 3},
    IconQuery{"database cellviewinfo is_stdviadef ", 13},
    IconQuery{"database cellviewinfo is_customviadef ", 19},
    IconQuery{"database cellviewinfo is_guardring ", 16},
    IconQuery{"database cellviewinfo is_vcell ", 6},
};

// The interpreter is taken anew for each line: the one before may have ended or replaced it.
bool AskFlag(const TLibraryView& view, const char* start, const TLineBuilder& subject) {
    TLineBuilder line(start);
    line.Literal(subject.View());
    return AskTclFlag(view.GetTclInterp(), line.GetString());
}

}  // namespace

TReport::TColumn::TColumn(TCellNamesReportCtrl& report, int itemIndex, const CStringU& caption)
    : CXTPReportColumn(itemIndex, caption.ToAnsi(), (CStringU("column_") + caption).ToAnsi(), cnFirstWidth),
      m_report(report) {}

TReport::TColumn::~TColumn() = default;

bool TReport::TColumn::MatchesFilter(const TLibCellView& cell, const CStringU& text, bool caseSensitive) {
    const CStringU own = GetCellText(cell);
    if (caseSensitive) return std::strstr(own.Payload(), text.Payload()) != nullptr;
    return vapp_text::FindTextNoCaseU(own.Payload(), text.Payload()) >= 0;
}

int TReport::TColumn::CompareCells(const TLibCellView& left, const TLibCellView& right) {
    const auto text = [this](const TLibCellView& cell) {
        return m_sortTexts != nullptr ? m_sortTexts->At(cell) : GetCellText(cell);
    };
    return vapp_text::CompareNaturalNoCase(text(left), text(right));
}

int TReport::TColumn::GetCellIcon(const TLibCellView& /*cell*/) {
    return -1;
}

int TReport::TColumn::GetDefaultWidth(int setup) {
    return m_defaultWidth[setup >= 0 && setup < cnSetupCount ? setup : 0];
}

bool TReport::TColumn::GetDefaultVisible(int setup) {
    return m_defaultVisible[setup >= 0 && setup < cnSetupCount ? setup : 0];
}

TReport::TColCellName::TColCellName(TCellNamesReportCtrl& report, int itemIndex)
    : TColumn(report, itemIndex, "Cell") {
    m_defaultWidth[Setup1] = 140;
    m_defaultWidth[Setup2] = 140;
    m_defaultWidth[Setup3] = 120;
}

CStringU TReport::TColCellName::GetCellText(const TLibCellView& cell) {
    return cell.cell;
}

int TReport::TColCellName::GetCellIcon(const TLibCellView& cell) {
    const TLibraryView* view = GetReport().GetPane().GetLibraryView();
    if (view == nullptr || view->GetQEdit()) return -1;
    const CStringU design = view->GetSelectedDesign();
    if (design.IsEmpty()) return -1;
    TLineBuilder subject;
    subject.Name(design).Literal(" ").Triple(cell).Literal(" ");
    int icon = 0;
    for (const IconQuery& query : cnIconQueries) {
        if (!AskFlag(*view, query.start, subject)) continue;
        icon = query.icon;
        break;
    }
    if (AskFlag(*view, "database cellviewinfo is_lockedbyuser ", subject)) ++icon;
    return icon == 0 ? -1 : icon;
}

TReport::TColViewName::TColViewName(TCellNamesReportCtrl& report, int itemIndex)
    : TColumn(report, itemIndex, "View") {
    m_defaultWidth[Setup1] = 60;
    m_defaultWidth[Setup2] = 60;
}

CStringU TReport::TColViewName::GetCellText(const TLibCellView& cell) {
    return cell.view;
}

TReport::TColLibName::TColLibName(TCellNamesReportCtrl& report, int itemIndex)
    : TColumn(report, itemIndex, "Library") {
    m_defaultWidth[Setup1] = 60;
    m_defaultWidth[Setup2] = 60;
}

CStringU TReport::TColLibName::GetCellText(const TLibCellView& cell) {
    return cell.library;
}

TReport::TCustomColumn::TCustomColumn(TCellNamesReportCtrl& report, int itemIndex, const CStringU& caption,
                                      const CStringU& tclCommand, TGetText getText, bool sortForward,
                                      bool hideInThirdSetup)
    : TColumn(report, itemIndex, caption), m_tclCommand(tclCommand), m_sortForward(sortForward) {
    if (getText != nullptr) m_getText = getText;
    m_defaultVisible[Setup1] = false;
    m_defaultVisible[Setup3] = !hideInThirdSetup;
}

int TReport::TCustomColumn::CompareCells(const TLibCellView& left, const TLibCellView& right) {
    const int order = vapp_text::CompareNatural(left.sortKey, right.sortKey, false);
    return m_sortForward ? order : -order;
}

CStringU TReport::TCustomColumn::GetCellText(const TLibCellView& cell) {
    const TLibraryView* view = GetReport().GetPane().GetLibraryView();
    if (view == nullptr) return csEmpty;
    if (m_getText) return m_getText(cell);
    const CStringU design = view->GetSelectedDesign();
    if (design.IsEmpty()) return csEmpty;
    TLineBuilder line;
    line.Text(m_tclCommand).Literal(" ").Name(design).Literal(" ").Triple(cell);
    return AskTclText(view->GetTclInterp(), line.GetString());
}

void TReport::AddColumn(const CStringU& caption, const CStringU& tclCommand, bool sortForward,
                        bool hideInThirdSetup) {
    AddColumn(std::make_unique<TCustomColumn>(*this, m_columnCounter++, caption, tclCommand, nullptr,
                                              sortForward, hideInThirdSetup));
}

void TReport::AddColumn(const CStringU& caption, TGetText getText, bool sortForward, bool hideInThirdSetup) {
    AddColumn(std::make_unique<TCustomColumn>(*this, m_columnCounter++, caption, CStringU(), getText,
                                              sortForward, hideInThirdSetup));
}

void TReport::AddBuiltInColumns() {
    AddColumn(std::make_unique<TColCellName>(*this, m_columnCounter++));
    AddColumn(std::make_unique<TColViewName>(*this, m_columnCounter++));
    AddColumn(std::make_unique<TColLibName>(*this, m_columnCounter++));
}

}  // namespace vapp_library_browser
