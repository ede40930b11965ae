/// What the user looked at, found again by another run over the same settings.

#include "host/LastView.h"

#include <gtest/gtest.h>

#include <optional>

#include "host/Navigator.h"
#include "host/NavigatorApp.h"
#include "tests/host/TempFolder.h"
#include "vapp/text/ActiveCodePage.h"

namespace navigator_test {
namespace {

using navigator::Navigator;
using navigator::NavigatorApp;

class LastViewTest : public testing::Test {
protected:
    void SetUp() override {
        gSetActiveCodePage(cnUtf8CodePage);
        for (const char* file : {"one/lib a/x.sym", "one/{odd/y.sym", "one/plain/z.sch", "two/plain/w.sym"})
            m_folder.Write(file, "v {}\n");
        Begin();
    }
    void TearDown() override {
        m_navigator.reset();
        gSetActiveCodePage(0);
    }
    /// A run over the settings of the application, with a script before its lists are filled.
    void Begin(const char* script = "") {
        m_navigator.emplace(m_app);
        for (const char* design : {"one", "two"})
            ASSERT_FALSE(m_navigator->OpenFolder(m_folder.Path() / design));
        m_navigator->CreateWindow(600, 940, false);
        Eval(script);
        m_navigator->LoadSetup();
        m_navigator->ShowLastView();
    }
    void Restart(const char* script = "") {
        m_navigator->KeepLastView();
        m_navigator.reset();
        Begin(script);
    }
    std::string Eval(const std::string& line) {
        EXPECT_EQ(TCL_OK, Tcl_EvalEx(m_navigator->Interp(), line.c_str(), -1, TCL_EVAL_GLOBAL)) << line;
        return Tcl_GetStringResult(m_navigator->Interp());
    }
    std::string State(const char* key) { return Eval(std::string("dict get [user state] ") + key); }

    TempFolder m_folder;
    NavigatorApp m_app;
    std::optional<Navigator> m_navigator;
};

TEST_F(LastViewTest, DesignLibrariesAndOrderComeBack) {
    Eval("navigator selectdesign one; user settle");
    Eval("user click library {lib a}; user click library \\{odd -add; user settle");
    Eval("user click header Library; user click header View -add; user click header View -add");
    EXPECT_EQ("2", State("rows"));
    Restart();
    EXPECT_EQ("one", State("design"));
    EXPECT_EQ("{lib a} \\{odd", State("libraries"));
    EXPECT_EQ("Library increasing View decreasing", State("order"));
    EXPECT_EQ("2", State("rows"));
}

TEST_F(LastViewTest, AFirstStartHasNothingToPutBack) {
    EXPECT_EQ("", State("libraries"));
    const std::string order = State("order");
    EXPECT_EQ("one", State("design")) << "the one that was opened first";
    Restart();
    EXPECT_EQ(order, State("order"));
}

TEST_F(LastViewTest, LibrariesOfADesignThatIsNotThereAreNotChosenElsewhere) {
    Eval("navigator selectdesign two; user settle; user click library plain");
    m_navigator->KeepLastView();
    EXPECT_EQ("two", m_app.GetProfileString("LastView", "Design"));
    m_app.WriteProfileString("LastView", "Design", "three");
    m_navigator.reset();
    Begin();
    EXPECT_EQ("one", State("design"));
    EXPECT_EQ("", State("libraries"));
}

TEST_F(LastViewTest, LibrariesAndColumnsThatAreGoneCountForNothing) {
    m_app.WriteProfileString("LastView", "Design", "one");
    m_app.WriteProfileString("LastView", "Libraries", "gone plain");
    m_app.WriteProfileString("LastView", "Order", "Gone increasing View decreasing Cell");
    m_navigator.reset();
    Begin();
    EXPECT_EQ("plain", State("libraries"));
    EXPECT_EQ("View decreasing", State("order"));
}

TEST_F(LastViewTest, SettingsThatAreNoListsAreNone) {
    m_app.WriteProfileString("LastView", "Design", "one");
    m_app.WriteProfileString("LastView", "Libraries", "{plain");
    m_app.WriteProfileString("LastView", "Order", "\"View");
    m_navigator.reset();
    Begin();
    EXPECT_EQ("one", State("design"));
    EXPECT_EQ("", State("libraries"));
}

TEST_F(LastViewTest, WhatAScriptChoosesCountsMore) {
    Eval("navigator selectdesign one; user settle; user click library plain; user click header View");
    Restart("navigator sortby Library decreasing; database select {lib a} x symbol");
    EXPECT_EQ("Library decreasing", State("order"));
    EXPECT_EQ("{lib a} x symbol", State("cell"));
}

}  // namespace
}  // namespace navigator_test
