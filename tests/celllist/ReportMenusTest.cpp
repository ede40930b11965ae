#include <gtest/gtest.h>
#include <tcl.h>

#include <optional>

#include "tests/celllist/CellListFixture.h"
#include "tests/celllist/ListeningWindow.h"
#include "tests/toolkit/RecordingPeers.h"
#include "vapp/browser/CExcludeDlg.h"
#include "vapp/celllist/TCellListCommand.h"
#include "vapp/text/ActiveCodePage.h"

namespace {

using namespace vapp_library_browser;
using TLines = std::vector<std::string>;
using TViews = std::set<CStringIU>;

constexpr char csViewQuery[] = "database cells -lcv -library top";

class ReportMenusTest : public CellListFixture {
protected:
    void SetUp() override {
        ShowCells({{"l1", "a", "sym"}, {"l1", "b", "lay"}});
        m_host.Answer(csViewQuery, "{l1 a sym} {l1 b lay} {l1 c LAY} {l2 d sch} {l1 two} {1 2 3 4}");
        m_peers.pick = [this](const CMenu& menu) {
            ++m_shown;
            if (m_look) m_look(menu);
            return m_pick;
        };
    }

    // A right click on the rows, or on a header.
    void RightClick() {
        Report().ContextMenuByPeer(Report().ClientToScreen({10, Report().GetHeaderHeight() + 1}));
    }
    void RightClickHeader(const char* caption) {
        int left = 1;
        for (int position = 0; Report().GetColumns().GetAt(position) != &Column(caption); ++position)
            left += Report().GetColumns().GetAt(position)->GetShownWidth();
        Report().ContextMenuByPeer(Report().ClientToScreen({left, 1}));
    }
    void Pick(UINT command) {
        m_pick = command;
        RightClick();
        m_pick = 0;
    }
    [[nodiscard]] std::size_t Queries() { return m_host.LinesStarting(csCount).size(); }
    [[nodiscard]] TViews Filter() { return Report().GetOptions().viewFilter; }

