/// @file
/// TCellNamesReportCtrl: the report of the cell list, one row for each library, cell and view.
///
/// It knows the names of the rows and nothing else. Text, icon, font and colours of a row are asked of the
/// host's interpreter each time that the row is measured or painted, so that a row is never out of date; a
/// population renews the rows themselves. Both run host script, and host script may call any operation here.
///
/// The surprise: a population that is asked for while one is running does not run. The running one finishes
/// and leaves the list marked, so that the next idle refresh does the work. Idle refreshes that come while
/// one is running leave no such trace.
///
/// Rows are ordered by ranks of their names and keys, which equal what `CompareCells` of the built-in and the
/// added columns says; it is not called for each pair. Of a column class of a host that derives from
/// `TColumn` directly, `CompareCells` is called and decides.
///
/// Not here: the widgets around the report, and the mark (TCellListView); what the report looks like on a
/// screen (its peer).
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "vapp/Export.h"
#include "vapp/browser/THostMenu.h"
#include "vapp/browser/TLibCellView.h"
#include "vapp/browser/TLibraryBrowserTclInterfaceStyle.h"
#include "vapp/celllist/TCellListCommand.h"
#include "vapp/text/CStringIU.h"
#include "vapp/toolkit/CXTPReportControl.h"

class CMenu;
class COleDataSource;

namespace vapp_library_browser {

class CellRows;
class CellSet;
class ColumnTexts;
class CLibCellViewOleDataSource;
class TCellListView;
struct CellQuery;
struct RowOrder;

class VAPP_EXPORT TCellNamesReportCtrl : public CXTPReportControl {
public:
    /// The three named arrangements of the columns.
    enum TColSetup : int { Setup1 = 0, Setup2 = 1, Setup3 = 2 };
    static constexpr int cnSetupCount = 3;

    /// Text of a host's column, made by a function of the host.
    using TGetText = CStringU (*)(const TLibCellView&);

    // --- Columns ---------------------------------------------------------------------------------------

    /// A column: what a row's cell says, how rows are ordered and filtered by it, how it shows at first.
    class VAPP_EXPORT TColumn : public CXTPReportColumn {
    public:
        /// @param caption  header text; part of the names under which the layout is kept
        TColumn(TCellNamesReportCtrl& report, int itemIndex, const CStringU& caption);
        ~TColumn() override;

        /// True if the column's text holds the other one: byte by byte, or without regard to case.
        [[nodiscard]] virtual bool MatchesFilter(const TLibCellView& cell, const CStringU& text,
                                                 bool caseSensitive);
        /// Below, at or above 0: the natural order of the two texts, without regard to case. While rows are
        /// sorted it is called for pairs of them, and asks for the text of each row once; a class that
        /// compares otherwise is best off with numbers that it has at hand.
        [[nodiscard]] virtual int CompareCells(const TLibCellView& left, const TLibCellView& right);
        /// The text in the row of the cell.
        [[nodiscard]] virtual CStringU GetCellText(const TLibCellView& cell) = 0;
        /// Index into the strip of row icons, -1 for none.
        [[nodiscard]] virtual int GetCellIcon(const TLibCellView& cell);
        /// Pixels. A setup that is none counts as the first.
        [[nodiscard]] virtual int GetDefaultWidth(int setup);
        [[nodiscard]] virtual bool GetDefaultVisible(int setup);

    protected:
        [[nodiscard]] TCellNamesReportCtrl& GetReport() const { return m_report; }

        bool m_defaultVisible[cnSetupCount] = {true, true, true};
        int m_defaultWidth[cnSetupCount] = {50, 50, 50};

    private:
        friend class vapp_library_browser::ColumnTexts;

        TCellNamesReportCtrl& m_report;
        // The texts of the sort that runs, if one does.
        ColumnTexts* m_sortTexts = nullptr;
    };

