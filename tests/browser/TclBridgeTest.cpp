/// @file
/// The bridge against a host that keeps every line: what is sent, what is left of it, how answers are read,
/// and that nothing which a name or an answer may hold does harm.
#include "vapp/browser/TclBridge.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include <string>

#include "tests/browser/RecordingHost.h"

using namespace vapp_library_browser;

namespace {

CStringU Utf8(const std::string& text) {
    return {text.c_str(), TextEncoding::Utf8Auto};
}

std::string Bytes(const CStringU& text) {
    return std::string(text.PayloadView());
}

const std::string csHostileNames[] = {"two words",
                                      "{",
                                      "}",
                                      "[exec anything]",
                                      "$x",
                                      "\"",
                                      "a\"b",
                                      "line\nfeed",
                                      "\\",
                                      "back\\",
                                      ";",
                                      "#",
                                      "a;database b",
                                      "\t",
                                      "",
                                      "{*}x",
                                      "\xC3\xA9t\xC3\xA9",
                                      "a\xC3\xA9",
                                      "\xC0\x80",
                                      "a\xC0\x80z",
                                      "\xE4\xB8",
                                      "a\xFF\xFE",
                                      "\xF0\x9F\x98\x80",
                                      std::string(10000, 'n'),
                                      std::string(10000, '{'),
                                      std::string(10000, '[')};

}  // namespace

class TclBridge : public testing::Test {
protected:
    // Names that are sent bare run what they hold; `ran` tells that one did.
    TclBridge() { m_host.Eval("rename exec {}; proc exec args {set ::ran 1}"); }

    int Evaluate(const char* line) { return EvaluateTcl(m_host.GetInterp(), line, nullptr); }

    RecordingHost m_host;
};

TEST_F(TclBridge, WithoutAHookANameWithABlankIsTwoWords) {
    m_host.AnswerStart("database", "");
    const CStringU name("my lib");
    TLineBuilder line("database top_level ");
    line.Name(name);
    EXPECT_EQ(Evaluate(line.GetString()), TCL_OK);
    ASSERT_EQ(m_host.Lines().size(), 1u);
    EXPECT_EQ(m_host.Lines()[0], "database top_level my lib");
    EXPECT_EQ(SanitizeTclInput(name), name);
}

TEST_F(TclBridge, TheHookMakesOneWordAndNullRemovesIt) {
    const CStringU name("my lib");
    {
        const HookGuard hook;
        EXPECT_EQ(Bytes(SanitizeTclInput(name)), "{my lib}");
        EXPECT_EQ(TLineBuilder("a ").Name(name).View(), "a {my lib}");
    }
    EXPECT_EQ(Bytes(SanitizeTclInput(name)), "my lib");
}

TEST_F(TclBridge, NonAsciiNamesReachTclWithoutTheMarkerAndComeBackWithIt) {
    const CStringU name = Utf8("caf\xC3\xA9");
    ASSERT_EQ(name.Stored().GetAt(0), '\x80');
    m_host.Handle("database echo caf\xC3\xA9", [](Tcl_Interp* interp) {
        Tcl_SetObjResult(interp, Tcl_NewStringObj("caf\xC3\xA9", -1));
        return TCL_OK;
    });
    const CStringU line = TLineBuilder("database echo ").Name(name).ToText();
    Tcl_Obj* answer = nullptr;
    ASSERT_EQ(EvaluateTcl(m_host.GetInterp(), line, &answer), TCL_OK);
    const TTclObject holder = TTclObject::Adopt(answer);
    EXPECT_EQ(m_host.Lines()[0], "database echo caf\xC3\xA9");
    EXPECT_EQ(MakeText(answer).Stored(), name.Stored());
}

TEST_F(TclBridge, AsciiAnswersCarryNoMarker) {
    m_host.Answer("database x", "plain");
    const CStringU text = AskTclText(m_host.GetInterp(), "database x");
    EXPECT_EQ(text.Stored(), CString("plain"));
}

