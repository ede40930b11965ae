#include "tests/celllist/ReportSetupFixture.h"
#include "tests/toolkit/RecordingPeers.h"

namespace {

using namespace vapp_library_browser;
using TLines = std::vector<std::string>;

using ReportSetupTest = ReportSetupFixture;

TEST_F(ReportSetupTest, StartsWithDefaultsFromAnEmptyProfile) {
    Report().AddColumn("State", "state", true, true);
    Report().SerializeSetup(false);
    EXPECT_EQ(Report().GetActiveSetup(), "Setup1");
    EXPECT_EQ(Cells().GetSetupTab(), 0);
    const TReport::TOptions& options = Report().GetOptions();
    EXPECT_FALSE(options.showHiddenCells);
    EXPECT_TRUE(options.showVias);
    EXPECT_TRUE(options.viewFilter.empty());
    EXPECT_FALSE(options.filterCaseSensitive);
    EXPECT_FALSE(options.filterAllColumns);
    EXPECT_TRUE(options.filterCellName);
    EXPECT_FALSE(options.filterViewName);
    EXPECT_TRUE(options.colorFilteredList && options.colorReservedCells && options.colorHiddenCells &&
                options.colorUnresolvedCells);
    EXPECT_EQ(Column("Cell").GetWidth(), 140);
    EXPECT_EQ(Column("Library").GetWidth(), 60);
    EXPECT_TRUE(Column("View").IsVisible());
    EXPECT_FALSE(Column("State").IsVisible());
    EXPECT_EQ(Writes(), 0u);
}

TEST_F(ReportSetupTest, WritesOptionsAndColumns) {
    Report().SerializeSetup(false);
    SetOptions([](auto& options) {
        options.showHiddenCells = true;
        options.viewFilter = {"sym", "lay"};
        options.colorReservedCells = false;
    });
    Column("View").SetVisible(false);
    Column("Library").SetWidth(77);
    Report().GetColumns().ChangeColumnOrder(0, &Column("Library"));
    Report().SerializeSetup(true);
    const char section[] = "LibraryNavigator";
    EXPECT_EQ(Text(section, "ActiveSetup"), "Setup1");
    EXPECT_EQ(Text(section, "ShowHiddenCells"), "true");
    EXPECT_EQ(Text(section, "ShowVias"), "true");
    EXPECT_EQ(Text(section, "ViewFilter"), "lay, sym");
    EXPECT_EQ(Text(section, "Color\\ReservedCells"), "false");
    EXPECT_EQ(Text("LibraryNavigator\\Setup1\\Columns\\View", "Visible"), "false");
    EXPECT_EQ(Integer("LibraryNavigator\\Setup1\\Columns\\Library", "Width"), 77);
    EXPECT_EQ(Integer("LibraryNavigator\\Setup1\\Columns\\Library", "Order"), 0);
    EXPECT_EQ(Integer("LibraryNavigator\\Setup1\\Columns\\Cell", "Order"), 1);
}

TEST_F(ReportSetupTest, WritesTheFirstSetupIfNoneWasLoaded) {
    Report().SerializeSetup(true);
    EXPECT_EQ(Report().GetActiveSetup(), "Setup1");
    EXPECT_EQ(Text("LibraryNavigator", "ActiveSetup"), "Setup1");
}

TEST_F(ReportSetupTest, LoadsTheStoredSetup) {
    m_app.WriteProfileString("LibraryNavigator", "ActiveSetup", "Setup2");
    m_app.WriteProfileInt("LibraryNavigator\\Setup2\\Columns\\Library", "Order", 5);
    m_app.WriteProfileInt("LibraryNavigator\\Setup2\\Columns\\Cell", "Order", 7);
    m_app.WriteProfileInt("LibraryNavigator\\Setup2\\Columns\\View", "Order", 9999);
    m_app.WriteProfileInt("LibraryNavigator\\Setup2\\Columns\\View", "Width", -3);
    Report().AddColumn("State", "state", true, true);
    Report().SerializeSetup(false);
    EXPECT_EQ(Cells().GetSetupTab(), 1);
    EXPECT_EQ(Captions(), (TLines{"Library", "Cell", "View", "State"}));
    EXPECT_EQ(Report().GetFreezeColumnsCount(), 2);
    EXPECT_TRUE(Column("State").IsVisible());
    EXPECT_EQ(Column("View").GetWidth(), -3);
}

// Loading counts a hidden column in front of the cells; the next change of the columns doesn't.
TEST_F(ReportSetupTest, FreezesByPositionWhenLoadedAndByWhatShowsAfterAChange) {
    m_app.WriteProfileInt("LibraryNavigator\\Setup1\\Columns\\View", "Order", 0);
    m_app.WriteProfileInt("LibraryNavigator\\Setup1\\Columns\\Cell", "Order", 1);
    m_app.WriteProfileString("LibraryNavigator\\Setup1\\Columns\\View", "Visible", "false");
    Report().SerializeSetup(false);
    EXPECT_EQ(Captions(), (TLines{"View", "Cell", "Library"}));
    EXPECT_FALSE(Column("View").IsVisible());
    EXPECT_EQ(Report().GetFreezeColumnsCount(), 2);
    Column("Library").SetWidth(81);
    EXPECT_EQ(Report().GetFreezeColumnsCount(), 1);
}

TEST_F(ReportSetupTest, PutsAColumnWithoutStoredOrderBehindTheOthers) {
    Report().SerializeSetup(false);
    Report().GetColumns().ChangeColumnOrder(0, &Column("Library"));
    Report().SerializeSetup(true);
    Report().AddColumn("Late", "late", true, false);
    Report().GetColumns().ChangeColumnOrder(0, &Column("Late"));
    Report().SerializeSetup(false);
    EXPECT_EQ(Captions(), (TLines{"Library", "Cell", "View", "Late"}));
    EXPECT_FALSE(Column("Late").IsVisible());
    EXPECT_EQ(Column("Late").GetWidth(), 50);
}

TEST_F(ReportSetupTest, AColumnThatCameLaterHasItsDefaultsInEachSetup) {
    Report().SerializeSetup(false);
    for (const TReport::TColSetup setup : {TReport::Setup2, TReport::Setup3, TReport::Setup1}) {
        Report().SwitchSetup(setup);
        Report().GetColumns().ChangeColumnOrder(0, &Column("Library"));
    }
    Report().SerializeSetup(true);
    TCellListView next;
    ASSERT_TRUE(next.Create(&m_frame, 0));
    next.OnInitialUpdate();
    next.GetReport().AddColumn("Late", "late", true, true);
    next.GetReport().AddColumn("Later", "later", true, false);
    next.GetReport().SerializeSetup(false);
    const struct {
        TReport::TColSetup setup;
        bool isLateShown, isLaterShown;
    } rows[] = {
        {TReport::Setup1, false, false}, {TReport::Setup2, true, true}, {TReport::Setup3, false, true}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.setup);
        next.GetReport().SwitchSetup(row.setup);
        TLines captions;
        for (int position = 0; position < next.GetReport().GetColumns().GetCount(); ++position)
            captions.emplace_back(next.GetReport().GetColumns().GetAt(position)->GetCaption());
        EXPECT_EQ(captions, (TLines{"Library", "Cell", "View", "Late", "Later"}));
        EXPECT_EQ(next.GetReport().GetColumns().GetAt(3)->IsVisible(), row.isLateShown);
        EXPECT_EQ(next.GetReport().GetColumns().GetAt(4)->IsVisible(), row.isLaterShown);
        EXPECT_EQ(next.GetReport().GetColumns().GetAt(3)->GetWidth(), 50);
    }
}