    /// The cell's name, with the row's icon. Stays in place when the list scrolls sideways.
    class VAPP_EXPORT TColCellName final : public TColumn {
    public:
        TColCellName(TCellNamesReportCtrl& report, int itemIndex);
        [[nodiscard]] CStringU GetCellText(const TLibCellView& cell) override;
        [[nodiscard]] int GetCellIcon(const TLibCellView& cell) override;
    };

    /// The view's name.
    class VAPP_EXPORT TColViewName final : public TColumn {
    public:
        TColViewName(TCellNamesReportCtrl& report, int itemIndex);
        [[nodiscard]] CStringU GetCellText(const TLibCellView& cell) override;
    };

    /// The library's name.
    class VAPP_EXPORT TColLibName final : public TColumn {
    public:
        TColLibName(TCellNamesReportCtrl& report, int itemIndex);
        [[nodiscard]] CStringU GetCellText(const TLibCellView& cell) override;
    };

    /// A column of the host: its text comes from a Tcl command or from a function.
    class VAPP_EXPORT TCustomColumn final : public TColumn {
    public:
        /// Either the command or the function is given; a function wins.
        TCustomColumn(TCellNamesReportCtrl& report, int itemIndex, const CStringU& caption,
                      const CStringU& tclCommand, TGetText getText, bool sortForward, bool hideInThirdSetup);
        /// Compares the sort keys of the two, in natural order; turned around if the column sorts backward.
        /// The rows of the list have no keys: a population orders them by the texts of this column if it is
        /// the first to sort by, and leaves it out of the order anywhere else.
        [[nodiscard]] int CompareCells(const TLibCellView& left, const TLibCellView& right) override;
        [[nodiscard]] CStringU GetCellText(const TLibCellView& cell) override;
        /// False turns the order of the header's arrow around.
        [[nodiscard]] bool GetSortForward() const { return m_sortForward; }

    private:
        CStringU m_tclCommand;
        std::function<CStringU(const TLibCellView&)> m_getText;
        bool m_sortForward;
    };

    /// Adds a column of the host, filled by a Tcl command that receives design, library, cell and view. The
    /// rows follow with the next population, the stored layout with the next `SerializeSetup(false)`.
    void AddColumn(const CStringU& caption, const CStringU& tclCommand, bool sortForward,
                   bool hideInThirdSetup);
    /// The same, filled by a function.
    void AddColumn(const CStringU& caption, TGetText getText, bool sortForward, bool hideInThirdSetup);
    using CXTPReportControl::AddColumn;

    // --- Record and header -----------------------------------------------------------------------------

    /// The one record that answers for all rows.
    class VAPP_EXPORT TRecord : public CXTPReportRecord {
    public:
        /// Has one item for each column that the report has now.
        explicit TRecord(TCellNamesReportCtrl& report);
        void GetItemMetrics(const CXTPReportRecordItemDrawArgs& drawArgs,
                            CXTPReportRecordItemMetrics& metrics) override;

    private:
        TCellNamesReportCtrl& m_report;
    };

    /// Tells the report of changed columns before anybody else hears of them.
    class VAPP_EXPORT TReportHeader : public CXTPReportHeader {
    public:
        explicit TReportHeader(TCellNamesReportCtrl& report);
        void OnColumnsChanged(int change, CXTPReportColumn* column) override;

    private:
        TCellNamesReportCtrl& m_report;
    };

    // --- Life ------------------------------------------------------------------------------------------

    /// @param pane  the pane that the report lives in; must outlive it
    explicit TCellNamesReportCtrl(TCellListView& pane);
    /// Stores the layout, as `SerializeSetup(true)`.
    ~TCellNamesReportCtrl() override;

    /// Looks and built-in columns; once, when the window exists.
    void Init();

    /// Stores (true) or loads (false) the layout of the active setup and the options of the list. To be
    /// called with false once all columns, also the host's, are there.
    void SerializeSetup(bool write);
    /// Stores the active setup, loads the other and populates; nothing if it is the active one.
    void SwitchSetup(TColSetup setup);
    /// `SwitchSetup` for the tabs 0, 1 and 2; nothing for any other.
    void OnSwitchSetupTab(int tab);