TEST_F(TclBridge, TheHostsResultStandsAsItStoodAfterAnyLine) {
    m_host.Answer("database good", "fine");
    m_host.AnswerCode("database bad", TCL_ERROR, "boom");
    for (const char* line : {"database good", "database bad", "nonsense", "{", "error x", "set", ""}) {
        m_host.SetResult("the host's");
        Evaluate(line);
        EXPECT_EQ(m_host.GetResult(), "the host's") << line;
        TTclObject answer;
        EvaluateTcl(m_host.GetInterp(), line, &answer);
        EXPECT_EQ(m_host.GetResult(), "the host's") << line;
    }
}

TEST_F(TclBridge, AnErrorLeavesTheHostsErrorInfoAsTheOnlyTrace) {
    m_host.AnswerCode("database bad", TCL_ERROR, "boom");
    m_host.SetResult("kept");
    EXPECT_EQ(Evaluate("database bad"), TCL_ERROR);
    EXPECT_EQ(m_host.GetResult(), "kept");
    EXPECT_NE(m_host.Eval("set errorInfo").find("boom"), std::string::npos);
}

TEST_F(TclBridge, AGoodLineLeavesErrorInfoAlone) {
    m_host.Eval("set errorInfo before; set errorCode code");
    m_host.Answer("database good", "1");
    EXPECT_TRUE(AskTclFlag(m_host.GetInterp(), "database good"));
    EXPECT_EQ(m_host.Eval("set errorInfo"), "before");
    EXPECT_EQ(m_host.Eval("set errorCode"), "code");
}

TEST_F(TclBridge, ABadFlagIsFalseAndLeavesNoMessage) {
    for (const char* answer : {"", "yes", "true", "1.5", "0x", "1 2", "{1", "99999999999999999999"}) {
        m_host.Answer("database flag", answer);
        m_host.SetResult("kept");
        EXPECT_FALSE(AskTclFlag(m_host.GetInterp(), "database flag")) << answer;
        EXPECT_FALSE(AskTclFlag(m_host.GetInterp(), "database flag", true)) << answer;
        EXPECT_EQ(m_host.GetResult(), "kept");
    }
}

TEST_F(TclBridge, FlagsAreIntegersOtherThanZero) {
    const std::pair<const char*, bool> cases[] = {{"0", false},  {"1", true},    {"-1", true}, {"256", true},
                                                  {" 7 ", true}, {"0x10", true}, {"00", false}};
    for (const auto& [answer, expected] : cases) {
        m_host.Answer("database flag", answer);
        EXPECT_EQ(AskTclFlag(m_host.GetInterp(), "database flag"), expected) << answer;
    }
}

TEST_F(TclBridge, AFailedFlagLineGivesTheDefault) {
    EXPECT_FALSE(AskTclFlag(m_host.GetInterp(), "database unknown"));
    EXPECT_TRUE(AskTclFlag(m_host.GetInterp(), "database unknown", true));
    EXPECT_TRUE(AskTclText(m_host.GetInterp(), "database unknown").IsEmpty());
}

TEST_F(TclBridge, CodesAboveErrorGiveNoAnswer) {
    m_host.Inside([this] {
        for (const int code : {TCL_RETURN, TCL_BREAK, TCL_CONTINUE, 5, 77}) {
            m_host.AnswerCode("database code", code, "1");
            Tcl_Obj* answer = Tcl_NewStringObj("stale", -1);
            const TTclObject stale(answer);
            EXPECT_EQ(EvaluateTcl(m_host.GetInterp(), CStringU("database code"), &answer), code);
            EXPECT_EQ(answer, nullptr);
            EXPECT_FALSE(AskTclFlag(m_host.GetInterp(), "database code"));
            EXPECT_FALSE(AskTcl(m_host.GetInterp(), "database code"));
        }
    });
}

TEST_F(TclBridge, AtTheTopLevelOddCodesAreErrorsAlready) {
    for (const char* line : {"return -code break", "return -code 7 x", "break", "continue"}) {
        EXPECT_EQ(Evaluate(line), TCL_ERROR) << line;
    }
}