TEST_F(ReportSetupTest, ReplacesTheFirstOfTwoColumnsWithTheSameOrder) {
    for (const char* caption : {"Cell", "View", "Library"}) {
        m_app.WriteProfileInt((CString("LibraryNavigator\\Setup1\\Columns\\") + caption), "Order", 3);
    }
    Report().SerializeSetup(false);
    EXPECT_EQ(Captions().front(), "Library");
}

TEST_F(ReportSetupTest, ReadsTheSpellingsOfABoolean) {
    struct Case {
        const char* key;
        const char* text;
        bool value;
    };
    const Case cases[] = {{"ShowHiddenCells", "YES", true},   {"ShowHiddenCells", "Y", true},
                          {"ShowHiddenCells", "yes ", false}, {"ShowVias", "N", false},
                          {"ShowVias", "n", false},           {"ShowVias", "NO", false},
                          {"ShowVias", "nay", true}};
    for (const Case& row : cases) {
        SCOPED_TRACE(row.text);
        m_app.WriteProfileString("LibraryNavigator", row.key, row.text);
        Report().SerializeSetup(false);
        const TReport::TOptions& options = Report().GetOptions();
        EXPECT_EQ(CString(row.key) == "ShowVias" ? options.showVias : options.showHiddenCells, row.value);
    }
}

TEST_F(ReportSetupTest, KeepsTheBlankInFrontOfTheSecondViewOfTheFilter) {
    Report().SerializeSetup(false);
    SetOptions([](auto& options) { options.viewFilter = {"sym", "lay"}; });
    Report().SerializeSetup(true);
    Report().SerializeSetup(false);
    EXPECT_EQ(Report().GetOptions().viewFilter, (std::set<CStringIU>{"lay", " sym"}));
}

TEST_F(ReportSetupTest, SwitchingStoresTheOldOneAndLoadsTheNewOne) {
    Report().SerializeSetup(false);
    Column("View").SetWidth(99);
    m_host.ClearLines();
    Report().SwitchSetup(TReport::Setup3);
    EXPECT_EQ(Report().GetActiveSetup(), "Setup3");
    EXPECT_EQ(Column("View").GetWidth(), 50);
    EXPECT_EQ(m_host.LinesStarting("database cells").size(), 2u);
    Report().OnSwitchSetupTab(0);
    EXPECT_EQ(Column("View").GetWidth(), 99);
}

