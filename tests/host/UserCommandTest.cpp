/// What scripts do as a user would, without a screen, and the state that comes of it.

#include "host/UserCommand.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "host/Navigator.h"
#include "host/NavigatorApp.h"
#include "tests/host/TempFolder.h"
#include "tests/host/TestInterp.h"
#include "vapp/text/ActiveCodePage.h"

namespace navigator_test {
namespace {

using navigator::Navigator;
using navigator::NavigatorApp;
using navigator::UserCommand;
using testing::HasSubstr;

class UserCommandTest : public testing::Test {
protected:
    void SetUp() override {
        gSetActiveCodePage(cnUtf8CodePage);
        for (const char* file : {"lib one/a.sym", "lib one/b.sch", "two/c.sym"})
            m_folder.Write(file, "v {}\n");
        ASSERT_FALSE(m_navigator.OpenFolder(m_folder.Path()));
        m_navigator.CreateWindow(600, 940, false);
        m_navigator.LoadSetup();
        m_navigator.ShowLastView();
    }
    void TearDown() override { gSetActiveCodePage(0); }

    std::string Answer(const std::string& line) {
        const int code = Tcl_EvalEx(m_navigator.Interp(), line.c_str(), -1, TCL_EVAL_GLOBAL);
        const std::string result = Tcl_GetStringResult(m_navigator.Interp());
        return code == TCL_OK ? result : "ERROR: " + result;
    }
    std::string State(const char* key) { return Answer(std::string("dict get [user state] ") + key); }

