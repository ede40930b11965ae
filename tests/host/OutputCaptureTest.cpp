/// What scripts write, kept; and the channels as they were before.

#include "host/OutputCapture.h"

#include <gtest/gtest.h>

#include "tests/host/TestInterp.h"

namespace navigator_test {
namespace {

using navigator::OutputCapture;

TEST(OutputCapture, KeepsBothChannelsInOrder) {
    TestInterp interp;
    OutputCapture capture(interp.Get());
    EXPECT_EQ("", interp.Answer("puts a; flush stdout; puts stderr b; puts c"));
    EXPECT_EQ("a\nb\nc\n", capture.Take());
    EXPECT_EQ("", capture.Take());
    EXPECT_EQ(0u, capture.Dropped());
}

TEST(OutputCapture, LeavesTheResultOfTheInterpreterAlone) {
    TestInterp interp;
    ASSERT_EQ(TCL_OK, interp.Eval("set x kept"));
    {
        const OutputCapture capture(interp.Get());
        EXPECT_EQ("kept", interp.Result());
    }
    EXPECT_EQ("kept", interp.Result());
}

TEST(OutputCapture, OneInsideOfAnotherKeepsWhatIsItsOwn) {
    TestInterp interp;
    OutputCapture outer(interp.Get());
    EXPECT_EQ("", interp.Answer("puts before"));
    {
        OutputCapture inner(interp.Get());
        EXPECT_EQ("", interp.Answer("puts inside"));
        EXPECT_EQ("inside\n", inner.Take());
    }
    EXPECT_EQ("", interp.Answer("puts after"));
    EXPECT_EQ("before\nafter\n", outer.Take());
}

TEST(OutputCapture, EndsWithTheInterpreter) {
    TestInterp interp;
    OutputCapture capture(interp.Get());
    Tcl_Preserve(interp.Get());
    Tcl_Interp* const kept = interp.Get();
    interp.Delete();
    EXPECT_EQ("", capture.Take());
    Tcl_Release(kept);
}

}  // namespace
}  // namespace navigator_test
