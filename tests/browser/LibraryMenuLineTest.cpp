/// @file
/// What each style makes of a menu command, walked as a table: every style, in and outside of the editor
/// mode, with and without a design, libraries and a hook.
#include "browser/LibraryMenuLine.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include <array>

#include "tests/browser/NamesOfCommand.h"
#include "tests/browser/RecordingHost.h"
#include "vapp/text/Translate.h"

using namespace vapp_library_browser;

namespace {

using Libraries = std::set<CStringIU>;

constexpr std::array cnAllStyles = {StyleCommandOnly, StyleFocusedLcv,       StyleSelectedLcvs,
                                    StyleMasterCell,  StyleCellLibraryView,  StyleLibraryCell,
                                    StyleBuiltIn,     StyleSelectedLibraries};
const Libraries csTwo = {CStringIU("std cells"), CStringIU("io")};

std::string Told(const std::optional<CStringU>& line) {
    return line ? std::string(line->PayloadView()) : "(none)";
}

std::string Line(const char* text, TLibraryBrowserTclInterfaceStyle style, bool qedit = false,
                 const char* design = "my top", const Libraries& libraries = csTwo) {
    return Told(MakeLibraryMenuLine(text, style, qedit, design, libraries));
}

Libraries LibrariesOf(const NamesOfCommand& names) {
    return {CStringIU(names.cell.library), CStringIU("io")};
}

class LibraryMenuLine : public testing::Test {
protected:
    RecordingHost m_host;  // binds Tcl, whose quoting the hook uses
};

}  // namespace

TEST_F(LibraryMenuLine, IsForEveryStyleWhatTheGoldenFileSays) {
    std::vector<std::string> lines;
    for (const bool hooked : {false, true}) {
        const HookGuard hook(hooked ? &RecordingHost::Brace : nullptr);
        for (const char* text : {"edit it", "librarynavigator x"}) {
            for (const TLibraryBrowserTclInterfaceStyle style : cnAllStyles) {
                for (const bool qedit : {false, true}) {
                    for (const char* design : {"my top", ""}) {
                        lines.push_back(std::to_string(style) + (qedit ? " editor" : "") +
                                        (*design != 0 ? "" : " no design") + (hooked ? " hook" : "") + ": " +
                                        Line(text, style, qedit, design));
                    }
                }
            }
        }
    }
    ExpectGolden("library-menu.txt", lines);
}

TEST_F(LibraryMenuLine, IsForEveryKindOfNameWhatTheGoldenFileSays) {
    std::vector<std::string> lines;
    for (const bool hooked : {false, true}) {
        const HookGuard hook(hooked ? &RecordingHost::Brace : nullptr);
        for (const NamesOfCommand& names : cnNamesOfCommand) {
            for (const bool qedit : {false, true}) {
                for (const TLibraryBrowserTclInterfaceStyle style : cnAllStyles) {
                    lines.push_back(std::string(names.what) + (hooked ? " hook" : "") +
                                    (qedit ? " editor " : " ") + std::to_string(style) + ": " +
                                    Line("edit it", style, qedit, names.design, LibrariesOf(names)));
                }
            }
        }
    }
    ExpectGolden("library-names.txt", lines);
}

// A host that evaluates what it logs: the design is one word whatever it is, the libraries are a list again
// as long as their names hold nothing that ends it or is changed in it. Nothing runs but the command.
TEST_F(LibraryMenuLine, ArrivesWordByWordAndNothingElseRuns) {
    const HookGuard hook;
    ASSERT_EQ(m_host.Eval("proc logaction {line} {uplevel #0 $line}; proc edit args {set ::got $args}; "
                          "proc exit args {set ::hit exit}"),
              "");
    std::vector<NamesOfCommand> rows(cnNamesOfCommand.begin(), cnNamesOfCommand.end());
    rows.push_back(cnBackslashNames);
    for (const NamesOfCommand& names : rows) {
        SCOPED_TRACE(names.what);
        const auto arrived = [&](TLibraryBrowserTclInterfaceStyle style, bool qedit) {
            const std::string line = Line("edit", style, qedit, names.design, LibrariesOf(names));
            m_host.Eval("unset -nocomplain ::got");
            return Tcl_Eval(m_host.GetInterp(), line.c_str()) == TCL_OK ? m_host.Eval("set ::got")
                                                                        : std::string("(failed)");
        };
        EXPECT_EQ(arrived(StyleCommandOnly, false), RecordingHost::List({names.design}));
        EXPECT_EQ(arrived(StyleCommandOnly, true), "");
        EXPECT_EQ(arrived(StyleBuiltIn, false), "");
        EXPECT_EQ(arrived(StyleFocusedLcv, false), "") << "wrapped twice, it is the same command";
        std::vector<std::string> wanted;
        for (const CStringIU& library : LibrariesOf(names))
            wanted.emplace_back(library.Payload());
        const std::string list = RecordingHost::List(wanted);
        const bool isHarmless =
            std::string(names.cell.library.Payload()).find_first_of("{}\"\\") == std::string::npos;
        for (const bool qedit : {false, true}) {
            const std::string got = arrived(StyleSelectedLibraries, qedit);
            if (isHarmless) {
                Tcl_SetVar(m_host.GetInterp(), "list", list.c_str(), TCL_GLOBAL_ONLY);
                EXPECT_EQ(m_host.Eval("list {*}[lindex $::got end]"), m_host.Eval("list {*}$::list"));
                EXPECT_EQ(m_host.Eval("lrange $::got 0 end-1"),
                          qedit ? "-libraries" : RecordingHost::List({names.design, "-libraries"}));
            } else {
                Tcl_SetVar(m_host.GetInterp(), "name", names.cell.library.Payload(), TCL_GLOBAL_ONLY);
                EXPECT_EQ(m_host.Eval("catch {expr {$::name in [lindex $::got end]}} is; string is true $is"),
                          "0")
                    << "no list can be made of " << got;
            }
        }
    }
    EXPECT_EQ(m_host.Eval("info exists ::hit"), "0");
}

