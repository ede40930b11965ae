#include "tests/celllist/CellListFixture.h"
#include "tests/toolkit/RecordingPeers.h"
#include "vapp/text/ActiveCodePage.h"

namespace {

using namespace vapp_library_browser;
using TLines = std::vector<std::string>;

class ReportSetupTest : public CellListFixture {
protected:
    void SetUp() override { ShowCells({{"l1", "a", "v"}}); }

    [[nodiscard]] CString Text(const char* section, const char* key) {
        return m_app.GetProfileString(section, key, "missing");
    }
    [[nodiscard]] int Integer(const char* section, const char* key) {
        return m_app.GetProfileInt(section, key, -1);
    }
    [[nodiscard]] unsigned Writes() {
        return dynamic_cast<MemoryProfileStore&>(m_app.GetProfileStore()).GetWriteCount();
    }
    [[nodiscard]] TLines Captions() {
        TLines captions;
        for (int position = 0; position < Report().GetColumns().GetCount(); ++position)
            captions.emplace_back(Report().GetColumns().GetAt(position)->GetCaption());
        return captions;
    }
};

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

// --- What a hand may have done to the settings -------------------------------------------------------------

// Every form of a boolean, for each of the values, in both kinds of default.
TEST_F(ReportSetupTest, ReadsEveryFormOfEveryBoolean) {
    struct Value {
        const char* key;
        bool TReport::TOptions::*option;
        bool standard;
    };
    const Value values[] = {
        {"ShowHiddenCells", &TReport::TOptions::showHiddenCells, false},
        {"ShowVias", &TReport::TOptions::showVias, true},
        {"FilterSubstringCaseSensitive", &TReport::TOptions::filterCaseSensitive, false},
        {"FilterSubstringAllColumns", &TReport::TOptions::filterAllColumns, false},
        {"FilterSubstringCellName", &TReport::TOptions::filterCellName, true},
        {"FilterSubstringViewName", &TReport::TOptions::filterViewName, false},
        {"Color\\FilteredList", &TReport::TOptions::colorFilteredList, true},
        {"Color\\ReservedCells", &TReport::TOptions::colorReservedCells, true},
        {"Color\\HiddenCells", &TReport::TOptions::colorHiddenCells, true},
        {"Color\\UnresolvedCells", &TReport::TOptions::colorUnresolvedCells, true},
    };
    struct Form {
        const char* text;
        bool isTrueWord;   // turns a value on that is off by default
        bool isFalseWord;  // turns a value off that is on by default
    };
    const Form forms[] = {
        {"true", true, false},      {"TRUE", true, false},
        {"True", true, false},      {"tRuE", true, false},
        {"yes", true, false},       {"YES", true, false},
        {"Yes", true, false},       {"1", true, false},
        {"Y", true, false},         {"y", true, false},
        {"false", false, true},     {"FALSE", false, true},
        {"False", false, true},     {"no", false, true},
        {"NO", false, true},        {"No", false, true},
        {"0", false, true},         {"N", false, true},
        {"n", false, true},         {"", false, false},
        {" true", false, false},    {"true ", false, false},
        {"yes ", false, false},     {"t", false, false},
        {"T", false, false},        {"f", false, false},
        {"on", false, false},       {"off", false, false},
        {"2", false, false},        {"01", false, false},
        {"00", false, false},       {"-1", false, false},
        {"ye", false, false},       {"yess", false, false},
        {"nope", false, false},     {"y ", false, false},
        {"\xC3\xA4", false, false}, {"tru\xC3\xA9", false, false},
    };
    for (const Value& value : values) {
        for (const Form& form : forms) {
            SCOPED_TRACE(std::string(value.key) + " = " + form.text);
            m_app.WriteProfileString("LibraryNavigator", value.key, form.text);
            Report().SerializeSetup(false);
            EXPECT_EQ(Report().GetOptions().*value.option,
                      value.standard ? !form.isFalseWord : form.isTrueWord);
        }
        m_app.WriteProfileString("LibraryNavigator", value.key, value.standard ? "no" : "yes");
        Report().SerializeSetup(false);
        Report().SerializeSetup(true);
        EXPECT_EQ(Text("LibraryNavigator", value.key), CString(value.standard ? "false" : "true"))
            << "written in one form only";
    }
}

TEST_F(ReportSetupTest, AVisibilityIsReadByTheDefaultOfTheSetupAndTheColumn) {
    Report().AddColumn("State", "state", true, true);
    const auto visible = [this](const char* setup, const char* caption, const char* text) {
        const CString section = CString("LibraryNavigator\\") + setup + "\\Columns\\" + caption;
        m_app.WriteProfileString(section, "Visible", text);
        Report().SwitchSetup(TReport::Setup1);
        Report().SwitchSetup(TReport::Setup2);
        // Written by the switch; put back what the hand wrote, and read it.
        m_app.WriteProfileString(section, "Visible", text);
        m_app.WriteProfileString("LibraryNavigator", "ActiveSetup", setup);
        if (CString(setup) == "Setup1") Report().SwitchSetup(TReport::Setup1);
        if (CString(setup) == "Setup3") Report().SwitchSetup(TReport::Setup3);
        if (CString(setup) == "Setup2") Report().SerializeSetup(false);
        return Column(caption).IsVisible();
    };
    Report().SerializeSetup(false);
    EXPECT_TRUE(visible("Setup2", "View", "what?"));
    EXPECT_FALSE(visible("Setup2", "View", "N"));
    EXPECT_FALSE(visible("Setup1", "State", "what?")) << "hidden by default there";
    EXPECT_TRUE(visible("Setup1", "State", "y"));
    EXPECT_TRUE(visible("Setup2", "State", "what?")) << "and shown by default here";
    EXPECT_FALSE(visible("Setup3", "State", "what?")) << "left out of the third by its host";
}

TEST_F(ReportSetupTest, TakesTheLayoutOfEachSetupFromItsOwnSections) {
    Report().AddColumn("State", "state", true, false);
    Report().SerializeSetup(false);
    const struct {
        TReport::TColSetup setup;
        int cell, view, library;
        bool state;
    } standards[] = {{TReport::Setup2, 140, 60, 60, true},
                     {TReport::Setup3, 120, 50, 50, true},
                     {TReport::Setup1, 140, 60, 60, false}};
    for (const auto& standard : standards) {
        SCOPED_TRACE(standard.setup);
        Report().SwitchSetup(standard.setup);
        EXPECT_EQ(Column("Cell").GetWidth(), standard.cell);
        EXPECT_EQ(Column("View").GetWidth(), standard.view);
        EXPECT_EQ(Column("Library").GetWidth(), standard.library);
        EXPECT_EQ(Column("State").GetWidth(), 50);
        EXPECT_EQ(Column("State").IsVisible(), standard.state);
        Column("State").SetWidth(70 + standard.setup);
        Report().GetColumns().ChangeColumnOrder(standard.setup, &Column("Cell"));
    }
    for (const auto& standard : standards) {
        SCOPED_TRACE(standard.setup);
        Report().SwitchSetup(standard.setup);
        EXPECT_EQ(Column("State").GetWidth(), 70 + standard.setup);
        EXPECT_EQ(Report().GetColumns().IndexOf(&Column("Cell")), standard.setup);
        EXPECT_EQ(Report().GetFreezeColumnsCount(), standard.setup + 1);
    }
}

TEST_F(ReportSetupTest, SwitchingReloadsTheOptionsThatItHasJustStored) {
    Report().SerializeSetup(false);
    SetOptions([](auto& options) {
        options.viewFilter = {"lay", "sym"};
        options.showHiddenCells = true;
    });
    Report().SwitchSetup(TReport::Setup2);
    EXPECT_TRUE(Report().GetOptions().showHiddenCells);
    EXPECT_EQ(Report().GetOptions().viewFilter, (std::set<CStringIU>{" sym", "lay"}))
        << "the blank comes in by a switch already";
    Report().SwitchSetup(TReport::Setup1);
    EXPECT_EQ(Report().GetOptions().viewFilter, (std::set<CStringIU>{" lay", " sym"}))
        << "with a blank in front a name comes first, and the other one is the second now";
    Report().SwitchSetup(TReport::Setup2);
    EXPECT_EQ(Report().GetOptions().viewFilter, (std::set<CStringIU>{" lay", "  sym"}))
        << "so that blanks gather; hosts take them away";
}

TEST_F(ReportSetupTest, ATabOfNoSetupIsTheThirdWithTheLayoutOfTheFirst) {
    for (const char* name : {"Setup4", "setup2", "Setup2 ", "\xC3\xA4\\[x]/y", "Setup1\\Columns"}) {
        SCOPED_TRACE(name);
        m_app.WriteProfileString("LibraryNavigator", "ActiveSetup", name);
        TCellListView pane;
        ASSERT_TRUE(pane.Create(&m_frame, 0));
        pane.OnInitialUpdate();
        pane.GetReport().SerializeSetup(false);
        EXPECT_EQ(pane.GetSetupTab(), 2);
        EXPECT_STREQ(pane.GetReport().GetActiveSetup().Payload(), name);
        EXPECT_EQ(pane.GetReport().GetColumns().GetAt(0)->GetWidth(), 140);
        pane.GetReport().SwitchSetup(TReport::Setup2);
        EXPECT_EQ(pane.GetReport().GetActiveSetup(), "Setup2");
    }
}

TEST_F(ReportSetupTest, AnEmptyNameOfASetupIsAskedForAgain) {
    m_app.WriteProfileString("LibraryNavigator", "ActiveSetup", "");
    Report().SerializeSetup(false);
    EXPECT_TRUE(Report().GetActiveSetup().IsEmpty());
    EXPECT_EQ(Cells().GetSetupTab(), 2);
    m_app.WriteProfileString("LibraryNavigator", "ActiveSetup", "Setup2");
    Report().SerializeSetup(false);
    EXPECT_EQ(Report().GetActiveSetup(), "Setup2");
}

TEST_F(ReportSetupTest, TakesAnyNumberForAWidthOrAPlace) {
    const int numbers[] = {0, -1, 1, 9998, 9999, 10000, 2147483647, -2147483647 - 1};
    for (const int number : numbers) {
        SCOPED_TRACE(number);
        m_app.WriteProfileInt("LibraryNavigator\\Setup1\\Columns\\View", "Width", number);
        m_app.WriteProfileInt("LibraryNavigator\\Setup1\\Columns\\View", "Order", number);
        Report().SerializeSetup(false);
        EXPECT_EQ(Column("View").GetWidth(), number);
        EXPECT_EQ(Captions().size(), 3u);
        EXPECT_GE(Report().GetFreezeColumnsCount(), 1);
        EXPECT_NE(Report().HeaderHitTest({2, 2}), nullptr);
    }
}

TEST_F(ReportSetupTest, ANumberInPlaceOfAWordAndAWordInPlaceOfANumberAreDefaults) {
    m_app.WriteProfileInt("LibraryNavigator", "ShowHiddenCells", 2);
    m_app.WriteProfileInt("LibraryNavigator", "ActiveSetup", 2);
    m_app.WriteProfileInt("LibraryNavigator", "ViewFilter", 3);
    m_app.WriteProfileString("LibraryNavigator\\Setup1\\Columns\\Cell", "Width", "wide");
    m_app.WriteProfileString("LibraryNavigator\\Setup1\\Columns\\Cell", "Order", "0");
    Report().SerializeSetup(false);
    EXPECT_FALSE(Report().GetOptions().showHiddenCells);
    EXPECT_EQ(Report().GetActiveSetup(), "Setup1");
    EXPECT_TRUE(Report().GetOptions().viewFilter.empty());
    EXPECT_EQ(Column("Cell").GetWidth(), 140);
}

TEST_F(ReportSetupTest, ReadsTheListOfViewsThatAHandHasWritten) {
    const std::pair<const char*, std::set<CStringIU>> cases[] = {
        {"", {}},
        {",,, ,", {" "}},
        {",,,", {}},
        {"lay", {"lay"}},
        {"lay,LAY,Lay", {"lay"}},
        {"a,b;c, d ,", {"a", "b;c", " d "}},
        {"{a b},[x],$y,\"", {"{a b}", "[x]", "$y", "\""}},
    };
    for (const auto& [text, views] : cases) {
        SCOPED_TRACE(text);
        m_app.WriteProfileString("LibraryNavigator", "ViewFilter", text);
        Report().SerializeSetup(false);
        EXPECT_EQ(Report().GetOptions().viewFilter, views);
        Repopulate();
    }
}

TEST_F(ReportSetupTest, LeavesValuesOfANewerVersionAsTheyAre) {
    m_app.WriteProfileString("LibraryNavigator", "Flavour", "new");
    m_app.WriteProfileInt("LibraryNavigator\\Setup1\\Columns\\Cell", "Pinned", 1);
    m_app.WriteProfileString("LibraryNavigator\\Setup4\\Columns\\Cell", "Visible", "false");
    m_app.WriteProfileString("SomebodyElse", "Key", "value");
    Report().SerializeSetup(false);
    Report().SwitchSetup(TReport::Setup3);
    Report().SerializeSetup(true);
    EXPECT_EQ(Text("LibraryNavigator", "Flavour"), "new");
    EXPECT_EQ(Integer("LibraryNavigator\\Setup1\\Columns\\Cell", "Pinned"), 1);
    EXPECT_EQ(Text("LibraryNavigator\\Setup4\\Columns\\Cell", "Visible"), "false");
    EXPECT_EQ(Text("SomebodyElse", "Key"), "value");
}

TEST_F(ReportSetupTest, KeepsTheLayoutOfAColumnWhateverItsCaption) {
    const char* const captions[] = {
        "a\\b", "a/b", "[x]", "", " ", "Cell\\..\\x", "=;#%", "M\xC3\xBCller", "\xF0\x9F\x98\x80"};
    Report().SerializeSetup(false);
    for (const char* caption : captions)
        Report().AddColumn(CStringU(caption, TextEncoding::Utf8Auto), "state", true, false);
    int width = 100;
    for (int position = 3; position < Report().GetColumns().GetCount(); ++position)
        Report().GetColumns().GetAt(position)->SetWidth(width++);
    Report().GetColumns().ChangeColumnOrder(0, Report().GetColumns().GetAt(7));
    const TLines before = Captions();
    Report().SwitchSetup(TReport::Setup2);
    Report().SwitchSetup(TReport::Setup1);
    EXPECT_EQ(Captions(), before);
    width = 100;
    for (int item = 3; item < Report().GetColumns().GetCount(); ++item)
        EXPECT_EQ(Report().GetColumns().Find(item)->GetWidth(), width++) << item;
}

TEST_F(ReportSetupTest, SectionsAreUtf8WhateverTheCodePage) {
    gSetActiveCodePage(1252);
    Report().AddColumn(CStringU("M\xC3\xBCller", TextEncoding::Utf8Auto), "state", true, false);
    Report().SerializeSetup(true);
    gSetActiveCodePage(0);
    EXPECT_EQ(Integer("LibraryNavigator\\Setup1\\Columns\\M\xC3\xBCller", "Width"), 50);
}

// Columns that a host adds twice share their section: the later position wins when read.
TEST_F(ReportSetupTest, ColumnsOfOneCaptionShareTheirLayout) {
    Report().AddColumn("State", "a", true, false);
    Report().AddColumn("State", "b", true, false);
    Report().SerializeSetup(false);
    Report().GetColumns().Find(3)->SetWidth(71);
    Report().GetColumns().Find(4)->SetWidth(72);
    Report().SerializeSetup(true);
    Report().SerializeSetup(false);
    EXPECT_EQ(Report().GetColumns().Find(3)->GetWidth(), 72);
    EXPECT_EQ(Report().GetColumns().Find(4)->GetWidth(), 72);
    EXPECT_EQ(Report().GetColumns().GetCount(), 5);
}

TEST_F(ReportSetupTest, ASwitchOfTwelveColumnsAsksForTheListOnce) {
    for (int number = 0; number < 9; ++number)
        Report().AddColumn(("Column" + std::to_string(number)).c_str(), "state", true, false);
    Report().SerializeSetup(false);
    m_host.ClearLines();
    Report().SwitchSetup(TReport::Setup2);
    EXPECT_EQ(Report().GetColumns().GetCount(), 12);
    EXPECT_EQ(m_host.LinesStarting(csCount).size(), 1u);
    EXPECT_EQ(m_host.LinesStarting(csList).size(), 1u);
    EXPECT_EQ(m_host.LinesStarting("database").size(), 2u) << "and for nothing else";
    EXPECT_EQ(m_host.LinesStarting("state"), TLines()) << "what nobody looks at is not asked for";
}

TEST_F(ReportSetupTest, WritesTheFormerSetupBeforeItReadsTheOther) {
    Report().SerializeSetup(false);
    Column("View").SetWidth(99);
    Report().SwitchSetup(TReport::Setup2);
    EXPECT_EQ(Integer("LibraryNavigator\\Setup1\\Columns\\View", "Width"), 99);
    EXPECT_EQ(Integer("LibraryNavigator\\Setup2\\Columns\\View", "Width"), -1) << "not written yet";
    EXPECT_EQ(Text("LibraryNavigator", "ActiveSetup"), "Setup1") << "stored with the next writing";
    Report().SerializeSetup(true);
    EXPECT_EQ(Text("LibraryNavigator", "ActiveSetup"), "Setup2");
}

}  // namespace
