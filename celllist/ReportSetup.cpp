/// @file
/// The three setups: which columns show, where and how wide, and how that and the list's options are kept.
///
/// NATIVE: captions are in the active code page, names of sections in UTF-8.
#include <array>
#include <map>

#include "vapp/browser/TProfileSection.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/celllist/TCellNamesReportCtrl.h"

namespace vapp_library_browser {

namespace {

using TReport = TCellNamesReportCtrl;

constexpr std::array cnSetupNames = {"Setup1", "Setup2", "Setup3"};
// An order from here on counts as none.
constexpr int cnNoOrder = 9999;

}  // namespace

void TReport::SerializeSetup(bool write) {
    if (write && m_activeSetup.IsEmpty()) m_activeSetup = cnSetupNames[Setup1];
    if (write || m_activeSetup.IsEmpty()) {
        TProfileSection(write).ExchangeText("ActiveSetup", m_activeSetup, cnSetupNames[Setup1]);
        if (!write) {
            const bool isFirst = m_activeSetup == cnSetupNames[Setup1];
            const bool isSecond = m_activeSetup == cnSetupNames[Setup2];
            m_pane.SwitchSetupTab(isFirst ? Setup1 : isSecond ? Setup2 : Setup3);
        }
    }
    SerializeOptions(write);
    SerializeColumns(write);
}

void TReport::SwitchSetup(TColSetup setup) {
    const bool isSetup = setup >= Setup1 && setup <= Setup3;
    const CStringU name = isSetup ? cnSetupNames[static_cast<std::size_t>(setup)] : "";
    if (name == m_activeSetup) return;
    // What stands on the screen is the former setup's, and its name is still the active one here.
    SerializeSetup(true);
    m_activeSetup = name;
    SerializeSetup(false);
    Populate();
}

void TReport::OnSwitchSetupTab(int tab) {
    if (tab >= Setup1 && tab <= Setup3) SwitchSetup(static_cast<TColSetup>(tab));
}

std::optional<TReport::TColSetup> TReport::FindActiveSetup() const {
    for (const TColSetup setup : {Setup1, Setup2, Setup3}) {
        if (m_activeSetup == cnSetupNames[static_cast<std::size_t>(setup)]) return setup;
    }
    return std::nullopt;
}

void TReport::SerializeOptions(bool write) {
    const TProfileSection section(write);
    section.ExchangeBool("ShowHiddenCells", m_options.showHiddenCells, false);
    section.ExchangeBool("ShowVias", m_options.showVias, true);
    section.ExchangeSet("ViewFilter", m_options.viewFilter);
    section.ExchangeBool("FilterSubstringCaseSensitive", m_options.filterCaseSensitive, false);
    section.ExchangeBool("FilterSubstringAllColumns", m_options.filterAllColumns, false);
    section.ExchangeBool("FilterSubstringCellName", m_options.filterCellName, true);
    section.ExchangeBool("FilterSubstringViewName", m_options.filterViewName, false);
    section.ExchangeBool("Color\\FilteredList", m_options.colorFilteredList, true);
    section.ExchangeBool("Color\\ReservedCells", m_options.colorReservedCells, true);
    section.ExchangeBool("Color\\HiddenCells", m_options.colorHiddenCells, true);
    section.ExchangeBool("Color\\UnresolvedCells", m_options.colorUnresolvedCells, true);
}

void TReport::SerializeColumns(bool write) {
    CXTPReportColumns& columns = GetColumns();
    // A name that is none of the three (settings can be edited) has the defaults of the first setup.
    const int setup = FindActiveSetup().value_or(Setup1);
    std::map<int, CXTPReportColumn*> byOrder;
    // However many columns there are, who shows them hears of it once.
    BeginUpdate();
    for (int position = 0; position < columns.GetCount(); ++position) {
        CXTPReportColumn& column = *columns.GetAt(position);
        auto* own = dynamic_cast<TColumn*>(&column);
        const CStringU path = m_activeSetup + CStringU("\\Columns\\") + CStringU(column.GetCaption());
        const TProfileSection section(write, path.StripMarker());
        bool visible = column.IsVisible();
        int order = position;
        int width = column.GetWidth();
        section.ExchangeBool("Visible", visible, own != nullptr ? own->GetDefaultVisible(setup) : visible);
        section.ExchangeInteger("Order", order, cnNoOrder);
        section.ExchangeInteger("Width", width, own != nullptr ? own->GetDefaultWidth(setup) : width);
        if (write) continue;
        column.SetVisible(visible);
        column.SetWidth(width);
        if (order < cnNoOrder) byOrder[order] = &column;
    }
    if (!write) {
        int position = 0;
        for (const auto& [order, column] : byOrder)
            columns.ChangeColumnOrder(position++, column);
        if (const TColCellName* cellColumn = FindCellColumn())
            SetFreezeColumnsCount(columns.IndexOf(cellColumn) + 1);
    }
    EndUpdate();
}

}  // namespace vapp_library_browser
