/// @file
/// Answers that Tcl could not turn into a text without the end of the process: read by every reader, and by
/// the navigator where the host gives them.
#include "browser/AnswerDepth.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include "tests/browser/NavigatorFixture.h"
#include "tests/browser/TclInterpreter.h"
#include "vapp/browser/TclBridge.h"

using namespace vapp_library_browser;

namespace {

/// A script whose result is lists within lists, none of which has a text.
std::string Nested(int levels) {
    return "set l {}; for {set i 0} {$i<" + std::to_string(levels) + "} {incr i} {set l [list $l]}; ";
}

class AnswerDepth : public NavigatorFixture {
protected:
    [[nodiscard]] TTclObject Ask(const std::string& script) {
        return AskTcl(m_host.GetInterp(), script.c_str());
    }
    /// The host's `database` command is this body from now on.
    void Become(const std::string& body) {
        m_host.Eval("rename database {}; proc database {args} {" + body + "}");
    }
};

}  // namespace

TEST_F(AnswerDepth, TheLimitIsTheNumberOfListsWithinOneAnother) {
    const TTclObject within = Ask(Nested(static_cast<int>(cnMaxAnswerDepth) - 1) + "list $l");
    EXPECT_TRUE(HasReadableText(within.Get()));
    EXPECT_EQ(ReadBytes(within.Get()).size(), 2 * cnMaxAnswerDepth);
    const TTclObject beyond = Ask(Nested(static_cast<int>(cnMaxAnswerDepth)) + "list $l");
    EXPECT_FALSE(HasReadableText(beyond.Get()));
    EXPECT_EQ(ReadBytes(beyond.Get()), "");
    EXPECT_FALSE(HasReadableText(nullptr));
}

TEST_F(AnswerDepth, EveryReaderTakesADeepListForNothing) {
    const TTclObject deep = Ask(Nested(100000) + "list [list $l]");
    ASSERT_TRUE(deep);
    EXPECT_EQ(ReadBytes(deep.Get()), "");
    EXPECT_TRUE(MakeText(deep.Get()).IsEmpty());
    EXPECT_FALSE(ReadInteger(deep.Get()));
    EXPECT_FALSE(ReadFlag(deep.Get()));
    const auto list = TTclList::Read(deep.Get());
    ASSERT_TRUE(list) << "one level at a time it is a list like any";
    EXPECT_EQ(list->size(), 1u);
}

TEST_F(AnswerDepth, DeepDictionariesAreNothingToo) {
    // In an interpreter of its own: the recording one has each command's words turned into texts.
    Tcl_Interp* interp = MakeTclInterpreter();
    {
        const TTclObject deep =
            AskTcl(interp, "set d {}; for {set i 0} {$i<5000} {incr i} {set d [dict create k $d]}; set d");
        ASSERT_TRUE(deep);
        EXPECT_FALSE(HasReadableText(deep.Get()));
        EXPECT_EQ(ReadBytes(deep.Get()), "");
        const TTclObject small = AskTcl(interp, "dict create a [dict create b c] d [list e f]");
        EXPECT_EQ(ReadBytes(small.Get()), "a {b c} d {e f}");
    }
    EndTclInterpreter(interp);
}

TEST_F(AnswerDepth, SharedElementsCountAsOftenAsTheyStandInTheText) {
    const TTclObject huge = Ask("set l x; for {set i 0} {$i<60} {incr i} {set l [list $l $l]}; set l");
    ASSERT_TRUE(huge);
    EXPECT_EQ(ReadBytes(huge.Get()), "");
    EXPECT_FALSE(ReadFlag(huge.Get()));
}

TEST_F(AnswerDepth, OrdinaryListsReadAsTheirText) {
    EXPECT_EQ(ReadBytes(Ask("list a {b c} [list d]").Get()), "a {b c} d");
    EXPECT_EQ(ReadBytes(Ask("list").Get()), "");
    EXPECT_EQ(ReadInteger(Ask("list 7").Get()), 7);
    EXPECT_EQ(ReadBytes(Ask("expr {6*7}").Get()), "42");
}

TEST_F(AnswerDepth, TheNavigatorSurvivesDeepAnswersToEveryQuestion) {
    Show({"lib"});
    for (const char* answer : {"return $l", "return [list [list $l]]", "return [list [list $l [list $l $l]]]",
                               "return [list $l $l $l]", "return [list [list $l $l $l]]"}) {
        Become(Nested(100000) + answer);
        Libraries().OnUpdate(nullptr, cnHintSelectedMaster, nullptr);
        gPendingHighlight().reset();
        m_browser.RequestCellListViewDelayedPopulate(UpdateIfFilterSaysSo);
        m_browser.RequestCellListViewDelayedPopulate(UpdateAlways);
        Refresh();
        for (const bool editor : {false, true}) {
            if (editor) m_browser.ModifyForQEdit();
            static_cast<void>(Libraries().GetLibraryListCtrl().DrawItem(0));
        }
    }
    Become("error gone");
    Refresh();
    EXPECT_TRUE(Libraries().NeedsPopulate());
}

TEST_F(AnswerDepth, ADeepNameOfADesignIsTheEmptyName) {
    Initialize();
    Become(Nested(100000) + "return [list [list $l [list a /a]]]");
    Refresh();
    EXPECT_FALSE(Libraries().NeedsPopulate());
    EXPECT_EQ(Shown(), std::vector<std::string>{"a"});
    EXPECT_TRUE(m_browser.GetSelectedDesign().IsEmpty());
}
