/// @file
/// What each style makes of a menu command, walked as a table: every style, in and outside of the editor
/// mode, with and without a design, libraries and a hook.
#include "browser/LibraryMenuLine.h"

#include <gtest/gtest.h>

#include <array>

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
