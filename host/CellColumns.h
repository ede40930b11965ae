#pragma once
/// The columns that this host adds to the cell list: state words, the date and the size of the file.
///
/// They show both ways in which a host fills a column. "State" is a Tcl command, so that a script that takes
/// the place of `database` words it too; "Changed" and "Bytes" are functions, which cost no line. The
/// surprise: such a function is told a cell view and nothing else, so the store and the window that it asks
/// are those of the object made last.

#include "host/DesignStore.h"
#include "vapp/browser/TLibCellView.h"

class CWinAppEx;
namespace vapp_library_browser {
class TLibraryBrowser;
}

namespace navigator {

class CellColumns {
public:
    /// Both must outlive this object.
    CellColumns(DesignStore& store, vapp_library_browser::TLibraryBrowser& browser);
    ~CellColumns();
    CellColumns(const CellColumns&) = delete;
    CellColumns& operator=(const CellColumns&) = delete;

    /// Adds the columns; once, before the stored layout is read. Where the application has no width yet for
    /// one of them, or for the views' names, it gets one that the texts fit into.
    void AddTo(CWinAppEx& app);

private:
    [[nodiscard]] static CStringU Changed(const vapp_library_browser::TLibCellView& cell);
    [[nodiscard]] static CStringU Bytes(const vapp_library_browser::TLibCellView& cell);

    DesignStore& m_store;
    vapp_library_browser::TLibraryBrowser& m_browser;
    static CellColumns* s_shown;
};

}  // namespace navigator
