/// The console without its pixels: results, errors, output of scripts, and texts that are too long to show.

#include "host/TclConsole.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "host/DatabaseCommand.h"
#include "host/OutputCapture.h"
#include "tests/host/TestInterp.h"

namespace navigator_test {
namespace {

using namespace navigator;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class TclConsoleTest : public testing::Test {
protected:
    ConsoleAnswer Run(const std::string& text) { return m_console.Run(text); }

    TestInterp m_interp;
    TclConsole m_console{m_interp.Get()};
};

TEST_F(TclConsoleTest, ShowsTheResult) {
    const ConsoleAnswer answer = Run("expr {6 * 7}");
    EXPECT_EQ("42", answer.result);
    EXPECT_FALSE(answer.isError);
    EXPECT_EQ("", answer.output);
}

TEST_F(TclConsoleTest, ShowsTheErrorAndWorksOn) {
    const ConsoleAnswer answer = Run("nosuchcommand");
    EXPECT_TRUE(answer.isError);
    EXPECT_EQ("invalid command name \"nosuchcommand\"", answer.result);
    EXPECT_EQ("1", Run("expr 1").result);
    EXPECT_THAT(Run("set ::errorInfo").result, HasSubstr("nosuchcommand")) << "the place can be asked for";
}

TEST_F(TclConsoleTest, AnswersLinesOfTheProtocol) {
    DesignStore store;
    DatabaseCommand database(m_interp.Get(), store);
    EXPECT_EQ("", Run("database all_libs").result);
    EXPECT_TRUE(Run("database nonsense").isError);
    EXPECT_THAT(Run("database help").result, HasSubstr("database cells -lcv -library DESIGN"));
}

TEST_F(TclConsoleTest, EndingsOtherThanAResultAreTold) {
    EXPECT_EQ("5", Run("return 5").result);
    EXPECT_TRUE(Run("break").isError);
    EXPECT_TRUE(Run("continue").isError);
    EXPECT_TRUE(Run("return -code 17 odd").isError);
}

TEST_F(TclConsoleTest, WhatAScriptWritesStandsBeforeItsResult) {
    const ConsoleAnswer answer = Run("puts one; puts -nonewline stderr two; puts three; set x four");
    EXPECT_EQ("one\ntwothree\n", answer.output);
    EXPECT_EQ("four", answer.result);
}

TEST_F(TclConsoleTest, TheChannelsAreAsBeforeAfterALine) {
    const std::string before =
        Run("list [fconfigure stdout -encoding] [fconfigure stdout -translation]").result;
    Tcl_Eval(m_interp.Get(), "fconfigure stdout -encoding");
    const std::string outside = Tcl_GetStringResult(m_interp.Get());
    Run("puts hello");
    Tcl_Eval(m_interp.Get(), "fconfigure stdout -encoding");
    EXPECT_EQ(outside, Tcl_GetStringResult(m_interp.Get()));
    EXPECT_EQ(before, Run("list [fconfigure stdout -encoding] [fconfigure stdout -translation]").result);
    EXPECT_EQ(TCL_OK, Tcl_Eval(m_interp.Get(), "info commands ::navigator_output*"));
    EXPECT_STREQ("", Tcl_GetStringResult(m_interp.Get())) << "nothing is left of the capture";
}

TEST_F(TclConsoleTest, EveryCharacterComesThroughWhateverTheLocale) {
    const std::string hard = "\xC3\xA4 \xE2\x82\xAC \xF0\x9F\x98\x80 \xE4\xB8\xAD";
    EXPECT_EQ(hard + "\n", Run("puts {" + hard + "}").output);
    EXPECT_EQ(hard, Run("set x {" + hard + "}").result);
    EXPECT_EQ(std::string("a\0b", 3), Run("set x a\\0b").result);
}

TEST_F(TclConsoleTest, AScriptThatPlaysWithTheChannelsHarmsNothing) {
    EXPECT_FALSE(Run("chan pop stdout; set x 1").isError);
    EXPECT_EQ("again\n", Run("puts again").output);
    EXPECT_FALSE(Run("rename [info commands ::navigator_output*] {}; set x 1").isError);
    EXPECT_EQ("again\n", Run("puts again").output);
}

TEST_F(TclConsoleTest, TextIsCompleteWhenAllThatItOpensIsClosed) {
    EXPECT_TRUE(TclConsole::IsComplete("set x 1"));
    EXPECT_TRUE(TclConsole::IsComplete(""));
    EXPECT_TRUE(TclConsole::IsComplete("foreach x {1 2} {\n puts $x\n}"));
    EXPECT_TRUE(TclConsole::IsComplete("set x }"));
    for (const char* text : {"foreach x {1 2} {", "set x [list", "set x \"a", "set x \\"})
        EXPECT_FALSE(TclConsole::IsComplete(text)) << text;
}

TEST_F(TclConsoleTest, WhatWasRunIsInTheHistory) {
    Run("set x 1");
    Run("nosuchcommand");
    EXPECT_EQ("nosuchcommand", m_console.History().Previous(""));
    EXPECT_EQ("set x 1", m_console.History().Previous(""));
}

TEST_F(TclConsoleTest, ALineThatNeverEndsIsStoppedFromOutside) {
    int asked = 0;
    m_console.SetBusyHandler([&asked] { return ++asked == 3; });
    for (const char* text : {"while 1 {}", "while 1 {catch {while 1 {set x 1}}}",
                             "proc f {} {f2}; proc f2 {} {while 1 {incr ::n}}; f"}) {
        asked = 0;
        const ConsoleAnswer answer = Run(text);
        EXPECT_TRUE(answer.isError) << text;
        EXPECT_EQ("stopped", answer.result) << text;
        EXPECT_EQ(3, asked) << text;
        EXPECT_EQ("42", Run("expr {6 * 7}").result) << "and the next line has all its time";
    }
}

TEST_F(TclConsoleTest, WhatIsAskedMeanwhileIsAnswered) {
    std::string inside;
    m_console.SetBusyHandler([&] {
        inside = m_interp.Answer("set a 0; for {set i 0} {$i < 1000} {incr i} {incr a}; set a");
        m_interp.Eval("set ::go 0");
        return false;
    });
    const ConsoleAnswer answer = Run("set ::go 1; while {$::go} {}; set x done");
    EXPECT_EQ("done", answer.result);
    EXPECT_EQ("1000", inside);
}

TEST_F(TclConsoleTest, ALineInsideOfALineIsStoppedWithIt) {
    int asked = 0;
    bool wasErrorInside = false;
    m_console.SetBusyHandler([&] {
        if (++asked == 1) wasErrorInside = Run("expr 1").isError;
        return asked == 2;
    });
    EXPECT_EQ("stopped", Run("while 1 {}").result);
    EXPECT_FALSE(wasErrorInside);
}

TEST_F(TclConsoleTest, AFloodOfOutputIsCutAndCounted) {
    const ConsoleAnswer answer = Run("for {set i 0} {$i < 60000} {incr i} { puts \"line number $i\" }");
    EXPECT_THAT(answer.output, StartsWith("line number 0\nline number 1\n"));
    EXPECT_THAT(answer.output, HasSubstr("\nline number 1999\n... 10"));
    EXPECT_THAT(answer.output, EndsWith(" bytes that were not kept\n"));
    EXPECT_LT(answer.output.size(), cnMostShownBytes);
    EXPECT_EQ("1", Run("expr 1").result);
}

TEST_F(TclConsoleTest, OutputBeyondTheLimitOfMemoryIsCountedOnly) {
    const ConsoleAnswer answer = Run("puts [string repeat x 3000000]");
    const std::size_t dropped = 3000001 - OutputCapture::cnMostKept;
    EXPECT_THAT(answer.output,
                EndsWith("... and " + std::to_string(dropped) + " bytes that were not kept\n"));
}

TEST(ConsoleText, ShortTextsStayAsTheyAre) {
    for (const char* text : {"", "a", "two\nlines", "two\nlines\n", "\n\n", "\xC3\xA4"})
        EXPECT_EQ(text, gShortenedForConsole(text));
}

TEST(ConsoleText, LongLinesAreDividedBetweenCharacters) {
    std::string line = "x";
    for (int count = 0; count < 5000; ++count)
        line += "\xC3\xA4";
    const std::string shown = gShortenedForConsole(line);
    EXPECT_THAT(shown, HasSubstr("\xC3\xA4\n\xC3\xA4"));
    std::string joined = shown;
    joined.erase(std::remove(joined.begin(), joined.end(), '\n'), joined.end());
    EXPECT_EQ(line, joined);
}

TEST(ConsoleText, NothingIsLeftOutUnnoticed) {
    const std::string lines = [] {
        std::string text;
        for (int count = 0; count < 5000; ++count)
            text += "a line\n";
        return text;
    }();
    EXPECT_THAT(gShortenedForConsole(lines), EndsWith("a line\n... 21000 bytes more\n"));
    const std::string huge(1'000'000, 'x');
    EXPECT_THAT(gShortenedForConsole(huge), EndsWith("\n... 800000 bytes more\n"));
    const std::string noUtf8(1'000'000, '\x80');
    EXPECT_THAT(gShortenedForConsole(noUtf8), EndsWith(" bytes more\n"));
}

}  // namespace
}  // namespace navigator_test
