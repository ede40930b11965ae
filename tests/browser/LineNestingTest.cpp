#include "browser/LineNesting.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/browser/RecordingHost.h"

using namespace vapp_library_browser;

namespace {

std::string Times(std::size_t count, const std::string& text) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i)
        all += text;
    return all;
}

}  // namespace

TEST(LineNesting, OrdinaryLinesPass) {
    EXPECT_FALSE(MayNestTooDeep(""));
    EXPECT_FALSE(MayNestTooDeep("database cellviewinfo is_fab top lib inv layout "));
    EXPECT_FALSE(MayNestTooDeep("edit [current] $x(1)"));
    EXPECT_FALSE(MayNestTooDeep(Times(cnMaxOpenBrackets, "[")));
    const std::string libraries = " -libraries {" + Times(201, " lib(0)") + "}";
    EXPECT_FALSE(MayNestTooDeep("database cells -library \"my top\"" + libraries));
    EXPECT_FALSE(MayNestTooDeep("edit $design" + libraries)) << "no index of a variable";
    EXPECT_FALSE(MayNestTooDeep("edit [current]" + Times(201, " bus\\[3\\]"))) << "escaped";
    EXPECT_FALSE(MayNestTooDeep("edit \"a \\[b\\] \\$c(\"" + Times(201, " {bus[3]}")));
}

TEST(LineNesting, BracketsThatAHookHasQuotedDoNotCount) {
    EXPECT_FALSE(MayNestTooDeep("database cells -libraries {" + Times(5000, "{bus[3]} ") + "}"));
    EXPECT_FALSE(MayNestTooDeep("database x " + Times(5000, "bus\\[3\\] ")));
    EXPECT_FALSE(MayNestTooDeep("database x {" + Times(5000, "[") + "} {*}{" + Times(5000, "(") + "}"));
    const RecordingHost host;  // binds Tcl, whose quoting this is
    const std::string name(10000, '[');
    const CStringU word = RecordingHost::Brace(CStringU(name.c_str()));
    EXPECT_FALSE(MayNestTooDeep("database x " + std::string(word.PayloadView())));
}

TEST(LineNesting, EverythingThatTclWouldOpenCounts) {
    for (const char* start : {"x ", "a{", "\"{", "# {\n", "$x {", "[{]} {", "{a} [ {", "\" ] {", "{*}[ {",
                              "{a\\}} [", "{a\\\\} ["}) {
        EXPECT_TRUE(MayNestTooDeep(start + Times(cnMaxOpenBrackets + 1, "["))) << start;
    }
    for (const char* start : {"\"a$b\" {", "\"a\\\\[b\" {", "x \\\n\"a {b\" ", "\"a\"{", "\\\\"}) {
        EXPECT_TRUE(MayNestTooDeep(start + Times(cnMaxOpenBrackets + 1, "["))) << start;
    }
    EXPECT_TRUE(MayNestTooDeep("x " + Times(3000, "$(")));
    EXPECT_TRUE(MayNestTooDeep("x " + Times(3000, "$a::b_1\xC3\xA9(")));
    EXPECT_TRUE(MayNestTooDeep(Times(10000, "[")));
    EXPECT_TRUE(MayNestTooDeep("database x " + Times(3000, "$x(")));
    EXPECT_TRUE(MayNestTooDeep("database x " + Times(3000, "[\\]")));
    EXPECT_TRUE(MayNestTooDeep("database x " + Times(3000, "[)")));
}

TEST(LineNesting, WordsThatDoNotEndAreNoTrap) {
    EXPECT_FALSE(MayNestTooDeep("{" + Times(5000, "[")));
    EXPECT_FALSE(MayNestTooDeep(Times(5000, "(") + "\\"));
    EXPECT_FALSE(MayNestTooDeep("{" + Times(5000, "[") + "\\"));
}
