/// Narrowing the list and arranging its columns on a desktop, by real mouse and keys, and the next start that
/// finds all as it was.

#include <gmock/gmock.h>

#include <string>

#include "tests/host/DesktopFixture.h"

namespace navigator_test {
namespace {

/// Tells what is seen, with the places that these tests point at.
constexpr char csFilterTeller[] = R"tcl(
set ::told {}
navigator onidle {
    set now [user state]
    foreach place {{header Cell} {header View} {header Library} {control 7695} {control 7701} {control 7718}
                   {control 7843}} {
        dict set now $place [user place {*}$place]
    }
    dict set now menu [user menu]
    if {$now ne $::told} { set ::told $now; puts "state $now"; flush stdout }
}
)tcl";

class DesktopFilterTest : public DesktopFixture {
protected:
    void SetUp() override {
        DesktopFixture::SetUp();
        if (IsSkipped()) return;
        m_script = m_home.Write("filter-teller.tcl", csFilterTeller);
        Begin(*m_first);
    }
    void Begin(DesktopProgram& program) {
        program.Start(Words());
        ASSERT_TRUE(Await(program, "[dict get $s rows] > 0")) << program.Errors();
        ASSERT_TRUE(program.Focus());
    }
    void End(DesktopProgram& program) {
        Press({QStringLiteral("ctrl+q")});
        ASSERT_EQ(0, program.WaitForEnd()) << program.Errors();
    }
    [[nodiscard]] bool Awaits(const std::string& expression) { return Await(*m_first, expression); }
    [[nodiscard]] bool IsFilter(const std::string& text) {
        return Awaits("[dict get $s filter] eq {" + text + "}");
    }
    /// Types into the filter, and leaves it empty: one entry more of the history.
    void Remember(const char* text) {
        Press({QStringLiteral("ctrl+f")});
        Type(text);
        ASSERT_TRUE(IsFilter(text));
        Press({QStringLiteral("Escape")});
        ASSERT_TRUE(IsFilter(""));
    }
    void ClickControl(const std::string& number) { Click(PlaceOf("control " + number).center()); }
    /// The tabs' own places are the strip's affair; each is about this wide.
    void ClickTab(int tab) {
        constexpr int cnTabWidth = 75;
        const QRect strip = PlaceOf("control 7718");
        Click({strip.left() + cnTabWidth / 2 + tab * cnTabWidth, strip.center().y()});
    }
    static void DragTo(QPoint from, QPoint to) {
        ASSERT_TRUE(s_desktop->Do(At(from) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")} +
                                  At(from + (to - from) / 3) + At(from + (to - from) / 2) + At(to) +
                                  QStringList{QStringLiteral("mouseup"), QStringLiteral("1")}));
    }
};

TEST_F(DesktopFilterTest, KeysLeadToTheFilterAndBackToTheRows) {
    Press({QStringLiteral("ctrl+f")});
    Type("inv");
    ASSERT_TRUE(Awaits("[dict get $s filter] eq {inv} && [dict get $s rows] < 45"));
    EXPECT_EQ(Of("status"), Of("rows") + " of 45 cells");
    Press({QStringLiteral("Down")});
    ASSERT_TRUE(Awaits("[string match -nocase *inv* [lindex [dict get $s cell] 1]]"));
    const std::string first = Of("cell");
    Press({QStringLiteral("Down")});
    ASSERT_TRUE(Awaits("[dict get $s cell] ne " + Word(first)));
    Press({QStringLiteral("slash")});
    Type("nand");
    ASSERT_TRUE(IsFilter("nand")) << "what was there is typed over: " << Of("filter");
    Press({QStringLiteral("Escape")});
    ASSERT_TRUE(Awaits("[dict get $s filter] eq {} && [dict get $s rows] == 45"));
    Press({QStringLiteral("Escape"), QStringLiteral("End")});
    ASSERT_TRUE(
        Awaits("[lindex [dict get $s cell] 1] ne {} && ![string match -nocase *inv* [dict get $s cell]]"))
        << "the keyboard is with the rows again";
    EXPECT_EQ(Of("filter"), "");
    End(*m_first);
}

TEST_F(DesktopFilterTest, AListThatShowsNothingSaysWhy) {
    Press({QStringLiteral("ctrl+f")});
    Type("no such cell");
    ASSERT_TRUE(Awaits("[dict get $s rows] == 0 && [string match {0 of 45*} [dict get $s status]]"))
        << Of("status");
    End(*m_first);
}

TEST_F(DesktopFilterTest, TheHistoryIsPickedByKeysAndByMouseAndOutlivesTheProgram) {
    Remember("inv");
    Remember("nand");
    ClickControl("7843");
    const QPoint older = Item("inv");
    Press({QStringLiteral("Down"), QStringLiteral("Return")});
    ASSERT_TRUE(IsFilter("nand")) << "the newest stands first";
    ClickControl("7843");
    ASSERT_TRUE(IsFilter("")) << "with a text the button clears";
    ClickControl("7843");
    EXPECT_EQ(Item("inv"), older);
    Click(older);
    ASSERT_TRUE(Awaits("[dict get $s filter] eq {inv} && [dict get $s rows] < 45"));
    End(*m_first);

    const auto second = NewProgram();
    Begin(*second);
    ASSERT_TRUE(Await(*second, "[dict get $s rows] == 45")) << "the filter itself is not kept";
    ClickControl("7843");
    ASSERT_TRUE(Await(*second, "[llength [dict get $s menu]] == 2")) << Of("menu");
    Press({QStringLiteral("Down"), QStringLiteral("Return")});
    ASSERT_TRUE(Await(*second, "[dict get $s filter] eq {inv}")) << "what was picked last is the newest";
    End(*second);
}

TEST_F(DesktopFilterTest, DraggedColumnsAndTabsAreAsTheyWereAfterARestart) {
    ASSERT_TRUE(Awaits("[dict get $s columns] eq {Cell 160 View 90 Library 100}")) << Of("columns");
    const QRect cell = PlaceOf("header Cell");
    const QPoint edge(cell.right(), cell.center().y());
    DragTo(edge, edge + QPoint(45, 0));
    ASSERT_TRUE(Awaits("[dict get $s columns] eq {Cell 205 View 90 Library 100}")) << Of("columns");
    DragTo(PlaceOf("header Library").center(), PlaceOf("header Cell").topLeft() + QPoint(8, 8));
    ASSERT_TRUE(Awaits("[dict get $s columns] eq {Library 100 Cell 205 View 90}")) << Of("columns");
    ClickTab(1);
    ASSERT_TRUE(Awaits("[dict get $s setup] eq {Setup2}"));
    ASSERT_TRUE(
        Awaits("[dict get $s columns] eq {Library 100 Cell 160 View 90 State 110 Changed 125 Bytes 70}"))
        << Of("columns");
    ClickTab(0);
    ASSERT_TRUE(Awaits("[dict get $s setup] eq {Setup1}"));
    ASSERT_TRUE(Awaits("[dict get $s columns] eq {Library 100 Cell 205 View 90}")) << Of("columns");
    ClickTab(2);
    ASSERT_TRUE(Awaits("[dict get $s setup] eq {Setup3}"));
    End(*m_first);

    const auto second = NewProgram();
    Begin(*second);
    ASSERT_TRUE(Await(*second, "[dict get $s setup] eq {Setup3}")) << "the tab of the last time";
    ClickTab(0);
    ASSERT_TRUE(Await(*second, "[dict get $s columns] eq {Library 100 Cell 205 View 90}")) << Of("columns");
    End(*second);
}

TEST_F(DesktopFilterTest, AFilterTypeIsPickedFromItsListOrByArrowKeysAndEnter) {
    ClickControl("7701");
    Press({QStringLiteral("Down"), QStringLiteral("Return")});
    ASSERT_TRUE(Awaits("[dict get $s type] eq {Symbols} && [dict get $s rows] < 45")) << Of("type");
    const std::string symbols = Of("rows");
    // The keyboard is with the window now, where Ctrl+F works too; from there back to the types, without
    // their list.
    Press({QStringLiteral("ctrl+f"), QStringLiteral("shift+Tab"), QStringLiteral("Down")});
    ASSERT_TRUE(Awaits("[dict get $s type] eq {Schematics}"));
    Press({QStringLiteral("Return")});
    ASSERT_TRUE(Awaits("[dict get $s rows] != " + symbols)) << "Enter makes the rows follow";
    End(*m_first);
}

}  // namespace
}  // namespace navigator_test
