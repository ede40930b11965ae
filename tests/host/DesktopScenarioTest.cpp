/// The program on a desktop, by real mouse and keys: what a user does, and finds again after the next start.

#include <gmock/gmock.h>

#include "tests/host/DesktopFixture.h"

namespace navigator_test {
namespace {

using testing::HasSubstr;

class DesktopTest : public DesktopFixture {};

TEST_F(DesktopTest, AllIsAsTheUserLeftItAfterARestart) {
    m_first->Start(Words());
    ASSERT_TRUE(Await(*m_first, "[dict get $s rows] == 45")) << m_first->Errors();
    EXPECT_EQ("sample", Of("design"));
    ASSERT_TRUE(m_first->Focus());

    Click(PlaceOf("library logic").center());
    ASSERT_TRUE(Await(*m_first, "[dict get $s libraries] eq {logic} && [dict get $s rows] < 45"));
    Click(PlaceOf("header View").center());
    ASSERT_TRUE(Await(*m_first, "[dict get $s order] eq {View increasing}"));
    Click(PlaceOf("header View").center());
    ASSERT_TRUE(Await(*m_first, "[dict get $s order] eq {View decreasing}"));
    Drag(PlaceOf("bar 0").center(), -70);
    ASSERT_TRUE(Await(*m_first, "[lindex [dict get $s heights] 0] == 130"));
    Drag(PlaceOf("bar 1").center(), 40);
    ASSERT_TRUE(Await(*m_first, "[lindex [dict get $s heights] 1] == 540")) << "the end of the drag";
    // One after the other, so that what is told last is told of both.
    const std::string size = m_interp.Answer("lrange " + Word(Of("window")) + " 2 3");
    const auto place = [](const QStringList& words) {
        return s_desktop->Do(QStringList{QStringLiteral("getwindowfocus")} + words);
    };
    ASSERT_TRUE(place({QStringLiteral("windowsize"), QStringLiteral("1010"), QStringLiteral("970")}));
    ASSERT_TRUE(Await(*m_first, "[lrange [dict get $s window] 2 3] ne " + Word(size)));
    ASSERT_TRUE(place({QStringLiteral("windowmove"), QStringLiteral("100"), QStringLiteral("40")}));
    ASSERT_TRUE(Await(*m_first, "[lrange [dict get $s window] 0 0] == 100"));
    const std::string before = m_state;
    const std::string heights = Of("heights");
    Press({QStringLiteral("ctrl+q")});
    ASSERT_EQ(0, m_first->WaitForEnd()) << m_first->Errors();

    const auto second = NewProgram();
    second->Start(Words());
    ASSERT_TRUE(Await(*second, "[dict get $s libraries] eq {logic}")) << second->Errors();
    ASSERT_TRUE(Await(*second, "[dict get $s heights] eq " + Word(heights))) << Of("heights");
    for (const char* key : {"design", "libraries", "order", "rows", "window"})
        EXPECT_EQ(m_interp.Answer("dict get " + Word(before) + " " + key), Of(key)) << key;
    ASSERT_TRUE(second->Focus());
    Press({QStringLiteral("ctrl+q")});
    EXPECT_EQ(0, second->WaitForEnd()) << second->Errors();
}

TEST_F(DesktopTest, TheConsoleAnswersWhatIsTyped) {
    m_first->Start(Words());
    ASSERT_TRUE(Await(*m_first, "[dict get $s rows] == 45")) << m_first->Errors();
    ASSERT_TRUE(m_first->Focus());
    Press({QStringLiteral("ctrl+t")});
    Type("set ::typed [database top_level sample]");
    Press({QStringLiteral("Return")});
    ASSERT_TRUE(Await(*m_first, "[dict get $s typed] eq {top}"));
    Type("foreach x {1 2 3} {");
    Press({QStringLiteral("Return")});
    Type("append ::typed $x");
    Press({QStringLiteral("Return")});
    Type("}");
    Press({QStringLiteral("Return")});
    ASSERT_TRUE(Await(*m_first, "[dict get $s typed] eq {top123}"));
    Press({QStringLiteral("Up"), QStringLiteral("Return")});
    ASSERT_TRUE(Await(*m_first, "[dict get $s typed] eq {top123123}"));
    Type("nosuchcommand");
    Press({QStringLiteral("Return")});
    Type("database select logic inv symbol");
    Press({QStringLiteral("Return")});
    ASSERT_TRUE(Await(*m_first, "[dict get $s cell] eq {logic inv symbol}"));
    Type("set ::typed endless; while 1 {}");
    Press({QStringLiteral("Return"), QStringLiteral("Escape")});
    ASSERT_TRUE(Await(*m_first, "[dict get $s typed] eq {endless}")) << "a line that never ends was stopped";
    Type("exit 5");
    Press({QStringLiteral("Return")});
    EXPECT_EQ(5, m_first->WaitForEnd()) << m_first->Errors();
}

TEST_F(DesktopTest, ASecondInstanceIsRefusedUntilTheFirstIsGoneEvenByForce) {
    m_first->Start(Words());
    ASSERT_TRUE(Await(*m_first, "[dict get $s rows] == 45")) << m_first->Errors();
    const auto second = NewProgram();
    second->Start(Words());
    EXPECT_EQ(3, second->WaitForEnd());
    EXPECT_THAT(second->Errors(), HasSubstr("navigator: The navigator is running already."));

    const auto allowed = NewProgram();
    allowed->Start(Words({QStringLiteral("--instances"), QStringLiteral("2")}));
    ASSERT_TRUE(Await(*allowed, "[dict get $s rows] == 45")) << allowed->Errors();
    allowed->Kill();

    m_first->Kill();
    const auto third = NewProgram();
    third->Start(Words());
    EXPECT_TRUE(Await(*third, "[dict get $s rows] == 45")) << third->Errors();
}

TEST_F(DesktopTest, ASecondInstanceWithoutAScriptTellsItsUserInABox) {
    m_first->Start(Words());
    ASSERT_TRUE(Await(*m_first, "[dict get $s rows] == 45")) << m_first->Errors();
    const auto second = NewProgram();
    second->Start({QStringLiteral(SAMPLE_DESIGN)});
    ASSERT_TRUE(second->Focus()) << "the box has the program's name";
    Press({QStringLiteral("Return")});
    EXPECT_EQ(3, second->WaitForEnd());
}

TEST_F(DesktopTest, TheSplashStandsInTheMiddleWhileTheProgramStarts) {
    // Nothing ends the splash while a script runs: its time is looked at by the event loop.
    m_home.Write("splash.tcl",
                 "puts \"splash [exec xdotool search --onlyvisible --all --pid [pid] --name .* "
                 "getwindowgeometry %@]\"\n"
                 "exit\n");
    m_first->Start({QStringLiteral("--script"),
                    QString::fromStdString((m_home.Path() / "splash.tcl").string()),
                    QStringLiteral(SAMPLE_DESIGN)});
    EXPECT_TRUE(m_first->WaitFor(QStringLiteral("splash"), [](const QString&) { return true; }));
    EXPECT_TRUE(m_first->WaitFor(QStringLiteral("  Position:"), [](const QString& place) {
        return place.startsWith(QStringLiteral("441,399"));
    }));
    EXPECT_TRUE(m_first->WaitFor(QStringLiteral("  Geometry:"),
                                 [](const QString& size) { return size == QStringLiteral("518x302"); }));
    EXPECT_EQ(0, m_first->WaitForEnd()) << m_first->Errors();
}

TEST_F(DesktopTest, ARecentFolderIsOpenedByKeys) {
    m_home.Write("other/lib/one.sym", "v {}\n");
    m_first->Start(Words({QString::fromStdString((m_home.Path() / "other").string())}));
    ASSERT_TRUE(Await(*m_first, "[dict get $s rows] == 45")) << m_first->Errors();
    ASSERT_TRUE(m_first->Focus());
    Press({QStringLiteral("alt+f"), QStringLiteral("r"), QStringLiteral("1")});
    ASSERT_TRUE(Await(*m_first, "[dict get $s design] eq {other} && [dict get $s rows] == 1"));
    Press({QStringLiteral("alt+f"), QStringLiteral("q")});
    EXPECT_EQ(0, m_first->WaitForEnd()) << m_first->Errors();
}

}  // namespace
}  // namespace navigator_test
