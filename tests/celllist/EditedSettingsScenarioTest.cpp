/// @file
/// What a hand, a newer version or an odd caption may have done to the settings of the setups: the list takes
/// what it can, and leaves alone what is not its own.
#include "tests/celllist/ReportSetupFixture.h"
#include "vapp/text/ActiveCodePage.h"

namespace {

using namespace vapp_library_browser;
using TLines = std::vector<std::string>;
using EditedSettingsScenario = ReportSetupFixture;

TEST_F(EditedSettingsScenario, ReadsEveryFormOfEveryBoolean) {
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

TEST_F(EditedSettingsScenario, AVisibilityIsReadByTheDefaultOfTheSetupAndTheColumn) {
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

TEST_F(EditedSettingsScenario, TakesTheLayoutOfEachSetupFromItsOwnSections) {
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

TEST_F(EditedSettingsScenario, SwitchingReloadsTheOptionsThatItHasJustStored) {
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

TEST_F(EditedSettingsScenario, ATabOfNoSetupIsTheThirdWithTheLayoutOfTheFirst) {
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

TEST_F(EditedSettingsScenario, AnEmptyNameOfASetupIsAskedForAgain) {
    m_app.WriteProfileString("LibraryNavigator", "ActiveSetup", "");
    Report().SerializeSetup(false);
    EXPECT_TRUE(Report().GetActiveSetup().IsEmpty());
    EXPECT_EQ(Cells().GetSetupTab(), 2);
    m_app.WriteProfileString("LibraryNavigator", "ActiveSetup", "Setup2");
    Report().SerializeSetup(false);
    EXPECT_EQ(Report().GetActiveSetup(), "Setup2");
}

TEST_F(EditedSettingsScenario, TakesAnyNumberForAWidthOrAPlace) {
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

TEST_F(EditedSettingsScenario, ANumberInPlaceOfAWordAndAWordInPlaceOfANumberAreDefaults) {
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

TEST_F(EditedSettingsScenario, ReadsTheListOfViewsThatAHandHasWritten) {
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

TEST_F(EditedSettingsScenario, LeavesValuesOfANewerVersionAsTheyAre) {
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

TEST_F(EditedSettingsScenario, KeepsTheLayoutOfAColumnWhateverItsCaption) {
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

TEST_F(EditedSettingsScenario, SectionsAreUtf8WhateverTheCodePage) {
    gSetActiveCodePage(1252);
    Report().AddColumn(CStringU("M\xC3\xBCller", TextEncoding::Utf8Auto), "state", true, false);
    Report().SerializeSetup(true);
    gSetActiveCodePage(0);
    EXPECT_EQ(Integer("LibraryNavigator\\Setup1\\Columns\\M\xC3\xBCller", "Width"), 50);
}

// Columns that a host adds twice share their section: the later position wins when read.
TEST_F(EditedSettingsScenario, ColumnsOfOneCaptionShareTheirLayout) {
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

TEST_F(EditedSettingsScenario, ASwitchOfTwelveColumnsAsksForTheListOnce) {
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

TEST_F(EditedSettingsScenario, WritesTheFormerSetupBeforeItReadsTheOther) {
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
