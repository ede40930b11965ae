/// The log of actions and the request for a picture.

#include "host/HostCommands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "tests/host/TestInterp.h"

namespace navigator {
namespace {

using navigator_test::TestInterp;

class HostCommandsTest : public testing::Test {
protected:
    HostCommandsTest() {
        m_commands.SetPreviewHandler([this](const PreviewRequest& request) { m_request = request; });
    }
    TestInterp m_interp;
    HostCommands m_commands{m_interp.Get()};
    std::optional<PreviewRequest> m_request;
};

TEST_F(HostCommandsTest, LogActionKeepsTheLineAndRunsItAtGlobalLevel) {
    m_interp.Answer("proc p {} { set x local; logaction {set x global} }; p");
    EXPECT_EQ(m_interp.Answer("set x"), "global");
    ASSERT_EQ(m_commands.Log().Entries().size(), 1U);
    EXPECT_EQ(m_commands.Log().Entries().front().text, "set x global");
}

TEST_F(HostCommandsTest, LogActionHandsOnWhatTheLineGives) {
    EXPECT_EQ(m_interp.Answer("logaction {expr 1+1}"), "2");
    EXPECT_EQ(m_interp.Eval("logaction {error bad}"), TCL_ERROR);
    EXPECT_EQ(m_interp.Result(), "bad");
    EXPECT_EQ(m_interp.Answer("catch {logaction {break}}"), std::to_string(TCL_BREAK));
    EXPECT_EQ(m_interp.Eval("logaction"), TCL_ERROR);
    EXPECT_EQ(m_interp.Eval("logaction a b"), TCL_ERROR);
}

TEST_F(HostCommandsTest, TheLogKeepsTheLastLinesOnly) {
    m_interp.Answer("for {set i 0} {$i < 1500} {incr i} {logaction \"set a $i\"}");
    EXPECT_EQ(m_commands.Log().Entries().size(), ActionLog::cnMostKept);
    EXPECT_EQ(m_commands.Log().Entries().front().text, "set a 500");
    EXPECT_EQ(m_commands.Log().Entries().back().text, "set a 1499");
}

TEST_F(HostCommandsTest, TheLogHasTheSentenceOfALineThatFails) {
    EXPECT_EQ(m_interp.Eval("logaction {error {no such cell}}"), TCL_ERROR);
    const auto& entries = m_commands.Log().Entries();
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries.front().kind, ActionLog::TKind::Action);
    EXPECT_EQ(entries.back().kind, ActionLog::TKind::Failure);
    EXPECT_EQ(entries.back().text, "no such cell");
}

TEST_F(HostCommandsTest, ALineMayDeleteItsOwnCommand) {
    EXPECT_EQ(m_interp.Answer("logaction {rename logaction {}; set y 3}"), "3");
    EXPECT_EQ(m_interp.Eval("logaction {set y 4}"), TCL_ERROR);
}

TEST_F(HostCommandsTest, APreviewLineBecomesARequest) {
    EXPECT_EQ(m_interp.Eval(
                  "librarynavigator preview set -primary {my design} -library lib -cell {a b} -view symbol "
                  "-bmwidth 300 -bmheight 200"),
              TCL_OK);
    ASSERT_TRUE(m_request);
    EXPECT_EQ(m_request->name, (CellViewName{"my design", "lib", "a b", "symbol"}));
    EXPECT_EQ(m_request->width, 300);
    EXPECT_EQ(m_request->height, 200);
}

TEST_F(HostCommandsTest, ThePreviewMayNameNoDesignAndHaveNoSize) {
    EXPECT_EQ(
        m_interp.Eval("librarynavigator preview set -library l -cell c -view v -bmwidth -5 -bmheight 999999"),
        TCL_OK);
    ASSERT_TRUE(m_request);
    EXPECT_EQ(m_request->name.design, "");
    EXPECT_EQ(m_request->width, 0);
    EXPECT_EQ(m_request->height, cnLargestPreview);
}

TEST_F(HostCommandsTest, WrongPreviewLinesAskForNothing) {
    for (const char* line : {"librarynavigator", "librarynavigator preview", "librarynavigator preview get",
                             "librarynavigator preview set -cell", "librarynavigator preview set -frob 1",
                             "librarynavigator preview set -bmwidth wide"})
        EXPECT_EQ(m_interp.Eval(line), TCL_ERROR) << line;
    EXPECT_FALSE(m_request);
}

}  // namespace
}  // namespace navigator