TEST_F(TclBridge, TheAnswerOfAnErrorComesWithAReferenceForTheCaller) {
    m_host.AnswerCode("database bad", TCL_ERROR, "boom");
    Tcl_Obj* answer = nullptr;
    EXPECT_EQ(EvaluateTcl(m_host.GetInterp(), CStringU("database bad"), &answer), TCL_ERROR);
    ASSERT_NE(answer, nullptr);
    EXPECT_EQ(answer->refCount, 1);  // ours alone: the interpreter's result has been restored
    EXPECT_EQ(ReadBytes(answer), "boom");
    const TTclObject dropped = TTclObject::Adopt(answer);
}

TEST_F(TclBridge, ALineRunsInTheHostsFrame) {
    m_host.Handle("database run", [this](Tcl_Interp*) {
        Evaluate("set local seen");
        return TCL_OK;
    });
    EXPECT_EQ(m_host.Eval("proc host {} {set local here; database run; return $local}; host"), "seen");
}

TEST_F(TclBridge, AnAnswerOutlivesWhateverTheHostDoesMeanwhile) {
    m_host.Answer("database list", "a b c");
    const TTclObject answer = AskTcl(m_host.GetInterp(), "database list");
    const auto list = TTclList::Read(answer.Get());
    m_host.SetResult("other");
    m_host.Eval("rename database {}");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->size(), 3u);
    EXPECT_EQ(Bytes(MakeText((*list)[2])), "c");
}

TEST_F(TclBridge, TheAnswerOfALineWithinALineIsTheInnersOwn) {
    m_host.Answer("database inner", "inner");
    m_host.Handle("database outer", [this](Tcl_Interp* interp) {
        Tcl_SetObjResult(interp, Tcl_NewStringObj("outer", -1));
        EXPECT_EQ(Bytes(AskTclText(interp, "database inner")), "inner");
        return TCL_OK;
    });
    EXPECT_EQ(Bytes(AskTclText(m_host.GetInterp(), "database outer")), "outer");
}

TEST_F(TclBridge, LinesWithoutEndInsideOfLinesComeToAnEnd) {
    int depth = 0;
    m_host.Handle("database again", [&](Tcl_Interp* interp) {
        ++depth;
        return EvaluateTcl(interp, "database again", nullptr);
    });
    EXPECT_EQ(Evaluate("database again"), TCL_ERROR);
    EXPECT_EQ(depth, cnMaxNestedLines);
    m_host.Answer("database good", "1");
    EXPECT_TRUE(AskTclFlag(m_host.GetInterp(), "database good"));
}

TEST_F(TclBridge, ALineMayDeleteTheInterpreter) {
    m_host.Eval("interp create child");
    Tcl_Interp* child = Tcl_GetSlave(m_host.GetInterp(), "child");
    ASSERT_NE(child, nullptr);
    Tcl_CreateObjCommand(
        child, "database",
        [](void* data, Tcl_Interp*, int, Tcl_Obj* const[]) {
            return EvaluateTcl(static_cast<Tcl_Interp*>(data), "interp delete child", nullptr);
        },
        m_host.GetInterp(), nullptr);
    TTclObject answer;
    EvaluateTcl(child, "database all_libs", &answer);
    EXPECT_EQ(m_host.Eval("interp exists child"), "0");
}

TEST_F(TclBridge, WithoutAnInterpreterALineFails) {
    TTclObject answer;
    EXPECT_EQ(EvaluateTcl(nullptr, "set a", &answer), TCL_ERROR);
    EXPECT_FALSE(answer);
    EXPECT_FALSE(EnsureTclBound(nullptr));
}

TEST_F(TclBridge, ABrokenListIsNoListAndLeavesNoMessage) {
    for (const char* answer : {"{", "a {b", "a {b}c", "\"open"}) {
        m_host.SetResult("kept");
        const TTclObject object(Tcl_NewStringObj(answer, -1));
        EXPECT_FALSE(TTclList::Read(object.Get())) << answer;
        EXPECT_EQ(m_host.GetResult(), "kept");
    }
    EXPECT_FALSE(TTclList::Read(nullptr));
}