    // --- Rows ------------------------------------------------------------------------------------------

    /// Asks the host for the rows anew, whatever the pane's mark says, and leaves that mark alone. While a
    /// population is running it only notes that another one is wanted, and the running one sets the mark when
    /// it ends.
    void Populate() override;
    /// Number of rows.
    [[nodiscard]] std::size_t GetCellViewCount() const;
    /// Copy of a row; empty beyond the last one.
    [[nodiscard]] TLibCellView GetCell(int row) const;
    [[nodiscard]] TLibCellView GetCell(std::uint64_t row) const;
    /// Copy of a row; empty without a row, and while the rows are not complete.
    [[nodiscard]] TLibCellView GetCell(const CXTPReportRow* row) const;
    /// The row with focus; empty without one.
    [[nodiscard]] TLibCellView GetFocusedCell() const;
    /// The row under a client point; empty without one. `area` receives the row's rectangle.
    [[nodiscard]] TLibCellView HitTest(CPoint point, CRect* area = nullptr) const;
    /// The column whose header is under a client point, or null.
    [[nodiscard]] TColumn* HeaderHitTest(CPoint point) const;
    /// True while a population runs: selection notifications mean nothing then.
    [[nodiscard]] bool GetIgnoreSelectionChange() const { return m_ignoreSelectionChange; }
    /// True if a population was asked for while another one was running, and none has begun since.
    [[nodiscard]] bool IsPopulationPostponed() const { return m_postponed; }
    /// True while a population runs.
    [[nodiscard]] bool IsPopulating() const { return m_populating; }

    /// Writes the table as lines of comma-separated texts, the captions first. No columns given: all visible
    /// ones. A caption given by name is dumped even while its column is hidden; unknown ones are skipped.
    /// Separators within texts are not escaped.
    void DumpContents(const std::vector<CStringU>& columns, CStringU& out);

    // --- Selection -------------------------------------------------------------------------------------

    /// The cells of the selected rows, to be walked through. Rows that a failed population has left blank
    /// have none. Valid until the next population or change of selection.
    class VAPP_EXPORT TSelectedColl {
    public:
        class VAPP_EXPORT const_iterator {
        public:
            using iterator_category = std::input_iterator_tag;
            using value_type = TLibCellView;
            using difference_type = std::ptrdiff_t;
            using pointer = void;
            using reference = TLibCellView;

            const_iterator() = default;
            const_iterator(const TCellNamesReportCtrl& report, CXTPReportSelectedRowPosition position)
                : m_report(&report), m_position(position) {}
            [[nodiscard]] TLibCellView operator*() const;
            const_iterator& operator++();
            const_iterator operator++(int) {
                const_iterator before = *this;
                ++*this;
                return before;
            }
            friend bool operator==(const const_iterator& left, const const_iterator& right) {
                return left.m_position == right.m_position;
            }

        private:
            const TCellNamesReportCtrl* m_report = nullptr;
            CXTPReportSelectedRowPosition m_position = -1;
        };

        explicit TSelectedColl(const TCellNamesReportCtrl& report) : m_report(&report) {}
        [[nodiscard]] const_iterator begin() const;
        [[nodiscard]] const_iterator end() const { return {*m_report, -1}; }
        [[nodiscard]] bool empty() const { return begin() == end(); }

    private:
        const TCellNamesReportCtrl* m_report;
    };

