/// @file
/// A whole navigator, driven twice through the same steps: without pixels, by its controls' own calls, and on
/// the screen, by mouse and keys. After each step both show the same and have sent the host the same lines.
///
/// Not compared are the lines of painting: where there are no pixels nobody asks for them.
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>
#include <random>
#include <string>
#include <vector>

#include "tests/celllist/CellListFixture.h"
#include "tests/qt/QtTestReport.h"
#include "tests/text/HostileText.h"
#include "toolkit/qt/QtListView.h"
#include "vapp/toolkit/CComboBox.h"
#include "vapp/toolkit/CTabCtrl.h"

namespace {

using vapp_library_browser::TCellListView;
using vapp_library_browser::TLibraryView;

/// What the user does. Picks are counted from the present one on, so that each of them changes something.
struct NavigatorStep {
    enum class TKind {
        PickDesign,
        PickFilterType,
        PickTab,
        TypeFilter,
        ClickLibrary,
        KeyInLibraries,
        ClickCell,
        KeyInCells,
        Sort,
        Resize,
        DragBar,
        Idle,
    };
    TKind kind = TKind::Idle;
    int where = 0;  ///< row, column's position, bar, or how far behind the present item
    int how = 0;    ///< width, or how far a bar goes
    TKey key = TKey::Down;
    TModifiers modifiers = {};
    const char* text = "";
};
using S = NavigatorStep::TKind;

/// Peers for the length of a block, or none.
class PeersOfBlock {
public:
    explicit PeersOfBlock(bool peers) : m_before(PeerFactory::Installed()) {
        if (!peers) PeerFactory::Install(nullptr);
    }
    PeersOfBlock(const PeersOfBlock&) = delete;
    PeersOfBlock& operator=(const PeersOfBlock&) = delete;
    ~PeersOfBlock() { PeerFactory::Install(m_before); }

private:
    PeerFactory* m_before;
};

/// A navigator with two designs, three libraries, two further filter types, and an interpreter that answers.
class DrivenNavigator : public CellListFixture {
public:
    DrivenNavigator() {
        m_host.Answer("database all_libs", "{top {l1 /l1} {l2 /l2} {l3 /l3}} {pads {io /io} {esd /esd}}");
        m_host.HandleStart("database cells", [this](Tcl_Interp* /*interp*/) {
            const std::string line = m_host.Lines().back();
            const bool pads = line.find("-library pads") != std::string::npos;
            m_host.SetResult(line.find("-count") != std::string::npos ? (pads ? "2" : "9")
                             : pads                                   ? "{io in sym} {esd clamp lay}"
                                                                      : csRows);
            return 0;
        });
        m_host.AnswerStart("database filter", "1");
        m_browser.Initialize(&m_frame, m_host.GetInterp(), nullptr);
        for (const char* type : {"All", "Modified", "Locked"})
            m_browser.AddCellViewListFilterType(type);
        m_browser.SerializeSetup(false);
        m_browser.Populate();
        m_frame.ShowWindow(true);
        QApplication::processEvents();
        m_host.ClearLines();
    }
    void TestBody() override {}

    virtual void Do(const NavigatorStep& step) = 0;

    /// All that the user sees or has chosen, and what the host was told since the last call.
    std::string State() {
        std::string state = "design " + std::string(Libraries().GetSelectedDesign().Payload()) + ": ";
        for (const std::string& name : Shown())
            state += name + " ";
        state += "\nlibraries";
        for (const std::string& name : Selected())
            state += " " + name;
        state += "; focus " + std::to_string(List().GetFocusedItem()) + "\n";
        CStringU rows;
        Report().DumpContents({}, rows);
        state +=
            std::string(rows.Payload()) + std::string(Status()) + "|" + std::string(NoItems()) + "\ncells";
        for (const std::string& cell : SelectedCells())
            state += " {" + cell + "}";
        state += "; focus " + std::string(Cells().GetFocusedCell().Join(" ").Payload());
        state += "\nfilter " + std::string(Cells().GetFilterText()) + "|" +
                 std::string(Cells().GetDropDownFilter().Payload()) + "|" +
                 std::string(Cells().GetCellFilterHistory()) + "|" + std::to_string(Cells().GetSetupTab());
        state += "\nheights " + std::to_string(m_browser.GetRowHeight(0)) + " " +
                 std::to_string(m_browser.GetRowHeight(1)) + "\n" + Columns();
        for (const char* kind : {"database all_libs", "database cells", "database filter", "logaction"}) {
            for (const std::string& line : m_host.LinesStarting(kind))
                state += "\nsent " + line;
        }
        m_host.ClearLines();
        return state;
    }

protected:
    static constexpr char csRows[] =
        "{l1 abc sym} {l1 abc sch} {l1 ab1 sym} {l2 abd lay} {l2 xyz sym} {l3 x10 sch} {l3 x9 sch}";