TEST_F(TclBridge, HostileNamesGoThroughAHookUnchanged) {
    const HookGuard hook;
    for (const std::string& name : csHostileNames) {
        const CStringU line = TLineBuilder("list ").Name(Utf8(name)).ToText();
        const TTclObject answer = AskTcl(m_host.GetInterp(), line.Payload());
        ASSERT_TRUE(answer) << name.substr(0, 40);
        const auto words = TTclList::Read(answer.Get());
        ASSERT_TRUE(words);
        ASSERT_EQ(words->size(), 1u) << name.substr(0, 40);
        EXPECT_EQ(Bytes(MakeText((*words)[0])), Bytes(Utf8(name)));
    }
    EXPECT_EQ(m_host.Eval("info exists ::ran"), "0");
}

TEST_F(TclBridge, HostileNamesWithoutAHookDoNoHarmToTheNavigator) {
    m_host.AnswerStart("database", "1");
    for (const std::string& name : csHostileNames) {
        m_host.SetResult("kept");
        TLineBuilder line("database cellviewinfo is_fab ");
        line.Triple({Utf8(name), Utf8(name), Utf8(name)}).Literal(" ");
        static_cast<void>(AskTclFlag(m_host.GetInterp(), line.GetString()));
        EXPECT_EQ(m_host.GetResult(), "kept");
    }
    EXPECT_EQ(m_host.Eval("info exists ::ran"), "1") << "this is what hosts install a hook against";
}

TEST_F(TclBridge, NoLineEverBeginsWithTheMarker) {
    for (const std::string& name : csHostileNames) {
        const CStringU text = Utf8(name);
        EXPECT_EQ(TLineBuilder().Name(text).View(), text.PayloadView());
        const CStringU joined = JoinTriple({text, text, text});
        EXPECT_EQ(Bytes(joined), Bytes(text) + " " + Bytes(text) + " " + Bytes(text));
    }
    const CStringU marked("a", TextEncoding::Utf8);  // ASCII with a marker that it does not need
    EXPECT_EQ(TLineBuilder("x ").Name(marked).View(), "x a");
    EXPECT_EQ(Bytes(WrapForActionLog(marked)), "logaction a");
}

TEST_F(TclBridge, ATripleIsSanitisedNameByName) {
    const HookGuard hook;
    EXPECT_EQ(Bytes(JoinTriple({"my lib", "inv", "lay out"})), "{my lib} inv {lay out}");
}

TEST_F(TclBridge, UsersCommandsAreLoggedAsOneWord) {
    const HookGuard hook;
    EXPECT_EQ(Bytes(WrapForActionLog("edit top lib")), "logaction {edit top lib}");
    EXPECT_EQ(Bytes(WrapForActionLog(Utf8("edit caf\xC3\xA9"))), "logaction {edit caf\xC3\xA9}");
}

TEST_F(TclBridge, TheNavigatorsOwnTrafficIsNotLogged) {
    EXPECT_EQ(Bytes(WrapForActionLog("librarynavigator preview set")), "librarynavigator preview set");
    EXPECT_EQ(Bytes(WrapForActionLog("librarynavigatorx")), "librarynavigatorx");
    EXPECT_EQ(Bytes(WrapForActionLog("LibraryNavigator x")), "logaction LibraryNavigator x");
    EXPECT_EQ(Bytes(WrapForActionLog(" librarynavigator x")), "logaction  librarynavigator x");
    EXPECT_EQ(Bytes(WrapForActionLog("")), "logaction ");
}

TEST_F(TclBridge, BytesThatAreNoUtf8StayAsTheyAre) {
    for (const char* bytes : {"a\xFF", "\xC3", "\xE4\xB8", "a\x85z", "\xF8\x88"}) {
        const TTclObject object(Tcl_NewStringObj(bytes, -1));
        EXPECT_EQ(Bytes(MakeText(object.Get())), bytes);
    }
}
