#include "celllist/CellCommandLine.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include <array>

#include "tests/browser/NamesOfCommand.h"
#include "tests/browser/RecordingHost.h"

namespace {

using namespace vapp_library_browser;

constexpr std::array cnCellStyles = {StyleCommandOnly, StyleFocusedLcv,       StyleSelectedLcvs,
                                     StyleMasterCell,  StyleCellLibraryView,  StyleLibraryCell,
                                     StyleBuiltIn,     StyleSelectedLibraries};

CellCommandSubject SubjectWith(const NamesOfCommand& names, bool qedit) {
    const TLibCellView second(names.cell.library, "nand2", names.cell.view);
    return {names.design, qedit, names.cell, {second, names.cell}};
}

class CellCommandLineTest : public testing::Test {
protected:
    RecordingHost m_host;  // binds Tcl, whose quoting the hook uses
};

TEST_F(CellCommandLineTest, IsForEveryStyleModeWayAndNameWhatTheGoldenFileSays) {
    std::vector<std::string> lines;
    for (const bool hooked : {false, true}) {
        const HookGuard hook(hooked ? &RecordingHost::Brace : nullptr);
        for (const NamesOfCommand& names : cnNamesOfCommand) {
            for (const bool qedit : {false, true}) {
                for (const TLibraryBrowserTclInterfaceStyle style : cnCellStyles) {
                    const CellCommandSubject subject = SubjectWith(names, qedit);
                    const std::string head = std::string(names.what) + (hooked ? " hook" : "") +
                                             (qedit ? " editor " : " ") + std::to_string(style);
                    lines.push_back(head + " menu: " + MakeCellMenuLine("edit it", style, subject).Payload());
                    lines.push_back(head +
                                    " double: " + MakeDoubleClickLine("edit it", style, subject).Payload());
                }
            }
        }
    }
    ExpectGolden("cell_commands.txt", lines);
}

TEST_F(CellCommandLineTest, WithoutAFocusedCellTheFirstStyleHasCommandAndDesignOnly) {
    const CellCommandSubject none = {"top", false, {"lib", "", "sym"}, {}};
    EXPECT_EQ(MakeCellMenuLine("edit", StyleFocusedLcv, none), "logaction edit top");
    EXPECT_EQ(MakeDoubleClickLine("edit", StyleFocusedLcv, none), "logaction edit top");
    const CellCommandSubject editor = {"top", true, {}, {}};
    EXPECT_EQ(MakeCellMenuLine("edit", StyleFocusedLcv, editor), "logaction edit");
    EXPECT_EQ(MakeDoubleClickLine("edit", StyleFocusedLcv, editor), "logaction edit top");
}

TEST_F(CellCommandLineTest, WithoutAFocusedCellTheStylesOfSingleNamesAddNothing) {
    const CellCommandSubject none = {"top", false, {"lib", "", "sym"}, {{"lib", "inv", "sym"}}};
    for (const auto style : {StyleMasterCell, StyleCellLibraryView, StyleLibraryCell}) {
        EXPECT_EQ(MakeCellMenuLine("edit", style, none), "logaction edit") << style;
        EXPECT_EQ(MakeDoubleClickLine("edit", style, none), "logaction edit") << style;
    }
}

TEST_F(CellCommandLineTest, WithoutSelectedCellsTheListIsEmptyButThere) {
    const CellCommandSubject none = {"top", false, {}, {}};
    EXPECT_EQ(MakeCellMenuLine("edit", StyleSelectedLcvs, none), "logaction edit top -lcvs {}");
    EXPECT_EQ(MakeDoubleClickLine("edit", StyleSelectedLcvs, none), "logaction edit top {}");
}

TEST_F(CellCommandLineTest, SelectedCellsComeByCellViewAndLibraryWhateverTheirCase) {
    const CellCommandSubject subject = {
        "top", true, {}, {{"z", "B", "v"}, {"a", "b", "W"}, {"m", "a", "x"}, {"b", "B", "V"}}};
    EXPECT_EQ(MakeCellMenuLine("librarynavigator", StyleSelectedLcvs, subject),
              "librarynavigator -lcvs { \"m a x\"  \"b B V\"  \"z B v\"  \"a b W\" }");
}

TEST_F(CellCommandLineTest, ALineThatBeginsAsTheNavigatorsOwnIsLoggedByADoubleClickOnly) {
    const HookGuard hook;
    const CellCommandSubject subject = {"top", false, {"lib", "inv", "sym"}, {}};
    EXPECT_EQ(MakeCellMenuLine("librarynavigator show", StyleFocusedLcv, subject),
              "librarynavigator show top lib inv sym");
    EXPECT_EQ(MakeCellMenuLine("LibraryNavigator show", StyleFocusedLcv, subject),
              "logaction {LibraryNavigator show top lib inv sym}");
    EXPECT_EQ(MakeDoubleClickLine("librarynavigator show", StyleFocusedLcv, subject),
              "logaction {librarynavigator show top lib inv sym}");
}

// With a hook, a host that evaluates what it logs gets each name as one word, and no name runs.
TEST_F(CellCommandLineTest, EachNameArrivesAsOneWordAndNothingElseRuns) {
    const HookGuard hook;
    Tcl_Interp* interp = m_host.GetInterp();
    ASSERT_EQ(Tcl_Eval(interp,
                       "proc logaction {line} {uplevel #0 $line}; proc edit args {set ::got $args}; "
                       "proc exit args {set ::hit exit}"),
              TCL_OK);
    const auto arrived = [&](const CStringU& line) {
        Tcl_UnsetVar(interp, "got", TCL_GLOBAL_ONLY);
        EXPECT_EQ(Tcl_Eval(interp, line.Payload()), TCL_OK) << line.Payload();
        const char* got = Tcl_GetVar(interp, "got", TCL_GLOBAL_ONLY);
        return std::string(got != nullptr ? got : "(not run)");
    };
    for (const NamesOfCommand& names : cnNamesOfCommand) {
        const CellCommandSubject subject = SubjectWith(names, false);
        const std::string library = names.cell.library.Payload();
        const std::string cell = names.cell.cell.Payload();
        const std::string view = names.cell.view.Payload();
        const std::string focused = RecordingHost::List({names.design, library, cell, view});
        EXPECT_EQ(arrived(MakeCellMenuLine("edit", StyleFocusedLcv, subject)), focused);
        EXPECT_EQ(arrived(MakeDoubleClickLine("edit", StyleFocusedLcv, subject)), focused);
        EXPECT_EQ(arrived(MakeCellMenuLine("edit", StyleMasterCell, subject)),
                  RecordingHost::List({"-mastercell", cell, "-masterdesign", library, "-add"}));
        EXPECT_EQ(arrived(MakeCellMenuLine("edit", StyleCellLibraryView, subject)),
                  RecordingHost::List({cell, library, view}));
        EXPECT_EQ(arrived(MakeCellMenuLine("edit", StyleLibraryCell, subject)),
                  RecordingHost::List({library, cell}));
    }
    EXPECT_EQ(Tcl_GetVar(interp, "hit", TCL_GLOBAL_ONLY), nullptr);
}

// The selected cells stand in quotes within one word. Each is a list of three again, unless a name holds what
// Tcl's reader of lists ends or changes a quoted element by.
TEST_F(CellCommandLineTest, TheSelectedCellsArriveAsOneWordAndNothingElseRuns) {
    const HookGuard hook;
    Tcl_Interp* interp = m_host.GetInterp();
    ASSERT_EQ(Tcl_Eval(interp,
                       "proc logaction {line} {uplevel #0 $line}; proc edit args {set ::got $args}; "
                       "proc exit args {set ::hit exit}"),
              TCL_OK);
    const auto ask = [&](const std::string& script) {
        return Tcl_Eval(interp, script.c_str()) == TCL_OK
                   ? std::string(Tcl_GetStringResult(interp))
                   : "ERROR " + std::string(Tcl_GetStringResult(interp));
    };
    std::vector<NamesOfCommand> rows(cnNamesOfCommand.begin(), cnNamesOfCommand.end());
    rows.push_back(cnBackslashNames);
    for (const NamesOfCommand& names : rows) {
        SCOPED_TRACE(names.what);
        const CellCommandSubject subject = SubjectWith(names, false);
        const bool isHarmless =
            std::string(names.what) != "quotes" && std::string(names.what) != "backslashes";
        for (const bool fromMenu : {true, false}) {
            const CStringU line = fromMenu ? MakeCellMenuLine("edit", StyleSelectedLcvs, subject)
                                           : MakeDoubleClickLine("edit", StyleSelectedLcvs, subject);
            EXPECT_EQ(ask("unset -nocomplain got"), "");
            ASSERT_EQ(Tcl_Eval(interp, line.Payload()), TCL_OK) << line.Payload();
            EXPECT_EQ(ask("llength $got"), fromMenu ? "3" : "2");
            EXPECT_EQ(ask("lindex $got 0"), names.design);
            if (fromMenu) {
                EXPECT_EQ(ask("lindex $got 1"), "-lcvs");
            }
            if (!isHarmless) continue;
            std::vector<std::string> wanted;
            for (const TLibCellView& cell : subject.selected)
                for (const CStringU* name : {&cell.library, &cell.cell, &cell.view})
                    wanted.emplace_back(name->Payload());
            EXPECT_EQ(ask("set all {}; foreach c [lindex $got end] {lappend all {*}$c}; set all"),
                      RecordingHost::List(wanted));
        }
        if (isHarmless) continue;
        Tcl_SetVar(interp, "wanted", names.cell.cell.Payload(), TCL_GLOBAL_ONLY);
        EXPECT_EQ(ask("catch {lindex [lindex $got end] 1 1} name; expr {$name eq $wanted}"), "0")
            << "no list can be made of it";
    }
    EXPECT_EQ(Tcl_GetVar(interp, "hit", TCL_GLOBAL_ONLY), nullptr);
}

}  // namespace
