/// Life and death of commands.

#include "host/TclCommand.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>

#include "tests/host/TestInterp.h"

namespace navigator {
namespace {

using navigator_test::TestInterp;

int SayHello(Tcl_Interp* interp, TclWords words) {
    Tcl_SetObjResult(interp, gTclText("hello " + std::to_string(words.size())));
    return TCL_OK;
}

TEST(TclCommand, IsThereWhileTheObjectIs) {
    TestInterp interp;
    {
        const TclCommand command(interp.Get(), "hello", SayHello);
        EXPECT_EQ(interp.Answer("hello a b"), "hello 3");
        EXPECT_EQ(interp.Answer("rename hello bye; bye"), "hello 1");
    }
    EXPECT_EQ(interp.Eval("bye"), TCL_ERROR);
}

TEST(TclCommand, OutlivesItsInterpreterAndADeletionByScript) {
    TestInterp interp;
    const TclCommand first(interp.Get(), "first", SayHello);
    const TclCommand second(interp.Get(), "second", SayHello);
    interp.Answer("rename first {}");
    interp.Delete();
}

TEST(TclCommand, MayEndWhileItRuns) {
    TestInterp interp;
    std::optional<TclCommand> command;
    const std::string text = "still alive";
    command.emplace(interp.Get(), "last", [&command, text](Tcl_Interp* caller, TclWords) {
        command.reset();
        Tcl_SetObjResult(caller, gTclText(text));
        return TCL_OK;
    });
    EXPECT_EQ(interp.Answer("last"), text);
    EXPECT_EQ(interp.Eval("last"), TCL_ERROR);
}

TEST(TclCommand, AnExceptionBecomesAnError) {
    TestInterp interp;
    const TclCommand command(interp.Get(), "bad",
                             [](Tcl_Interp*, TclWords) -> int { throw std::runtime_error("went wrong"); });
    EXPECT_EQ(interp.Eval("bad"), TCL_ERROR);
    EXPECT_EQ(interp.Result(), "went wrong");
}

TEST(TclCommand, HelpIsUsageAndExplanation) {
    const CommandHelp rows[] = {{"a", "a X", "Does a."}};
    EXPECT_EQ(gDescribe(rows), "a X\n    Does a.\n");
}

}  // namespace
}  // namespace navigator