TEST_F(LibraryMenuLine, OtherStylesAreWrappedTwiceWhateverTheTextBeginsWith) {
    EXPECT_EQ(Line("edit", StyleFocusedLcv), "logaction logaction edit");
    EXPECT_EQ(Line("librarynavigator x", StyleFocusedLcv), "logaction logaction librarynavigator x");
    EXPECT_EQ(Line("edit", static_cast<TLibraryBrowserTclInterfaceStyle>(99)), "logaction logaction edit");
    const HookGuard hook;
    EXPECT_EQ(Line("edit it", StyleMasterCell), "logaction {logaction {edit it}}");
}

TEST_F(LibraryMenuLine, LibrariesStandInQuotesWithoutTheHook) {
    const HookGuard hook;
    EXPECT_EQ(Line("librarynavigator x", StyleSelectedLibraries),
              "librarynavigator x {my top} -libraries { \"io\" \"std cells\" }");
    EXPECT_EQ(Line("librarynavigator x", StyleSelectedLibraries, true),
              "librarynavigator x -libraries { \"io\" \"std cells\" }");
}

// Hosts read these lines as they are: what a name breaks, the host's command has to refuse.
TEST_F(LibraryMenuLine, ALibrarysNameCanEndTheListThatItStandsIn) {
    const Libraries hostile = {CStringIU("a\"} ; exit ; {\"")};
    for (const bool hooked : {false, true}) {
        const HookGuard hook(hooked ? &RecordingHost::Brace : nullptr);
        EXPECT_EQ(Line("librarynavigator x", StyleSelectedLibraries, false, "top", hostile),
                  "librarynavigator x top -libraries { \"a\"} ; exit ; {\"\" }");
    }
}

TEST_F(LibraryMenuLine, WithoutASelectionOnlyCommandAndDesignAreSent) {
    EXPECT_EQ(Line("edit", StyleSelectedLibraries, false, "top", {}), "logaction edit top");
    EXPECT_EQ(Line("edit", StyleSelectedLibraries, true, "top", {}), "logaction edit");
}

TEST_F(LibraryMenuLine, AnEmptyTextOrAMissingDesignSendsNothing) {
    for (const TLibraryBrowserTclInterfaceStyle style : cnAllStyles)
        EXPECT_EQ(Line("", style), "(none)") << style;
    EXPECT_EQ(Line("edit", StyleCommandOnly, false, ""), "(none)");
    EXPECT_EQ(Line("edit", StyleSelectedLibraries, false, ""), "(none)");
    EXPECT_EQ(Line("edit", StyleCommandOnly, true, ""), "logaction edit");
    EXPECT_EQ(Line("edit", StyleBuiltIn, false, ""), "logaction edit");
}

TEST_F(LibraryMenuLine, TheOptionIsWordedInTheHostsLanguage) {
    vlang::gSetTranslation("__$$Translatable$$_ -libraries {", " -bibliotheken {");
    EXPECT_EQ(Line("edit", StyleSelectedLibraries, true),
              "logaction edit -bibliotheken { \"io\" \"std cells\" }");
    vlang::gClearTranslations();
}

TEST_F(LibraryMenuLine, NonAsciiNamesCarryNoMarker) {
    const CStringU design("caf\xC3\xA9", TextEncoding::Utf8Auto);
    const Libraries libraries = {CStringIU(CStringU("\xC3\xA9t\xC3\xA9", TextEncoding::Utf8Auto))};
    EXPECT_EQ(Told(MakeLibraryMenuLine("edit", StyleSelectedLibraries, false, design, libraries)),
              "logaction edit caf\xC3\xA9 -libraries { \"\xC3\xA9t\xC3\xA9\" }");
}