    RecordingPeers m_peers;
    std::function<void(const CMenu&)> m_look;
    UINT m_pick = 0;
    int m_shown = 0;
};

TLines LinesOf(const CMenu& menu) {
    TLines lines;
    for (int position = 0; position < menu.GetItemCount(); ++position) {
        const CMenu::TItem& item = *menu.GetItem(position);
        const bool isSeparator = item.kind == CMenu::TItem::TKind::Separator;
        lines.push_back(isSeparator ? "-"
                                    : std::to_string(item.id) + " " + item.text.Payload() +
                                          (item.isChecked ? " *" : ""));
    }
    return lines;
}

// --- The menu of the view names ----------------------------------------------------------------------------

TEST_F(ReportMenusTest, ListsTheViewsInTheOrderOfTheSetBehindAllOfThem) {
    CMenu menu;
    menu.Append(AllViewNames, "stands for them");
    Report().CreateViewNameFilterMenu(&menu, {"sym", "lay", "a&b"});
    EXPECT_EQ(LinesOf(menu),
              (TLines{"40665 Show All View-names *", "-", "43000 a&&b", "43001 lay", "43002 sym"}));
    Report().CreateViewNameFilterMenu(nullptr, {});
    CMenu empty;
    Report().CreateViewNameFilterMenu(&empty, {});
    EXPECT_EQ(LinesOf(empty), (TLines{"40665 Show All View-names *", "-"}));
}

TEST_F(ReportMenusTest, ChecksTheViewsOfTheFilterWhateverTheirCase) {
    SetOptions([](auto& options) { options.viewFilter = {"LAY", "gone"}; });
    CMenu menu;
    Report().CreateViewNameFilterMenu(&menu, {"sym", "lay"});
    EXPECT_EQ(LinesOf(menu), (TLines{"40665 Show All View-names", "-", "43000 lay *", "43001 sym"}));
}

TEST_F(ReportMenusTest, MissesTheMarkOfANameThatCameBackWithABlank) {
    Report().SerializeSetup(false);
    SetOptions([](auto& options) { options.viewFilter = {"lay", "sym"}; });
    Report().SerializeSetup(true);
    Report().SerializeSetup(false);
    CMenu menu;
    Report().CreateViewNameFilterMenu(&menu, {"sym", "lay"});
    EXPECT_EQ(LinesOf(menu), (TLines{"40665 Show All View-names", "-", "43000 lay *", "43001 sym"}));
    EXPECT_TRUE(Report().ProcessViewNameFilterMenu(43001, {"sym", "lay"}));
    EXPECT_EQ(Filter(), (TViews{" sym", "lay", "sym"})) << "so a pick adds it once more";
}

TEST_F(ReportMenusTest, TurnsViewsOnAndOffAndPopulates) {
    const TViews views = {"lay", "sym"};
    EXPECT_TRUE(Report().ProcessViewNameFilterMenu(43001, views));
    EXPECT_EQ(Filter(), TViews{"sym"});
    EXPECT_TRUE(Report().ProcessViewNameFilterMenu(43000, views));
    EXPECT_EQ(Filter(), views) << "several at a time";
    EXPECT_EQ(Queries(), 2u);
    EXPECT_NE(m_host.LinesStarting("database cells").back().find(" -views {lay sym}"), std::string::npos);
    EXPECT_TRUE(Report().ProcessViewNameFilterMenu(43001, views));
    EXPECT_EQ(Filter(), TViews{"lay"});
    EXPECT_EQ(Queries(), 3u);
}

TEST_F(ReportMenusTest, ShowsAllViewsAgainButOnlyIfSomeWereLeftOut) {
    EXPECT_TRUE(Report().ProcessViewNameFilterMenu(40665, {"lay"}));
    EXPECT_EQ(m_host.Lines(), TLines());
    SetOptions([](auto& options) { options.viewFilter = {"lay"}; });
    EXPECT_TRUE(Report().ProcessViewNameFilterMenu(40665, {"lay"}));
    EXPECT_EQ(Filter(), TViews());
    EXPECT_EQ(Queries(), 1u);
}

TEST_F(ReportMenusTest, PopulatesForAViewThatIsNotInTheMenuAndLeavesOtherNumbersToOthers) {
    EXPECT_TRUE(Report().ProcessViewNameFilterMenu(43001, {"lay"}));
    EXPECT_TRUE(Report().ProcessViewNameFilterMenu(0x7FFFFFFF, {"lay"}));
    EXPECT_EQ(Filter(), TViews());
    EXPECT_EQ(Queries(), 2u);
    for (const int id : {42999, 40664, 0, -1, -2147483647}) {
        EXPECT_FALSE(Report().ProcessViewNameFilterMenu(id, {"lay"})) << id;
    }
    EXPECT_EQ(Queries(), 2u);
}

TEST_F(ReportMenusTest, IsTheWholeMenuOfTheHeaderOfViews) {
    TLines lines;
    m_look = [&lines](const CMenu& menu) { lines = LinesOf(menu); };
    m_pick = 43001;
    RightClickHeader("View");
    EXPECT_EQ(lines, (TLines{"40665 Show All View-names *", "-", "43000 lay", "43001 sch", "43002 sym"}))
        << "views of all libraries, each once";
    EXPECT_EQ(Filter(), TViews{"sch"});
    EXPECT_EQ(Queries(), 1u);
    EXPECT_EQ(m_peers.menuAlign, TMenuAlign::Left);
}

TEST_F(ReportMenusTest, AsksOnceAndShowsNothingOnAnotherHeader) {
    RightClickHeader("Cell");
    RightClickHeader("Library");
    EXPECT_EQ(m_shown, 0);
    EXPECT_EQ(m_host.Lines(), (TLines{csViewQuery, csViewQuery}));
}

TEST_F(ReportMenusTest, ShowsNothingWithoutADesignOrAProperAnswer) {
    for (const char* answer : {"{", "{l1 a sym} \"{\"", "{l1 {a}b sym}"}) {
        m_host.Answer(csViewQuery, answer);
        RightClick();
        RightClickHeader("View");
    }
    m_host.AnswerCode(csViewQuery, TCL_ERROR, "no");
    RightClick();
    m_host.Answer("database all_libs", "");
    Refresh();
    ASSERT_TRUE(Libraries().GetSelectedDesign().IsEmpty());
    m_host.ClearLines();
    RightClick();
    EXPECT_EQ(m_host.Lines(), TLines());
    EXPECT_EQ(m_shown, 0);
}

TEST_F(ReportMenusTest, SanitisesTheDesign) {
    const HookGuard hook;
    m_host.Answer("database all_libs", "{{a design} {l1 /l1}}");
    Refresh();
    m_host.ClearLines();
    m_host.Answer("database cells -lcv -library {a design}", "{l1 a sym}");
    RightClick();
    EXPECT_EQ(m_host.Lines(), TLines{"database cells -lcv -library {a design}"});
    EXPECT_EQ(m_shown, 1);
}

// --- The menu of the rows ----------------------------------------------------------------------------------

TEST_F(ReportMenusTest, HasTheViewNamesInItsSubMenu) {
    TLines lines;
    m_look = [&lines](const CMenu& menu) {
        lines = LinesOf(*const_cast<CMenu&>(menu).FindOwner(AllViewNames));
    };
    Pick(43002);
    EXPECT_EQ(lines.size(), 5u);
    EXPECT_EQ(lines.front(), "40665 Show All View-names *");
    EXPECT_EQ(Filter(), TViews{"sym"});
}

TEST_F(ReportMenusTest, ChecksWhatIsOn) {
    Report().SerializeSetup(false);
    Report().SwitchSetup(TReport::Setup2);
    SetOptions([](auto& options) {
        options.showHiddenCells = true;
        options.showVias = false;
        options.filterCaseSensitive = true;
        options.filterViewName = true;
        options.colorReservedCells = false;
    });
    std::set<UINT> on;
    m_look = [&on](const CMenu& menu) {
        for (UINT id = 40600; id < 40700; ++id) {
            if (menu.IsChecked(id)) on.insert(id);
        }
    };
    RightClick();
    EXPECT_EQ(on, (std::set<UINT>{40621, 40623, 40626, 40628, 40629, 40661, 40664, 40665, 40686}));
}

TEST_F(ReportMenusTest, ChecksNoSetupIfTheActiveOneIsNoneOfThem) {
    m_app.WriteProfileString("LibraryNavigator", "ActiveSetup", "Setup7");
    Report().SerializeSetup(false);
    std::set<UINT> on;
    m_look = [&on](const CMenu& menu) {
        for (const UINT id : {40622U, 40623U, 40624U}) {
            if (menu.IsChecked(id)) on.insert(id);
        }
    };
    RightClick();
    EXPECT_EQ(m_shown, 1);
    EXPECT_EQ(on, std::set<UINT>());
}

TEST_F(ReportMenusTest, GreysSelectAllWhileNothingIsSelected) {
    std::optional<bool> enabled;
    m_look = [&enabled](const CMenu& menu) { enabled = menu.IsEnabled(SelectAll); };
    Report().GetSelectedRows().Clear();
    Pick(SelectAll);
    EXPECT_EQ(enabled, false);
    EXPECT_EQ(SelectedCells(), TLines()) << "what is grey can't be picked";
    SelectRow(0);
    Pick(SelectAll);
    EXPECT_EQ(enabled, true);
    EXPECT_EQ(SelectedCells().size(), 2u);
}

TEST_F(ReportMenusTest, LeavesOutWhatTheSchematicEditorHasNot) {
    m_browser.ModifyForQEdit();
    std::set<UINT> missing;
    m_look = [&missing](const CMenu& menu) {
        for (const UINT id : {40621U, 40630U, 40664U, 40626U, 40661U, 32772U}) {
            if (menu.FindItem(id) == nullptr) missing.insert(id);
        }
    };
    RightClick();
    EXPECT_EQ(missing, (std::set<UINT>{40621, 40630, 40664}));
}

TEST_F(ReportMenusTest, AnOptionPopulatesAtOnceAndGoesIntoTheLines) {
    Cells().SetNeedsPopulate(false);
    Pick(ShowHiddenCells);
    EXPECT_TRUE(Report().GetOptions().showHiddenCells);
    EXPECT_EQ(Queries(), 1u);
    EXPECT_NE(m_host.LinesStarting("database cells").back().find(" -showhiddencells -showvias"),
              std::string::npos);
    Pick(ShowVias);
    EXPECT_EQ(m_host.LinesStarting("database cells").back(), std::string(csList) + " -showhiddencells");
    EXPECT_FALSE(Cells().NeedsPopulate());
}

TEST_F(ReportMenusTest, OptionsOfTheSubStringDecideWhichRowsShow) {
    Type("lay");
    m_browser.Populate();
    EXPECT_EQ(Rows(), TLines());
    Pick(FilterViewName);
    EXPECT_EQ(Rows(), TLines{"l1 b lay"});
    Pick(FilterCaseSensitive);
    EXPECT_EQ(Rows(), TLines{"l1 b lay"});
    Type("LAY");
    m_browser.Populate();
    EXPECT_EQ(Rows(), TLines());
}

TEST_F(ReportMenusTest, ASetupSelectsItsTabAndPopulatesOnceMore) {
    Report().SerializeSetup(false);
    Pick(UseSetup3);
    EXPECT_EQ(Report().GetActiveSetup(), "Setup3");
    EXPECT_EQ(Cells().GetSetupTab(), 2);
    EXPECT_EQ(Queries(), 2u);
    m_host.ClearLines();
    Cells().SwitchSetupTab(0);
    Pick(UseSetup3);
    EXPECT_EQ(Cells().GetSetupTab(), 2);
    EXPECT_EQ(Queries(), 1u) << "also the active one";
}

TEST_F(ReportMenusTest, TellsThatAHostsCommandWithoutAHandlerDoesNothing) {
    Pick(SelectHierarchy);
    Pick(ColumnChooser);
    ASSERT_EQ(m_peers.boxes.size(), 2u);
    EXPECT_EQ(m_peers.boxes[0].GetText(), "Not yet implemented.");
    EXPECT_EQ(Queries(), 0u);
    Pick(0);
    EXPECT_EQ(m_peers.boxes.size(), 2u) << "a menu that was left says nothing";
}

// Numbers from the 2001st item on are those of view names.
TEST_F(ReportMenusTest, AnItemWithAnEmptyCommandHasNoHandler) {
    ListeningWindow listener(m_app);
    UINT last = 0;
    listener.m_whenAsked = [&] {
        if (listener.m_messages.back().first != WM_LN_BUILDCELLMENU) return;
        m_browser.AddCellListMenuCommand("empty", "", StyleCommandOnly, false, false, false);
        for (int item = 1; item <= 2000; ++item) {
            last = Report().GetNextCellListPopupCmdId();
            m_browser.AddCellListMenuCommand("more", item < 2000 ? "act" : "", StyleCommandOnly, false, false,
                                             false);
        }
    };
    m_pick = 41000;
    RightClick();
    ASSERT_EQ(m_peers.boxes.size(), 1u);
    EXPECT_EQ(m_peers.boxes[0].GetText(), "Not yet implemented.");
    EXPECT_TRUE(Report().GetOptions().viewFilter.empty());
    EXPECT_EQ(last, TReport::cnBaseID);
    m_pick = last;
    RightClick();
    EXPECT_EQ(m_peers.boxes.size(), 1u);
    EXPECT_EQ(Report().GetOptions().viewFilter.size(), 1u);
}

TEST_F(ReportMenusTest, AsksWhetherTheColumnChooserIsShown) {
    ListeningWindow window(m_app);
    RightClick();
    const auto& messages = window.m_messages;
    EXPECT_EQ(std::count_if(messages.begin(), messages.end(),
                            [](const auto& message) { return message.first == WM_LN_COLCHOOSERSHOWN; }),
              1);
}

TEST_F(ReportMenusTest, SurvivesTheEndOfTheWindowWhileAMenuIsOpen) {
    // It lives on as long as its own menu is open.
    const TReport& report = Report();
    bool isSet = true;
    std::size_t lines = 0;
    m_look = [&](const CMenu& /*menu*/) {
        m_browser.DestroyWindow();
        isSet = report.GetOptions().showHiddenCells;
        lines = m_host.Lines().size();
    };
    Pick(ShowHiddenCells);
    EXPECT_EQ(m_shown, 1);
    EXPECT_EQ(report.GetOptions().showHiddenCells, isSet) << "nobody has the list to see that";
    EXPECT_EQ(m_host.Lines().size(), lines);
}

TEST_F(ReportMenusTest, SurvivesTheEndOfTheWindowWhileItAsksForTheViews) {
    m_host.Handle(csViewQuery, [this](Tcl_Interp* interp) {
        m_browser.DestroyWindow();
        Tcl_SetObjResult(interp, Tcl_NewStringObj("{l1 a sym}", -1));
        return TCL_OK;
    });
    RightClick();
    EXPECT_EQ(m_shown, 0);
}

// --- The views to leave out --------------------------------------------------------------------------------

TEST_F(ReportMenusTest, TheConfirmedViewsToLeaveOutAreOfferedAndStoredAndTheListIsFetched) {
    m_peers.answerDialog = [](CDialog& dialog) {
        dynamic_cast<CEdit&>(*dialog.GetDlgItem(CExcludeDlg::cnEditId)).EditedByUser("one; two");
        dynamic_cast<CButton&>(*dialog.GetDlgItem(IDOK)).Click();
    };
    Pick(ExcludeViews);
    EXPECT_EQ(Cells().GetExcludeViews(), "one; two");
    EXPECT_EQ(m_browser.GetExcludeViews(), "one; two");
    EXPECT_EQ(m_app.GetProfileString("LibraryNavigator", "ExcludeViewNames"), "one; two");
    EXPECT_EQ(Queries(), 1u);
    for (const std::string& line : m_host.Lines())
        EXPECT_EQ(line.find("one"), std::string::npos) << "no line tells of them: hosts ask";
}

TEST_F(ReportMenusTest, ViewsToLeaveOutThatTheCodePageCanNotShowStayAsTheyAre) {
    gSetActiveCodePage(1252);
    const CStringU names("ads; \xE4\xB8\xAD", TextEncoding::Utf8Auto);
    m_app.WriteProfileString("LibraryNavigator", "ExcludeViewNames", names.StripMarker());
    m_peers.answerDialog = [](CDialog& dialog) { dynamic_cast<CButton&>(*dialog.GetDlgItem(IDOK)).Click(); };
    Pick(ExcludeViews);
    EXPECT_STREQ(Cells().GetExcludeViews().Payload(), names.Payload()) << "and no question mark";
    gSetActiveCodePage(0);
}

TEST_F(ReportMenusTest, CancellingTheViewsToLeaveOutChangesNothing) {
    m_peers.answerDialog = [](CDialog& dialog) {
        dynamic_cast<CEdit&>(*dialog.GetDlgItem(CExcludeDlg::cnEditId)).EditedByUser("other");
        dynamic_cast<CButton&>(*dialog.GetDlgItem(IDCANCEL)).Click();
    };
    Pick(ExcludeViews);
    EXPECT_NE(Cells().GetExcludeViews(), "other");
    EXPECT_EQ(Queries(), 0u);
}

// --- Walks over everything that narrows --------------------------------------------------------------------

// What the lines of a population say for a state of the options.
std::string OptionsOf(const TCellNamesReportCtrl::TOptions& options) {
    std::string text;
    if (options.showHiddenCells) text += " -showhiddencells";
    if (options.showVias) text += " -showvias";
    std::string views;
    for (const CStringIU& view : options.viewFilter)
        views += (views.empty() ? "" : " ") + std::string(view.Payload());
    if (!views.empty()) text += " -views {" + views + "}";
    return text;
}

// Every sequence of three picks from the menu that reach the lines; the rules of the options themselves are
// walked through to the fifth step in their own test.
TEST_F(ReportMenusTest, EverySequenceOfPicksEndsInTheLinesOfItsState) {
    const std::vector<UINT> commands = {ShowHiddenCells, ShowVias, 43000, 43001, AllViewNames};
    const TViews views = {"lay", "sym"};
    int sequences = 0;
    for (std::size_t number = 0; number < 125; ++number) {
        SetOptions([](auto& options) { options = {}; });
        TReport::TOptions expected;
        for (std::size_t left = number, step = 0; step < 3; ++step, left /= 5) {
            const UINT command = commands[left % 5];
            const bool isOption = Report().OnMenuCommand(command);
            ASSERT_TRUE(isOption || Report().ProcessViewNameFilterMenu(static_cast<int>(command), views));
            const auto toggle = [&expected](const char* view) {
                if (expected.viewFilter.erase(view) == 0) expected.viewFilter.insert(view);
            };
            if (command == ShowHiddenCells) expected.showHiddenCells = !expected.showHiddenCells;
            if (command == ShowVias) expected.showVias = !expected.showVias;
            if (command == 43000) toggle("lay");
            if (command == 43001) toggle("sym");
            if (command == AllViewNames) expected.viewFilter.clear();
        }
        m_host.ClearLines();
        Repopulate();
        ASSERT_EQ(m_host.LinesStarting("database cells"),
                  (TLines{csCount + OptionsOf(expected), csList + OptionsOf(expected)}))
            << number;
        ++sequences;
    }
    EXPECT_EQ(sequences, 125);
}

}  // namespace
