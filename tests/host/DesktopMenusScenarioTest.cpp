/// The menus of the program on a desktop: opened and picked by real mouse and keys.

#include <gmock/gmock.h>

#include "tests/host/DesktopFixture.h"

namespace navigator_test {
namespace {

/// Items that tell the test what they got.
constexpr char csItems[] = R"tcl(
proc got {args} { set ::typed $args }
usermenu add cells "Tell me" {got focused} -style focused
usermenu add cells "Below" {got below} -style cellview -submenu "More"
usermenu add libraries "Tell library" {got library} -style libraries
usermenu add tabs "Tell tab" {got tab}
)tcl";

class DesktopMenusTest : public DesktopFixture {
protected:
    void SetUp() override {
        DesktopFixture::SetUp();
        if (IsSkipped()) return;
        Begin({});
    }
    void Begin(const QStringList& more) {
        m_home.Write("scripts/items.tcl", csItems);
        m_first->Start(
            Words(more + QStringList{QStringLiteral("--scripts"),
                                     QString::fromStdString((m_home.Path() / "scripts").string())}));
        ASSERT_TRUE(Await(*m_first, "[dict get $s rows] == 45")) << m_first->Errors();
        ASSERT_TRUE(m_first->Focus());
    }
    [[nodiscard]] bool NoMenu() { return Await(*m_first, "[dict get $s menu] eq {}"); }
    [[nodiscard]] bool Got(const std::string& words) {
        return Await(*m_first, "[dict get $s typed] eq " + Word(words));
    }
    /// A window of the program with such a title.
    static bool HasWindow(const char* title) {
        return s_desktop
            ->Do({QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
                  QStringLiteral("--name"), QLatin1String(title)})
            .has_value();
    }
};

TEST_F(DesktopMenusTest, ARightClickSelectsTheRowAndAnItemActsOnIt) {
    RightClick(PlaceOf("row 2").center());
    const QPoint item = Item("Tell me");
    const std::string cell = Of("cell");
    EXPECT_TRUE(Await(*m_first, "[dict get [lindex [dict get $s menu] 0] default]"))
        << "the item of the double click stands out";
    Click(item);
    EXPECT_TRUE(Got("focused sample " + cell));
    EXPECT_TRUE(NoMenu());
}

TEST_F(DesktopMenusTest, ASubMenuOpensAndItsItemActs) {
    RightClick(PlaceOf("row 0").center());
    Click(Item("More"));
    const std::string cell = Of("cell");
    Click(Item("Below"));
    EXPECT_TRUE(Got("below " + m_interp.Answer("lassign " + Word(cell) + " l c v; list $c $l $v")));
}

TEST_F(DesktopMenusTest, AMenuThatIsLeftDoesNothing) {
    RightClick(PlaceOf("row 0").center());
    (void)Item("Tell me");
    Press({QStringLiteral("Escape")});
    EXPECT_TRUE(NoMenu());
    EXPECT_EQ("", Of("typed"));
    RightClick(PlaceOf("row 2").center());
    Click(Item("Tell me"));
    EXPECT_TRUE(Await(*m_first, "[lindex [dict get $s typed] 0] eq {focused}"));
}

TEST_F(DesktopMenusTest, ADoubleClickOpensTheFileInAWindow) {
    DoubleClick(PlaceOf("row 2").center());
    EXPECT_TRUE(HasWindow("^[^ ]+ \\([a-z]+\\) - [a-z]+$"));
    EXPECT_FALSE(Of("cell").empty());
}

TEST_F(DesktopMenusTest, TheMenuKeyOpensTheMenuOfTheFocusedCell) {
    const std::string first = Of("cell");
    Click(PlaceOf("row 2").center());
    ASSERT_TRUE(Await(*m_first, "[dict get $s cell] ne " + Word(first)));
    const std::string cell = Of("cell");
    Press({QStringLiteral("Menu")});
    (void)Item("Tell me");
    Press({QStringLiteral("Up"), QStringLiteral("Escape")});
    EXPECT_TRUE(NoMenu());
    Press({QStringLiteral("Menu")});
    Click(Item("Tell me"));
    EXPECT_TRUE(Got("focused sample " + cell));
}

TEST_F(DesktopMenusTest, TheMenuOfALibraryActsOnTheSelectedOnes) {
    Click(PlaceOf("library logic").center());
    ASSERT_TRUE(Await(*m_first, "[dict get $s libraries] eq {logic}"));
    RightClick(PlaceOf("library logic").center());
    Click(Item("Tell library"));
    EXPECT_TRUE(Got("library sample -libraries { \"logic\" }")) << Of("typed");
}

TEST_F(DesktopMenusTest, TheMenuOfATabActsAndShowsTheTab) {
    const QRect tabs = PlaceOf("control 7718");
    ASSERT_TRUE(Await(*m_first, "[dict get $s tab] == 0"));
    const std::string setup = Of("setup");
    const std::string columns = Of("columns");
    RightClick(tabs.topLeft() + QPoint(tabs.height() * 4, tabs.height() / 2));
    Click(Item("Tell tab"));
    EXPECT_TRUE(Await(*m_first,
                      "[dict get $s typed] eq {tab 1 1} && [dict get $s tab] == 1 && "
                      "[dict get $s menu] eq {} && ![string equal [dict get $s setup] " +
                          Word(setup) + "]"))
        << Of("typed") << ' ' << Of("setup");
    EXPECT_NE(columns, Of("columns")) << "that tab has columns of its own";
}

TEST_F(DesktopMenusTest, HiddenCellsLeaveTheListAndComeBackAfterARestartOnlyIfWanted) {
    RightClick(PlaceOf("row 0").center());
    Click(Item("Hide in lists"));
    ASSERT_TRUE(Await(*m_first, "[dict get $s rows] == 44"));
    Press({QStringLiteral("ctrl+q")});
    ASSERT_EQ(0, m_first->WaitForEnd()) << m_first->Errors();
    const auto second = NewProgram();
    second->Start(Words());
    ASSERT_TRUE(Await(*second, "[dict get $s rows] == 44")) << second->Errors();
    RightClick(PlaceOf("row 0").center());
    for (const char* const item : {"Settings", "Filters", "Show Hidden Cells"})
        Click(ItemOf(*second, item));
    // One cell of the sample is hidden by its own file.
    EXPECT_TRUE(Await(*second, "[dict get $s rows] == 46")) << second->Errors();
}

/// The dark theme on a screen of twice as many points; places are told in pixels of the logic.
class DesktopSharpMenusTest : public DesktopMenusTest {
protected:
    static constexpr int cnScale = 2;
    void SetUp() override {
        DesktopFixture::SetUp();
        if (IsSkipped()) return;
        m_first->Set(QStringLiteral("QT_SCALE_FACTOR"), QString::number(cnScale));
        Begin({QStringLiteral("--dark"), QStringLiteral("--size"), QStringLiteral("640x500")});
    }
};

TEST_F(DesktopSharpMenusTest, ItemsAreWhereTheyAreSeenAndOfSubMenusToo) {
    RightClick(PlaceOf("row 2").center() * cnScale);
    Click(Item("Tell me") * cnScale);
    EXPECT_TRUE(Got("focused sample " + Of("cell")));
    ASSERT_TRUE(NoMenu());
    RightClick(PlaceOf("row 0").center() * cnScale);
    Click(Item("More") * cnScale);
    Click(Item("Below") * cnScale);
    EXPECT_TRUE(Await(*m_first, "[lindex [dict get $s typed] 0] eq {below}"));
}

}  // namespace
}  // namespace navigator_test