    [[nodiscard]] TSelectedColl GetSelected() const { return TSelectedColl(*this); }
    /// False also if all that is selected are rows without cells.
    [[nodiscard]] bool AreAnyCellsSelected() const;
    /// Takes the keyboard and selects every row.
    void OnSelectAll();
    /// Takes the keyboard and adds the rows of the set to the selection.
    void AddToCellListSelections(const std::set<TLibCellView>& cells);
    /// First row of the library and cell, without regard to case; cnNotFound if there is none.
    [[nodiscard]] std::size_t Find(const CStringU& library, const CStringU& cell) const;
    static constexpr std::size_t cnNotFound = static_cast<std::size_t>(-1);
    /// Selects and focuses the row that `Find` gives, and scrolls to it.
    void HighlightCellInList(const CStringU& library, const CStringU& cell);
    /// The cell of every row, each followed by "\r\n".
    [[nodiscard]] CStringU GetShownCellList() const;
    /// Library, cell and view of every row, each followed by "\r\n".
    [[nodiscard]] CStringU GetShownCellViewList() const;

    // --- Options ---------------------------------------------------------------------------------------

    /// The views that hosts are asked to leave out, divided by semicolons and blanks.
    [[nodiscard]] const CStringU& GetExcludeViews() const { return m_excludeViews; }
    /// Name of the active setup; empty before the first `SerializeSetup`.
    [[nodiscard]] const CStringU& GetActiveSetup() const { return m_activeSetup; }

    /// What the user has set for this list; kept by `SerializeSetup`.
    struct TOptions {
        bool showHiddenCells = false;
        bool showVias = true;
        std::set<CStringIU> viewFilter;  ///< only these views; empty for all
        bool filterCaseSensitive = false;
        bool filterAllColumns = false;
        bool filterCellName = true;
        bool filterViewName = false;
        bool colorFilteredList = true;
        bool colorReservedCells = true;
        bool colorHiddenCells = true;
        bool colorUnresolvedCells = true;
    };
    [[nodiscard]] const TOptions& GetOptions() const { return m_options; }
    /// Takes effect with the next population, colours with the next painting.
    void SetOptions(TOptions options) { m_options = std::move(options); }

    /// First identifier of the names in the menu of the view filter.
    static constexpr UINT cnBaseID = FirstViewName;
    /// Puts the names into a menu, in the order of the set, those of the filter checked, behind an item for
    /// all of them. The menu's first item, which stands for them until then, goes; null does nothing.
    void CreateViewNameFilterMenu(CMenu* menu, const std::set<CStringIU>& views) const;
    /// Acts on the identifier that such a menu, of the same names, gave: turns a view of the filter on or
    /// off, or shows all, and populates. False, with nothing done, for an identifier below those of the
    /// names.
    bool ProcessViewNameFilterMenu(int id, const std::set<CStringIU>& views);
    /// Runs one of the list's own commands (TCellListCommand); those that change what is listed populate at
    /// once. False, with nothing done, for any other: a host's, a view's name.
    bool OnMenuCommand(UINT command);

    // --- Dragging --------------------------------------------------------------------------------------

    /// The user begins to drag at a client point; bit 1 of the flags says that it is by the right button.
    /// True if it ended with a drop.
    bool OnBeginDrag(CPoint point, UINT flags) override;
    /// Drags the row under a client point; false, with nothing done, without one or while the rows are not
    /// complete.
    bool QueryDragAndDrop(bool rightButton, CPoint point);
    /// Drags a cell view, as a CLibCellViewOleData, to be copied or linked, and waits for the end: true if it
    /// was dropped. `start` is the row's rectangle. False, with nothing done, in the course of another drag.
    bool StartDragAndDrop(bool rightButton, const TLibCellView& cell, const CRect* start);
    [[nodiscard]] bool IsInDragDrop() const { return m_inDragDrop; }
    /// The effect that a drop would have here: none.
    [[nodiscard]] virtual UINT OnDragOver(const COleDataSource& /*source*/, CPoint /*point*/) { return 0; }
    /// Takes nothing.
    virtual int OnDrop(const COleDataSource& /*source*/, CPoint /*point*/) { return 0; }

    // --- The host's part of the menu of rows -----------------------------------------------------------
    //
    // For the time in which the host answers WM_LN_BUILDCELLMENU; see THostMenu. Its items come in front of
    // the fixed ones. A number of the host's that is one of the list's own (TCellListCommand) is taken for
    // that: its item is marked and greyed in place of the list's, and the pick is the list's.