    TempFolder m_folder;
    NavigatorApp m_app;
    Navigator m_navigator{m_app};
};

TEST_F(UserCommandTest, ClicksOnLibrariesNarrowTheList) {
    EXPECT_EQ("3", State("rows"));
    EXPECT_EQ("", Answer("user click library {lib one}; user settle"));
    EXPECT_EQ("{lib one}", State("libraries"));
    EXPECT_EQ("2", State("rows"));
    EXPECT_EQ("", Answer("user click library two -add; user settle"));
    EXPECT_EQ("{lib one} two", State("libraries"));
    EXPECT_EQ("3", State("rows"));
}

TEST_F(UserCommandTest, ClicksOnHeadersSort) {
    EXPECT_EQ("", Answer("user click header View"));
    EXPECT_EQ("View increasing", State("order"));
    EXPECT_EQ("", Answer("user click header View"));
    EXPECT_EQ("View decreasing", State("order"));
    EXPECT_EQ("", Answer("user click header Library -add"));
    EXPECT_EQ("View decreasing Library increasing", State("order"));
}

TEST_F(UserCommandTest, AClickOnARowMovesTheFocus) {
    EXPECT_EQ("", Answer("user click row 1"));
    EXPECT_EQ("{lib one} b schematic", State("cell"));
}

TEST_F(UserCommandTest, BarsAndTheWindowChangeTheHeights) {
    EXPECT_EQ("200 500 228", State("heights"));
    EXPECT_EQ("", Answer("user drag bar 0 -50; user drag bar 1 30"));
    EXPECT_EQ("150 530 248", State("heights"));
    EXPECT_EQ("", Answer("user resize 500 900"));
    EXPECT_EQ("150 530 208", State("heights"));
    EXPECT_EQ("0 0 500 900", State("window"));
}

TEST_F(UserCommandTest, PlacesAreThoseOfTheParts) {
    EXPECT_EQ("0 0 600 200", Answer("user place pane 0"));
    EXPECT_EQ("0 200 600 6", Answer("user place bar 0"));
    EXPECT_EQ("0 206 600 500", Answer("user place pane 1"));
    EXPECT_EQ("", Answer("user place bar 2"));
    EXPECT_EQ("", Answer("user place row 3")) << "there are only three";
    EXPECT_EQ("", Answer("user place library nowhere"));
    EXPECT_EQ("", Answer("user place header nowhere"));
    const std::string library = Answer("user place library two");
    EXPECT_EQ(library,
              Answer("set r [user place library {lib one}]; lset r 1 [expr {[lindex $r 1] + [lindex $r 3]}]"))
        << "one below the other";
    EXPECT_NE("", Answer("user place row 2"));
    EXPECT_EQ("1", Answer("expr {[lindex [user place header View] 0] == "
                          "[lindex [user place header Cell] 0] + [lindex [user place header Cell] 2]}"));
}

TEST_F(UserCommandTest, TypesIntoTheConsoleIfThereIsOne) {
    EXPECT_EQ("ERROR: there is no console", Answer("user type {set x 1}"));
    std::string typed;
    m_navigator.User().SetConsoleHandler([&typed](const std::string& text) { typed = text; });
    EXPECT_EQ("", Answer("user type {set x 1}"));
    EXPECT_EQ("set x 1", typed);
}

TEST_F(UserCommandTest, WhatIsNotThereIsASentence) {
    EXPECT_EQ("ERROR: there is no library \"nowhere\"", Answer("user click library nowhere"));
    EXPECT_EQ("ERROR: there is no row 3", Answer("user click row 3"));
    EXPECT_EQ("ERROR: there is no row -1", Answer("user click row -1"));
    EXPECT_EQ("ERROR: there is no bar 2", Answer("user drag bar 2 1"));
    EXPECT_EQ("ERROR: that is too far", Answer("user drag bar 0 2147483647"));
    EXPECT_THAT(Answer("user click header nowhere"), HasSubstr("\"nowhere\""));
    EXPECT_THAT(Answer("user click pane 0"), HasSubstr("ERROR: only"));
    EXPECT_THAT(Answer("user click row 0 -sub"), HasSubstr("-add"));
    EXPECT_THAT(Answer("user drag row 0 1"), HasSubstr("only a bar"));
    EXPECT_THAT(Answer("user resize 0 10"), HasSubstr("16384"));
    EXPECT_THAT(Answer("user"), HasSubstr("wrong # args"));
}

TEST_F(UserCommandTest, HelpNamesEverySubCommandInOrder) {
    const auto help = UserCommand::Help();
    for (const auto& row : help)
        EXPECT_THAT(row.usage, testing::StartsWith(std::string("user ") + row.name));
    EXPECT_TRUE(std::is_sorted(help.begin(), help.end(), [](const auto& left, const auto& right) {
        return std::string_view(left.name) < right.name;
    }));
}

TEST_F(UserCommandTest, ControlsOfTheCellPaneHavePlaces) {
    const std::string tabs = Answer("user place control 7718");
    EXPECT_EQ(Answer("llength {" + tabs + "}"), "4");
    EXPECT_EQ(
        Answer("lindex [user place control 7695] 1 ; expr {[lindex [user place control 7695] 1] < [lindex {" +
               tabs + "} 1]}"),
        "1")
        << "the filter stands above the tabs";
    for (const char* none : {"0", "-1", "1"})
        EXPECT_EQ(Answer(std::string("user place control ") + none), "") << none;
    EXPECT_THAT(Answer("user place control x"), HasSubstr("ERROR: "));
}

TEST_F(UserCommandTest, OpenMenusAreToldByWhoeverShowsThem) {
    EXPECT_EQ(Answer("user menu"), "");
    m_navigator.User().SetMenuHandler([] { return Tcl_NewStringObj("{text Open}", -1); });
    EXPECT_EQ(Answer("dict get [lindex [user menu] 0] text"), "Open");
    m_navigator.User().SetMenuHandler(nullptr);
    EXPECT_EQ(Answer("user menu"), "");
}

TEST_F(UserCommandTest, TipsAreToldByWhoeverShowsThem) {
    EXPECT_EQ(Answer("user tip"), "tip {} message {}");
    m_navigator.User().SetTipHandler([] { return UserCommand::Tips{"/libs/a b", "told"}; });
    EXPECT_EQ(Answer("dict get [user tip] tip"), "/libs/a b");
    EXPECT_EQ(Answer("dict get [user tip] message"), "told");
}

}  // namespace
}  // namespace navigator_test