TEST_F(ReportSetupTest, SwitchingToTheActiveOneDoesNothing) {
    Report().SerializeSetup(false);
    // What a reading would bring in.
    m_app.WriteProfileString("LibraryNavigator", "ShowHiddenCells", "true");
    m_app.WriteProfileInt("LibraryNavigator\\Setup1\\Columns\\View", "Width", 99);
    const unsigned writes = Writes();
    m_host.ClearLines();
    Report().SwitchSetup(TReport::Setup1);
    Report().OnSwitchSetupTab(0);
    Report().OnSwitchSetupTab(3);
    Report().OnSwitchSetupTab(-1);
    EXPECT_EQ(Writes(), writes);
    EXPECT_FALSE(Report().GetOptions().showHiddenCells);
    EXPECT_EQ(Column("View").GetWidth(), 60);
    EXPECT_EQ(m_host.Lines(), TLines());
}

TEST_F(ReportSetupTest, SwitchingToNoneLoadsTheStoredOne) {
    Report().SerializeSetup(false);
    Report().SwitchSetup(TReport::Setup2);
    Cells().SwitchSetupTab(0);
    Report().SwitchSetup(static_cast<TReport::TColSetup>(7));
    EXPECT_EQ(Report().GetActiveSetup(), "Setup2");
    EXPECT_EQ(Cells().GetSetupTab(), 1);
}

TEST_F(ReportSetupTest, FollowsATabThatTheUserPicks) {
    Report().SerializeSetup(false);
    dynamic_cast<CTabCtrl&>(*Cells().GetDlgItem(TCellListView::cnTabs)).PickedByUser(2);
    EXPECT_EQ(Report().GetActiveSetup(), "Setup3");
}

TEST_F(ReportSetupTest, LosesTheLayoutOfARenamedColumn) {
    // The same column, third behind the built-in ones, in three runs of the program.
    const auto widthUnder = [this](const char* caption) {
        TCellListView pane;
        EXPECT_TRUE(pane.Create(&m_frame, 0));
        pane.OnInitialUpdate();
        pane.GetReport().AddColumn(caption, "a", true, false);
        pane.GetReport().SerializeSetup(false);
        const int width = pane.GetReport().GetColumns().Find(3)->GetWidth();
        pane.GetReport().GetColumns().Find(3)->SetWidth(123);
        return width;
    };
    EXPECT_EQ(widthUnder("Old"), 50);
    EXPECT_EQ(widthUnder("Old"), 123);
    EXPECT_EQ(widthUnder("New"), 50);
}

// Who shows the columns lays them out anew each time that he is told.
TEST_F(ReportSetupTest, LoadingTellsThePeerOnceHoweverManyColumnsThereAre) {
    m_app.WriteProfileString("LibraryNavigator\\Setup1\\Columns\\View", "Visible", "false");
    m_app.WriteProfileInt("LibraryNavigator\\Setup1\\Columns\\View", "Width", 99);
    m_app.WriteProfileInt("LibraryNavigator\\Setup1\\Columns\\View", "Order", 0);
    m_app.WriteProfileInt("LibraryNavigator\\Setup1\\Columns\\Cell", "Width", 77);
    RecordingPeers peers;
    TCellListView pane;
    ASSERT_TRUE(pane.Create(&m_frame, 0));
    pane.OnInitialUpdate();
    peers.ForgetAll();
    pane.GetReport().SerializeSetup(false);
    EXPECT_EQ(pane.GetReport().GetColumns().GetAt(0)->GetCaption(), "View");
    EXPECT_EQ(peers.Of(pane.GetReport()).changes.size(), 1u);
}

TEST_F(ReportSetupTest, ATabChangeIsHandledAndWhatIsNotTheListsGoesToTheBase) {
    // Sees what the pane answers to its controls.
    class OpenPane : public TCellListView {
    public:
        using TCellListView::OnNotify;
    };
    OpenPane pane;
    ASSERT_TRUE(pane.Create(&m_frame, 0));
    pane.OnInitialUpdate();
    Notification notification;
    notification.from = pane.GetDlgItem(TCellListView::cnTabs);
    notification.id = TCellListView::cnTabs;
    notification.code = cnTabSelectionChanged;
    LRESULT result = 0;
    EXPECT_TRUE(pane.OnNotify(notification, result));
    for (const UINT code :
         std::initializer_list<UINT>{cnEditChanged, cnButtonClicked, cnReportSelectionChanged, 0x7777}) {
        notification.code = code;
        EXPECT_FALSE(pane.OnNotify(notification, result)) << "the strip tells no such thing: " << code;
    }
    CStatic stranger;
    notification.from = &stranger;
    notification.code = cnTabSelectionChanged;
    EXPECT_FALSE(pane.OnNotify(notification, result));
}

TEST_F(ReportSetupTest, IsStoredWhenTheReportEnds) {
    {
        TCellListView pane;
        pane.GetReport().Init();
    }
    EXPECT_EQ(Text("LibraryNavigator\\Setup1\\Columns\\Cell", "Visible"), "true");
}

}  // namespace