    [[nodiscard]] bool IsBuildingMenu() const { return m_hostMenu.IsOpen(); }
    [[nodiscard]] UINT GetNextCellListPopupCmdId() const { return m_hostMenu.GetNextId(); }
    void AddCellListMenuItem(UINT id, const CString& text, bool disabled, bool checked, bool isDefault) {
        m_hostMenu.AddItem(id, text, disabled, checked, isDefault);
    }
    void AddCellListMenuSeparator() { m_hostMenu.AddSeparator(); }
    void BeginCellListSubmenu(const CString& title) { m_hostMenu.BeginSubmenu(title); }
    void EndCellListSubmenu() { m_hostMenu.EndSubmenu(); }
    /// The command that a double click on a cell runs, at any time; empty for none.
    void SetCellListDefaultMenuCommand(const CStringU& command, TLibraryBrowserTclInterfaceStyle style);

    [[nodiscard]] TCellListView& GetPane() const { return m_pane; }

    void OnColumnsChanged(int change, CXTPReportColumn* column) override;
    [[nodiscard]] CStringU GetTypeAheadText(int row) const override;
    [[nodiscard]] bool IsTypeAheadMatch(int row, const CStringU& text) const override;

protected:
    void OnDestroy() override;
    /// On the focused row: tells the host, and runs its default command if there is one. On neither a row nor
    /// a header: empties the pane's sub-string.
    void OnDoubleClick(CPoint point) override;
    /// Shows the menu of the rows, or that of the view names over the header of these; over any other header
    /// none, nor without a design or where the host doesn't answer with its triples.
    void OnContextMenu(CWnd& from, CPoint screen) override;

private:
    class SavedView;

    [[nodiscard]] bool FetchRows();
    [[nodiscard]] CellQuery MakeQuery(const CStringU& design) const;
    void ArrangeRows(CellRows& rows, int total, bool dark);
    static void SortRows(CellRows& rows, const RowOrder& order);
    void ApplyTheme(bool dark);
    void WordStatus(std::size_t rows, int answeredTotal, bool dark);
    void BlankStatus();
    void ShowRows(const SavedView& saved);
    void ShowRowsAsBefore(const SavedView& saved);
    void ShowHighlight(const TLibCellView& cell);
    void SelectRows(const CellSet& cells);
    [[nodiscard]] std::optional<TColSetup> FindActiveSetup() const;
    void SerializeOptions(bool write);
    void SerializeColumns(bool write);
    void AddBuiltInColumns();
    [[nodiscard]] std::optional<std::set<CStringIU>> AskViewNames() const;
    void ShowViewNameMenu(CPoint screen, const std::set<CStringIU>& views);
    void ShowCellMenu(CPoint screen, const std::set<CStringIU>& views);
    void AskHostForItems(CMenu& menu);
    void CheckCellMenu(CMenu& menu, bool isSchematicEditor) const;
    void RunMenuPick(UINT id, const std::set<CStringIU>& views);
    void RunDefaultCommand();
    void UseSetup(TColSetup setup);
    void EditExcludeViews();
    [[nodiscard]] TColCellName* FindCellColumn() const;

    TCellListView& m_pane;
    std::unique_ptr<CellRows> m_cells;
    TOptions m_options;
    CStringU m_activeSetup;
    CStringU m_excludeViews;
    THostMenu m_hostMenu;
    CStringU m_defaultCommand;
    TLibraryBrowserTclInterfaceStyle m_defaultCommandStyle = StyleCommandOnly;
    std::unique_ptr<CLibCellViewOleDataSource> m_dataSource;
    int m_columnCounter = 0;
    bool m_populated = false;
    bool m_populating = false;
    bool m_postponed = false;
    bool m_ignoreSelectionChange = false;
    bool m_inDragDrop = false;
    bool m_isSetupStored = false;  ///< by the end of the window
};

}  // namespace vapp_library_browser