    [[nodiscard]] CListCtrl& List() { return Libraries().GetLibraryListCtrl(); }
    template <typename Control>
    [[nodiscard]] Control& CellControl(UINT id) {
        return dynamic_cast<Control&>(*Cells().GetDlgItem(id));
    }
    [[nodiscard]] CComboBox& Designs() {
        return dynamic_cast<CComboBox&>(*Libraries().GetDlgItem(TLibraryView::cnDesignComboId));
    }
    [[nodiscard]] CComboBox& FilterTypes() { return CellControl<CComboBox>(TCellListView::cnFilterCombo); }
    [[nodiscard]] CTabCtrl& Tabs() { return CellControl<CTabCtrl>(TCellListView::cnTabs); }
    [[nodiscard]] static int Behind(const CComboBox& combo, int steps) {
        return (combo.GetCurSel() + steps) % combo.GetCount();
    }
    [[nodiscard]] int TabBehind(int steps) { return (Tabs().GetCurSel() + steps) % 3; }
    /// The column at the position if it is there to be clicked.
    [[nodiscard]] CXTPReportColumn* ShownColumn(int position) {
        CXTPReportColumn* column = Report().GetColumns().GetAt(position);
        return column != nullptr && column->IsVisible() ? column : nullptr;
    }
    [[nodiscard]] std::string Columns() {
        std::string columns = "columns";
        for (int position = 0; position < Report().GetColumns().GetCount(); ++position) {
            const CXTPReportColumn& column = *Report().GetColumns().GetAt(position);
            columns += " " + std::string(column.GetCaption()) + ":" + std::to_string(column.GetWidth()) +
                       (column.IsVisible() ? "" : " hidden");
        }
        const CXTPReportColumnOrder& order = Report().GetColumns().GetSortOrder();
        for (int place = 0; place < order.GetCount(); ++place)
            columns += (order.GetAt(place)->IsSortedIncreasing() ? " up " : " down ") +
                       std::string(order.GetAt(place)->GetCaption());
        return columns;
    }
};

/// By the controls' own calls.
class NavigatorWithoutPixels : public DrivenNavigator {
public:
    void Do(const NavigatorStep& step) override {
        switch (step.kind) {
            case S::PickDesign:
                return Pick(Designs(), step.where);
            case S::PickFilterType:
                return Pick(FilterTypes(), step.where);
            case S::PickTab:
                return Tabs().PickedByUser(TabBehind(step.where));
            case S::TypeFilter:
                return TypeLetters(step.text);
            case S::ClickLibrary:
                if (step.where < List().GetItemCount()) List().ClickedByUser(step.where, step.modifiers);
                return;
            case S::KeyInLibraries:
                return List().KeyPressedByUser(step.key, step.modifiers);
            case S::ClickCell:
                return Report().ClickedByUser(RowAt(step.where), step.modifiers);
            case S::KeyInCells:
                return Report().KeyPressedByUser(step.key, step.modifiers);
            case S::Sort:
                if (CXTPReportColumn* column = ShownColumn(step.where))
                    Report().GetReportHeader().ClickedByUser(column, step.modifiers.control);
                return;
            case S::Resize:
                if (CXTPReportColumn* column = ShownColumn(step.where))
                    Report().GetReportHeader().ResizedByUser(column, step.how);
                return;
            case S::DragBar:
                return m_browser.SetRowHeight(step.where, m_browser.GetRowHeight(step.where) + step.how);
            case S::Idle:
                return m_browser.Populate();
        }
    }

private:
    // A place below the rows is no row.
    [[nodiscard]] int RowAt(int row) {
        return row < static_cast<int>(Report().GetCellViewCount()) ? row : -1;
    }
    static void Pick(CComboBox& combo, int steps) {
        combo.PickedByUser(Behind(combo, steps));
        combo.ClosedByUser();
    }
    void TypeLetters(const std::string& text) {
        if (text.empty()) FilterEdit().EditedByUser("");
        for (std::size_t size = 1; size <= text.size(); ++size)
            FilterEdit().EditedByUser(text.substr(0, size).c_str());
    }
};

/// By mouse and keys.
class NavigatorOnTheScreen : public DrivenNavigator {
public:
    NavigatorOnTheScreen() { QApplication::setActiveWindow(gWidgetOf(m_frame)); }

