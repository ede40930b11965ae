// What happens when the host's script comes back into the list, or answers what no host should.
#include <tcl.h>
#include <set>

#include "tests/celllist/CellListFixture.h"
#include "tests/celllist/ListeningWindow.h"
#include "tests/celllist/OtherInterpreter.h"

namespace {

using namespace vapp_library_browser;
using TLines = std::vector<std::string>;

class NestedPopulationScenarioTest : public CellListFixture {
protected:
    // Runs the function in the middle of the line and gives the answer then.
    void Inside(const std::string& start, const std::string& answer, std::function<void()> function) {
        m_host.HandleStart(start, [answer, function = std::move(function)](Tcl_Interp* interp) {
            function();
            Tcl_SetObjResult(interp, Tcl_NewStringObj(answer.c_str(), -1));
            return TCL_OK;
        });
    }
};

// A hook that is a host's script, too.
std::function<void()> s_insideHook;
CStringU RunInsideHook(const CStringU& name) {
    s_insideHook();
    return RecordingHost::Brace(name);
}
class ReentryHook {
public:
    ReentryHook() = default;
    ReentryHook(const ReentryHook&) = delete;
    ReentryHook& operator=(const ReentryHook&) = delete;
    ~ReentryHook() { s_insideHook = nullptr; }

private:
    HookGuard m_hook{&RunInsideHook};
};

TEST_F(NestedPopulationScenarioTest, PostponesADirectPopulationInTheMiddleOfOne) {
    ShowCells({{"l1", "a", "v"}});
    int nested = 0;
    Inside(csList, "{l1 b v}", [&] {
        if (++nested > 5) return;
        EXPECT_EQ(Report().GetCellViewCount(), 0u);
        Report().Populate();
        Report().SwitchSetup(TReport::Setup2);
    });
    Repopulate();
    EXPECT_EQ(nested, 1);
    EXPECT_EQ(Rows(), TLines{"l1 b v"});
    EXPECT_TRUE(Cells().NeedsPopulate());
    AnswerCells({{"l1", "c", "v"}});
    Cells().Populate();
    EXPECT_EQ(Rows(), TLines{"l1 c v"});
    EXPECT_FALSE(Cells().NeedsPopulate());
}

TEST_F(NestedPopulationScenarioTest, MarksTheListAlsoAfterADirectPopulationOfACleanOne) {
    ShowCells({{"l1", "a", "v"}});
    ASSERT_FALSE(Cells().NeedsPopulate());
    Inside(csCount, "1", [&] { Report().Populate(); });
    Report().Populate();
    EXPECT_TRUE(Cells().NeedsPopulate());
    Cells().SetNeedsPopulate(false);
    EXPECT_FALSE(Cells().NeedsPopulate());
}

// A host whose lines run an event loop calls these in every line: they must not keep it busy for ever.
TEST_F(NestedPopulationScenarioTest, TakesIdleCallsInTheMiddleOfAPopulationForNothing) {
    const std::pair<const char*, std::function<void()>> idleCalls[] = {
        {"the pane's", [&] { Cells().Populate(); }},
        {"the browser's", [&] { m_browser.Populate(); }},
        {"the browser's for the list", [&] { m_browser.PopulateCellListView(); }}};
    ShowCells({{"l1", "a", "v"}});
    for (const auto& [name, call] : idleCalls) {
        SCOPED_TRACE(name);
        Inside(csList, "{l1 b v}", [&, idle = call] {
            Cells().SetNeedsPopulate(true);
            idle();
            EXPECT_TRUE(Cells().NeedsPopulate());
        });
        m_host.ClearLines();
        Repopulate();
        EXPECT_EQ(m_host.LinesStarting("database cells").size(), 2u);
        EXPECT_EQ(Rows(), TLines{"l1 b v"});
        EXPECT_FALSE(Cells().NeedsPopulate());
        Report().Populate();
        EXPECT_TRUE(Cells().NeedsPopulate()) << "a direct population leaves the mark as it is";
        Cells().SetNeedsPopulate(false);
    }
}

TEST_F(NestedPopulationScenarioTest, CoversTheRequestsThatItsOwnLinesMake) {
    ShowCells({{"l1", "a", "v"}});
    Inside(csCount, "1", [&] { Cells().RequestDelayedPopulate(UpdateAlways); });
    Inside(csList, "{l1 a v}", [&] { Type("a"); });
    Repopulate();
    EXPECT_FALSE(Cells().NeedsPopulate());
    EXPECT_EQ(Status(), "1 cells");
}

TEST_F(NestedPopulationScenarioTest, LeavesTheMarkToThePaneOnADirectPopulation) {
    ShowCells({{"l1", "a", "v"}});
    Report().Populate();
    EXPECT_FALSE(Cells().NeedsPopulate());
    Cells().SetNeedsPopulate(true);
    Report().Populate();
    EXPECT_TRUE(Cells().NeedsPopulate());
}

TEST_F(NestedPopulationScenarioTest, SendsEachLineToTheInterpreterThatIsSetThen) {
    ShowCells({{"l1", "a", "v"}});
    // The second interpreter answers the first line, and is replaced and ended by it.
    OtherInterpreter other([&](const std::string&) {
        Libraries().SetTclInterp(m_host.GetInterp());
        other.End();
        return "1";
    });
    Libraries().SetTclInterp(other.Get());
    m_host.ClearLines();
    Repopulate();
    EXPECT_EQ(other.Lines().size(), 1u);
    EXPECT_EQ(m_host.LinesStarting("database cells").size(), 1u);
    EXPECT_EQ(Rows(), TLines{"l1 a v"});
}

TEST_F(NestedPopulationScenarioTest, SurvivesTheEndOfTheInterpreterInTheMiddleOfAPopulation) {
    ShowCells({{"l1", "a", "v"}, {"l1", "b", "v"}});
    Report().AddColumn("State", "state", true, false);
    Report().GetColumns().SetSortColumn(&Column("State"), true);
    struct Case {
        const char* start;
        std::size_t lines;
        std::size_t rows;
    };
    const Case cases[] = {{"database cells -lcv -library top -count", 1, 0},
                          {"database cells -lcv -library top -filter", 2, 2},
                          {"state", 3, 2}};
    for (const Case& row : cases) {
        SCOPED_TRACE(row.start);
        OtherInterpreter other([&](const std::string& words) {
            if (words.starts_with(row.start)) other.End();
            return words.find("-filter") != std::string::npos ? "{l1 a v} {l1 b v}" : "2";
        });
        Libraries().SetTclInterp(other.Get());
        Repopulate();
        EXPECT_EQ(other.Lines().size(), row.lines);
        EXPECT_EQ(Report().GetCellViewCount(), row.rows);
        EXPECT_EQ(Libraries().GetTclInterp(), nullptr);
        Repopulate();
        EXPECT_EQ(Report().GetCellViewCount(), 0u);
    }
}

TEST_F(NestedPopulationScenarioTest, SurvivesTheEndOfTheInterpreterInTheMiddleOfPainting) {
    ShowCells({{"l1", "a", "v"}});
    Report().AddColumn("State", "state", true, false);
    for (const std::string key : {"is_fab", "is_lockedbyuser", "is_modified", "cache", "state"}) {
        SCOPED_TRACE(key);
        OtherInterpreter other([&](const std::string& words) {
            if (words.find(key) == std::string::npos) return "0";
            other.End();
            return "1";
        });
        Libraries().SetTclInterp(other.Get());
        EXPECT_EQ(Measure(0, key == "state" ? "State" : "Cell").text, key == "state" ? "1" : "a");
        EXPECT_NE(other.Lines().back().find(key), std::string::npos) << "no line after its end";
        EXPECT_EQ(Libraries().GetTclInterp(), nullptr);
    }
}

TEST_F(NestedPopulationScenarioTest, SendsEachQuestionToTheInterpreterThatIsSetThen) {
    ShowCells({{"l1", "a", "v"}});
    m_host.AnswerStart("database cellviewinfo", "0");
    for (const std::string key : {"is_fab", "is_modified"}) {
        SCOPED_TRACE(key);
        OtherInterpreter other([&](const std::string& words) {
            if (words.find(key) == std::string::npos) return "0";
            Libraries().SetTclInterp(m_host.GetInterp());
            other.End();
            return "1";
        });
        Libraries().SetTclInterp(other.Get());
        m_host.ClearLines();
        const CXTPReportRecordItemMetrics metrics = Measure(0, "Cell");
        EXPECT_EQ(metrics.icon, key == "is_fab" ? 3 : -1);
        EXPECT_EQ(metrics.font != nullptr, key == "is_modified");
        EXPECT_EQ(m_host.LinesStarting("database cellviewinfo cache").size(), 1u);
    }
}

TEST_F(NestedPopulationScenarioTest, SurvivesEveryOperationInTheMiddleOfEveryLine) {
    // Each turn sends many lines, and each line may be a turn: bounded in depth and number.
    int depth = 0;
    int turns = 0;
    s_insideHook = [this, &depth, &turns] {
        if (depth > 1 || turns > 400) return;
        ++depth;
        ++turns;
        m_browser.Populate();
        m_browser.PopulateCellListView();
        Report().Populate();
        Report().OnSelectAll();
        Report().AddToCellListSelections({{"l1", "a", "v"}});
        Report().HighlightCellInList("l1", "a");
        for (const TLibCellView& cell : Report().GetSelected())
            static_cast<void>(cell.Join(" "));
        Report().SwitchSetup(TReport::Setup3);
        Report().SwitchSetup(TReport::Setup1);
        Report().GetReportHeader().ClickedByUser(&Column("View"), false);
        Report().GetColumns().ChangeColumnOrder(0, &Column("Library"));
        Column("Library").SetVisible(!Column("Library").IsVisible());
        Type("a");
        Cells().ResetFilter();
        Measure(0, "Cell");
        CStringU dump;
        Report().DumpContents({}, dump);
        if (turns % 50 == 0) Report().AddColumn("More", "state", true, false);
        Cells().RequestDelayedPopulate(UpdateIfFilterSaysSo);
        m_browser.RequestLibraryViewDelayedPopulate();
        gPendingHighlight() = std::make_unique<TLibCellView>("l1", "b", "v");
        Report().GetColumns().SetSortColumn(&Column("State"), false);
        Libraries().SetSelectedDesign(turns % 2 == 0 ? "top" : "other");
        Libraries().SelectInLibraryList(turns % 3 == 0 ? "l1" : "none");
        if (turns % 40 == 0) m_browser.ModifyForQEdit();
        SetOptions([](auto& options) { options.showVias = !options.showVias; });
        Report().SerializeSetup(turns % 2 == 0);
        SetOptions([](auto& options) { options.filterAllColumns = true; });
        --depth;
    };
    const auto everything = s_insideHook;
    ShowCells({{"l1", "a", "v"}});
    m_host.AddCommand("state");
    Report().AddColumn("State", "state", true, false);
    Report().GetColumns().SetSortColumn(&Column("State"), true);
    SetOptions([](auto& options) { options.filterAllColumns = true; });
    Inside(csCount, "3", everything);
    Inside(csList, "{l1 a v} {l1 b v} {l1 c v}", everything);
    Inside("state", "word", everything);
    Inside("database cellviewinfo", "1", everything);
    Inside("database filter", "1", everything);
    Inside("librarynavigator preview", "", everything);
    m_host.Answer("database all_libs", "{top {l1 /l1} {l2 /l2}} {other {l1 /l1}}");
    m_host.AnswerStart("database cells -lcv -library other", "{l1 o v}");
    const ReentryHook hook;
    ListeningWindow listener(m_app);
    listener.m_whenAsked = everything;
    Repopulate();
    for (int row = 0; row < 3; ++row)
        Measure(row, "Cell");
    Cells().RequestDelayedPopulate(UpdateIfFilterSaysSo);
    EXPECT_GT(turns, 100);
    turns = 1000;
    m_host.Answer("database all_libs", "{top {l1 /l1} {l2 /l2}}");
    Refresh();
    AnswerCells({{"l1", "z", "v"}});
    m_host.AnswerStart("state", "");
    m_host.AnswerStart("librarynavigator preview", "");
    Repopulate();
    EXPECT_EQ(Rows(), TLines{"l1 z v"});
}

// No line is running in these: the host's own functions end the window.
TEST_F(NestedPopulationScenarioTest, SurvivesTheEndOfTheWindowInsideTheHostsFunctions) {
    int times = 0;
    s_insideHook = [&] {
        ++times;
        m_browser.DestroyWindow();
    };
    m_host.AnswerStart("database cellviewinfo", "0");
    const auto addColumn = [&] {
        Report().AddColumn(
            "Ends", [](const TLibCellView&) { return RunInsideHook("x"); }, true, false);
    };
    const std::function<void()> works[] = {[&] {
                                               const HookGuard hook(&RunInsideHook);
                                               Repopulate();
                                           },
                                           [&] {
                                               const HookGuard hook(&RunInsideHook);
                                               Measure(0, "Cell");
                                           },
                                           [&] {
                                               ListeningWindow listener(m_app);
                                               listener.m_whenAsked = s_insideHook;
                                               Repopulate();
                                           },
                                           [&] {
                                               addColumn();
                                               Report().GetColumns().SetSortColumn(&Column("Ends"), true);
                                               Repopulate();
                                           },
                                           [&] {
                                               addColumn();
                                               Measure(0, "Ends");
                                           },
                                           [&] {
                                               addColumn();
                                               CStringU dump;
                                               Report().DumpContents({"Ends", "Cell"}, dump);
                                           }};
    for (const auto& work : works) {
        ShowCells({{"l1", "a", "v"}, {"l1", "b", "v"}});
        times = 0;
        work();
        EXPECT_GT(times, 0);
        EXPECT_EQ(m_browser.GetCellListView(), nullptr);
    }
    s_insideHook = nullptr;
}

TEST_F(NestedPopulationScenarioTest, SurvivesRowsThatGoWhileAColumnIsAskedForTheirKeys) {
    ShowCells({{"l1", "a", "v"}, {"l1", "b", "v"}});
    m_host.AddCommand("state");
    Report().AddColumn("State", "state", true, false);
    Report().GetColumns().SetSortColumn(&Column("State"), true);
    Inside("state", "x", [&] {
        AnswerCells({});
        Report().Populate();
    });
    Repopulate();
    EXPECT_EQ(Rows(), (TLines{"l1 a v", "l1 b v"}));
    EXPECT_TRUE(Cells().NeedsPopulate());
    Cells().Populate();
    EXPECT_EQ(Rows(), TLines());
}

TEST_F(NestedPopulationScenarioTest, SurvivesAHostWithoutItsCommands) {
    ShowCells({{"l1", "a", "v"}});
    Inside(csCount, "1", [&] { m_host.Eval("rename database {}"); });
    Repopulate();
    EXPECT_EQ(Report().GetCellViewCount(), 0u);
    EXPECT_EQ(Status(), "1 cells");
    Measure(0, "Cell");
    Cells().RequestDelayedPopulate(UpdateIfFilterSaysSo);
    EXPECT_FALSE(Cells().NeedsPopulate());
}

TEST_F(NestedPopulationScenarioTest, TakesOtherCompletionCodesForFailures) {
    ShowCells({{"l1", "a", "v"}});
    for (const int code : {TCL_RETURN, TCL_BREAK, TCL_CONTINUE, 77}) {
        SCOPED_TRACE(code);
        m_host.HandleStart(csList, [code](Tcl_Interp* interp) {
            Tcl_SetObjResult(interp, Tcl_NewStringObj("{l1 x v}", -1));
            return code;
        });
        m_host.Inside([&] { Repopulate(); });
        EXPECT_EQ(Report().GetCellViewCount(), 0u);
        EXPECT_EQ(Status(), "1 cells");
    }
}

// Each answer would be seen if it were taken: its code says that it is none.
TEST_F(NestedPopulationScenarioTest, TakesNoAnswerOfAnotherCompletionCodeInAnyLine) {
    ShowCells({{"l1", "a", "v"}});
    m_host.AddCommand("state");
    Report().AddColumn("State", "state", true, false);
    for (const int code : {TCL_RETURN, TCL_BREAK, TCL_CONTINUE, 77}) {
        SCOPED_TRACE(code);
        const auto answer = [&](const char* start, const char* text) {
            m_host.HandleStart(start, [code, text](Tcl_Interp* interp) {
                Tcl_SetObjResult(interp, Tcl_NewStringObj(text, -1));
                return code;
            });
        };
        answer("database cellviewinfo", "1");
        answer("database cellviewinfo cache", "Unresolved");
        answer("database filter", "1");
        answer("database top_level", "l1");
        answer("database selected_master", "l1 a v");
        answer("state", "text");
        m_host.Inside([&] {
            const CXTPReportRecordItemMetrics cell = Measure(0, "Cell");
            EXPECT_EQ(cell.text, "a");
            EXPECT_EQ(cell.icon, -1);
            EXPECT_EQ(cell.font, nullptr);
            EXPECT_EQ(cell.foreground, cnNoColor);
            EXPECT_EQ(cell.background, cnNoColor);
            EXPECT_TRUE(Measure(0, "State").text.IsEmpty());
            Cells().RequestDelayedPopulate(UpdateIfFilterSaysSo);
            EXPECT_FALSE(Cells().NeedsPopulate());
            EXPECT_FALSE(Libraries().GetLibraryListCtrl().DrawItem(0).font.bold);
            Libraries().OnUpdate(nullptr, cnHintSelectedMaster, nullptr);
            EXPECT_EQ(gPendingHighlight(), nullptr);
        });
    }
    const auto rows = Report().GetCellViewCount();
    m_host.HandleStart(csCount, [](Tcl_Interp* interp) {
        Tcl_SetObjResult(interp, Tcl_NewIntObj(9));
        return TCL_BREAK;
    });
    m_host.Inside([&] { Repopulate(); });
    EXPECT_EQ(rows, 1u);
    EXPECT_EQ(Report().GetCellViewCount(), 0u);
    EXPECT_EQ(Status(), "1 cells");
}

TEST_F(NestedPopulationScenarioTest, SurvivesAHostThatDeletesItsCommandsWhilePainting) {
    ShowCells({{"l1", "a", "v"}});
    Report().AddColumn("State", "state", true, false);
    for (const char* line : {"database cellviewinfo is_fab", "database cellviewinfo cache", "state"}) {
        SCOPED_TRACE(line);
        m_host.AddCommand("database");
        m_host.AddCommand("state");
        Repopulate();
        ASSERT_EQ(Report().GetCellViewCount(), 1u);
        m_host.AnswerStart("database cellviewinfo", "0");
        m_host.AnswerStart("state", "text");
        Inside(line, "1", [&] {
            m_host.Eval("catch {rename database {}}");
            m_host.Eval("catch {rename state {}}");
        });
        EXPECT_EQ(Measure(0, "Cell").text, "a");
        Measure(0, "State");
        EXPECT_TRUE(Measure(0, "State").text.IsEmpty());
        Repopulate();
        EXPECT_EQ(Report().GetCellViewCount(), 0u);
    }
}

TEST_F(NestedPopulationScenarioTest, ShowsNamesOfAnyKindAsTheyAre) {
    const HookGuard hook;
    const std::string names[] = {"{",
                                 "}",
                                 "[exec ls]",
                                 "$x",
                                 "a b\nc",
                                 "\"",
                                 "\\",
                                 ";",
                                 std::string(10000, 'n'),
                                 "%s%n",
                                 "\xE4\xB8\xAD",
                                 "#"};
    TTriples triples;
    for (const std::string& name : names)
        triples.push_back({name, name, name});
    ShowCells(triples);
    // What is shown is what was told, each name of it, and nothing else.
    std::multiset<std::string> told;
    for (const std::string& name : names)
        told.insert(name + " " + name + " " + name);
    const std::vector<std::string> shown = Rows();
    EXPECT_EQ(std::multiset<std::string>(shown.begin(), shown.end()), told);
    std::string table = "Cell,View,Library\n";
    for (int row = 0; row < static_cast<int>(std::size(names)); ++row) {
        const std::string cell = Report().GetCell(row).cell.Payload();
        table += cell + "," + cell + "," + cell + "\n";
    }
    CStringU dump;
    Report().DumpContents({}, dump);
    EXPECT_EQ(std::string(dump.Payload()), table);
    m_host.AnswerStart("database cellviewinfo", "0");
    for (int row = 0; row < static_cast<int>(std::size(names)); ++row) {
        const std::string cell = Report().GetCell(row).cell.Payload();
        // The report takes texts in the active code page, which need not have every name.
        EXPECT_EQ(Measure(row, "Cell").text, CStringU(cell.c_str(), TextEncoding::Utf8Auto).ToAnsi());
    }
    // Each went out as one word: the host's command received every line whole.
    EXPECT_EQ(m_host.LinesStarting("database cellviewinfo cache").size(), std::size(names));
}

TEST_F(NestedPopulationScenarioTest, TakesBytesThatAreNoText) {
    m_host.HandleStart(csCount, [](Tcl_Interp* interp) {
        Tcl_SetObjResult(interp, Tcl_NewIntObj(3));
        return TCL_OK;
    });
    m_host.HandleStart(csList, [](Tcl_Interp* interp) {
        Tcl_SetObjResult(interp,
                         Tcl_NewStringObj("{\xFF \x80\x80 \xC3} {\xE4 a\xF0 \xBF} {l\xC0\x80m c v}", -1));
        return TCL_OK;
    });
    Show({"l1"});
    // Byte by byte, but for the first byte of a name: 0x80 there is the mark of a text and not of the name.
    const std::vector<std::string> shown = Rows();
    EXPECT_EQ(std::multiset<std::string>(shown.begin(), shown.end()),
              (std::multiset<std::string>{"\xFF \x80 \xC3", "\xE4 a\xF0 \xBF", "l\xC0\x80m c v"}));
    SelectRow(1);
    Repopulate();
    EXPECT_EQ(Report().GetSelectedRows().GetCount(), 1);
    Measure(0, "Cell");
}

}  // namespace
