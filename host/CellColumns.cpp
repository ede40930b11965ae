/// The adding of the columns, and the answers of those that are functions.

#include "host/CellColumns.h"

#include <array>
#include <string>

#include "host/ViewText.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/browser/TProfileSection.h"
#include "vapp/toolkit/CWinAppEx.h"

namespace navigator {

namespace {

struct ColumnRow {
    const char* caption;
    const char* command;  ///< null for a function
    CStringU (*getText)(const vapp_library_browser::TLibCellView&);
    int width;  ///< that its texts need, in pixels
};

/// A width is read at each change of the arrangement. Where none is stored a host's column is too narrow for
/// a date, and the first three cut off names as common as "schematic". So the first start stores one.
void StoreWidth(CWinAppEx& app, const char* caption, int width) {
    for (const char* setup : {"Setup1", "Setup2", "Setup3"}) {
        const CString section =
            CString(vapp_library_browser::csNavigatorSection) + "\\" + setup + "\\Columns\\" + caption;
        if (app.GetProfileInt(section, "Width", -1) < 0) app.WriteProfileInt(section, "Width", width);
    }
}

CStringU TextAbout(DesignStore& store, const vapp_library_browser::TLibraryBrowser& browser,
                   const vapp_library_browser::TLibCellView& cell, ViewTextKey key) {
    const CStringU design = browser.GetSelectedDesign();
    const CellViewRef view =
        store.Find(design.Payload(), cell.library.Payload(), cell.cell.Payload(), cell.view.Payload());
    return {gViewText(store, view, key).c_str(), TextEncoding::Utf8Auto};
}

}  // namespace

CellColumns* CellColumns::s_shown = nullptr;

CellColumns::CellColumns(DesignStore& store, vapp_library_browser::TLibraryBrowser& browser)
    : m_store(store), m_browser(browser) {
    s_shown = this;
}

CellColumns::~CellColumns() {
    if (s_shown == this) s_shown = nullptr;
}

void CellColumns::AddTo(CWinAppEx& app) {
    static constexpr std::array<ColumnRow, 3> rows{{
        {"State", "database viewtext state", nullptr, 110},
        {"Changed", nullptr, &CellColumns::Changed, 125},
        {"Bytes", nullptr, &CellColumns::Bytes, 70},
    }};
    StoreWidth(app, "Cell", 160);
    StoreWidth(app, "View", 90);
    StoreWidth(app, "Library", 100);
    for (const ColumnRow& row : rows) {
        StoreWidth(app, row.caption, row.width);
        if (row.command != nullptr) {
            m_browser.AddCellViewListColumn(row.caption, row.command, true, true);
        } else {
            m_browser.AddCellViewListColumn(row.caption, row.getText, true, true);
        }
    }
}

CStringU CellColumns::Changed(const vapp_library_browser::TLibCellView& cell) {
    if (s_shown == nullptr) return {};
    return TextAbout(s_shown->m_store, s_shown->m_browser, cell, ViewTextKey::Changed);
}

CStringU CellColumns::Bytes(const vapp_library_browser::TLibCellView& cell) {
    if (s_shown == nullptr) return {};
    return TextAbout(s_shown->m_store, s_shown->m_browser, cell, ViewTextKey::Bytes);
}

}  // namespace navigator