    void Do(const NavigatorStep& step) override {
        const Qt::KeyboardModifiers held = HeldKeys(step.modifiers);
        switch (step.kind) {
            case S::PickDesign:
                Pick(Designs(), step.where);
                break;
            case S::PickFilterType:
                Pick(FilterTypes(), step.where);
                break;
            case S::PickTab: {
                auto* tabs = gWidgetAs<QTabBar>(Tabs());
                QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(TabBehind(step.where)).center());
                break;
            }
            case S::TypeFilter:
                TypeLetters(step.text);
                break;
            case S::ClickLibrary:
                if (step.where < List().GetItemCount())
                    QTest::mouseClick(LibraryRows().viewport(), Qt::LeftButton, held,
                                      InRow(step.where - List().GetTopIndex(), List().GetRowHeight()));
                break;
            case S::KeyInLibraries:
                QTest::keyClick(&LibraryRows(), KeyOf(step.key), held);
                break;
            case S::ClickCell:
                QTest::mouseClick(CellRows().viewport(), Qt::LeftButton, held,
                                  InRow(step.where - Report().GetTopRowIndex(), Report().GetRowHeight()));
                break;
            case S::KeyInCells:
                QTest::keyClick(&CellRows(), KeyOf(step.key), held);
                break;
            case S::Sort:
                if (ShownColumn(step.where) != nullptr)
                    QTest::mouseClick(CellRows().Header(), Qt::LeftButton, held,
                                      {EdgeOf(step.where) - ShownColumn(step.where)->GetShownWidth() / 2, 8});
                break;
            case S::Resize:
                if (const CXTPReportColumn* column = ShownColumn(step.where)) {
                    const int edge = EdgeOf(step.where);
                    gDrag(*CellRows().Header(), {edge, 8}, {edge + step.how - column->GetWidth(), 8});
                }
                break;
            case S::DragBar:
                DragBar(step.where, step.how);
                break;
            case S::Idle:
                m_browser.Populate();
                break;
        }
        QApplication::processEvents();
    }

private:
    [[nodiscard]] vapp_qt::QtListView& LibraryRows() { return *gWidgetAs<vapp_qt::QtListView>(List()); }
    [[nodiscard]] vapp_qt::QtReportView& CellRows() { return *gWidgetAs<vapp_qt::QtReportView>(Report()); }
    [[nodiscard]] static Qt::KeyboardModifiers HeldKeys(TModifiers modifiers) {
        Qt::KeyboardModifiers held;
        held.setFlag(Qt::ShiftModifier, modifiers.shift);
        held.setFlag(Qt::ControlModifier, modifiers.control);
        return held;
    }
    [[nodiscard]] static Qt::Key KeyOf(TKey key) {
        switch (key) {
            case TKey::Up:
                return Qt::Key_Up;
            case TKey::Down:
                return Qt::Key_Down;
            case TKey::Home:
                return Qt::Key_Home;
            case TKey::End:
                return Qt::Key_End;
            case TKey::SelectAll:
                return Qt::Key_A;
            default:
                ADD_FAILURE() << "no key for this";
                return Qt::Key_unknown;
        }
    }
    [[nodiscard]] static QPoint InRow(int row, int height) { return {20, row * height + height / 2}; }
    /// The right edge of the column at the position.
    [[nodiscard]] int EdgeOf(int position) {
        int right = 0;
        for (int at = 0; at <= position; ++at)
            right += Report().GetColumns().GetAt(at)->GetShownWidth();
        return right;
    }
    static void Pick(CComboBox& combo, int steps) {
        auto* box = gWidgetAs<QComboBox>(combo);
        box->showPopup();
        QApplication::processEvents();
        box->view()->setCurrentIndex(box->model()->index(Behind(combo, steps), 0));
        QTest::keyClick(box->view(), Qt::Key_Return);
        QApplication::processEvents();
    }
    void TypeLetters(const char* text) {
        auto* edit = gWidgetAs<QLineEdit>(FilterEdit());
        edit->setFocus();
        edit->selectAll();
        if (*text == '\0') {
            QTest::keyClick(edit, Qt::Key_Delete);
        } else {
            QTest::keyClicks(edit, text);
        }
    }
    void DragBar(int row, int by) {
        auto* bar = gWidgetOf(m_browser)->findChild<QWidget*>(QStringLiteral("bar%1").arg(row));
        ASSERT_NE(bar, nullptr);
        const QPoint grab(50, 2);
        QTest::mousePress(bar, Qt::LeftButton, {}, grab);
        // The bar goes with the pointer, and so each step starts at the same place of it.
        QMouseEvent move(QEvent::MouseMove, grab + QPoint(0, by), bar->mapToGlobal(grab + QPoint(0, by)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(bar, &move);
        QTest::mouseRelease(bar, Qt::LeftButton, {}, grab);
    }
};

/// One navigator after the other: both are the window of the process in their time.
template <typename Navigator>
std::vector<std::string> StatesAfter(const std::vector<NavigatorStep>& steps, bool peers) {
    const PeersOfBlock block(peers);
    Navigator navigator;
    std::vector<std::string> states{navigator.State()};
    for (const NavigatorStep& step : steps) {
        navigator.Do(step);
        states.push_back(navigator.State());
    }
    return states;
}

/// The states without pixels, found to be those on the screen too.
std::vector<std::string> StatesOfBoth(const std::vector<NavigatorStep>& steps) {
    const auto states = StatesAfter<NavigatorWithoutPixels>(steps, false);
    const auto shown = StatesAfter<NavigatorOnTheScreen>(steps, true);
    for (std::size_t at = 0; at < states.size(); ++at) {
        EXPECT_EQ(states[at], shown[at])
            << "after step " << at << " of kind " << (at == 0 ? -1 : static_cast<int>(steps[at - 1].kind));
        if (states[at] != shown[at]) break;
    }
    return states;
}

constexpr TModifiers cnWithShift{.shift = true, .control = false};
constexpr TModifiers cnWithControl{.shift = false, .control = true};

TEST(NavigatorPairScenarioTest, TheSameVisitGivesTheSameNavigator) {
    const std::vector<NavigatorStep> visit = {
        {.kind = S::PickDesign, .where = 1},
        {.kind = S::Idle},
        {.kind = S::ClickLibrary, .where = 1},
        {.kind = S::Idle},
        {.kind = S::ClickLibrary, .where = 2, .modifiers = cnWithControl},
        {.kind = S::Idle},
        {.kind = S::TypeFilter, .text = "ab"},
        {.kind = S::Idle},
        {.kind = S::ClickCell, .where = 1},
        {.kind = S::KeyInCells, .key = TKey::Down, .modifiers = cnWithShift},
        {.kind = S::PickFilterType, .where = 1},
        {.kind = S::Idle},
        {.kind = S::Sort, .where = 0},
        {.kind = S::Resize, .where = 0, .how = 170},
        {.kind = S::PickTab, .where = 1},
        {.kind = S::Sort, .where = 1},
        {.kind = S::TypeFilter, .text = ""},
        {.kind = S::Idle},
        {.kind = S::DragBar, .where = 0, .how = 25},
        {.kind = S::DragBar, .where = 1, .how = -15},
        {.kind = S::PickDesign, .where = 1},
        {.kind = S::Idle},
        {.kind = S::KeyInLibraries, .key = TKey::End},
        {.kind = S::Idle},
        {.kind = S::KeyInCells, .key = TKey::SelectAll, .modifiers = cnWithControl},
        {.kind = S::PickTab, .where = 2},
        {.kind = S::Idle},
    };
    const std::vector<std::string> states = StatesOfBoth(visit);
    // Each of these steps shows, or the comparison would prove little.
    for (std::size_t at = 1; at < states.size(); ++at) {
        if (visit[at - 1].kind != S::Idle) {
            EXPECT_NE(states[at], states[at - 1]) << "step " << at;
        }
    }
    EXPECT_NE(states[8].find("ab1"), std::string::npos) << states[8];
    EXPECT_EQ(states[8].find("xyz"), std::string::npos) << states[8];
}

TEST(NavigatorPairScenarioTest, AnyVisitGivesTheSameNavigator) {
    std::mt19937 random = text_test::SeededRandom();
    const auto below = [&random](int limit) {
        return std::uniform_int_distribution<int>(0, limit - 1)(random);
    };
    constexpr const char* csTexts[] = {"", "a", "ab", "x", "1", "zz"};
    constexpr TKey cnWalks[] = {TKey::Up, TKey::Down, TKey::Home, TKey::End};
    for (int visit = 0; visit < 4; ++visit) {
        std::vector<NavigatorStep> steps;
        for (int number = 0; number < 80; ++number) {
            NavigatorStep step;
            step.kind = static_cast<S>(below(12));
            step.modifiers = {.shift = below(4) == 0, .control = below(4) == 0};
            step.key = cnWalks[below(4)];
            step.text = csTexts[below(6)];
            const bool picks = step.kind == S::PickFilterType || step.kind == S::PickTab;
            step.where = picks ? 1 + below(2) : step.kind == S::PickDesign ? 1 : below(3);
            if (step.kind == S::ClickCell) step.where = below(7);
            if (step.kind == S::DragBar) step.where = below(2);
            step.how = step.kind == S::Resize ? 60 + below(60) : below(31) - 15;
            steps.push_back(step);
            if (below(2) == 0) steps.push_back({});
        }
        StatesOfBoth(steps);
        if (testing::Test::HasFailure()) return;
    }
}

}  // namespace
