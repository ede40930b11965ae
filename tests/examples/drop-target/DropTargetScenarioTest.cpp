/// @file
/// What a user does by a real pointer and real keys: a cell is dragged onto the canvas of the same program,
/// onto another program, and onto the list itself; it is placed by a menu, by its sub-menu, and by a double
/// click; and the pointer rests on a library.
#include <gtest/gtest.h>

#include <QPoint>
#include <QRegularExpression>
#include <QStringList>
#include <memory>

#include "tests/host/Desktop.h"
#include "tests/host/TempFolder.h"
#include "vapp/toolkit/COleDataSource.h"

namespace {

using navigator_test::Desktop;
using navigator_test::DesktopProgram;
using navigator_test::gAwaitDropTaken;
using navigator_test::gNextDroppedText;
using navigator_test::gStartTextTarget;

class DropTargetTest : public testing::Test {
protected:
    static void SetUpTestSuite() { s_desktop = std::make_unique<Desktop>(); }
    static void TearDownTestSuite() { s_desktop.reset(); }

    void SetUp() override {
        if (!s_desktop->WhyNot().empty()) GTEST_SKIP() << s_desktop->WhyNot();
        m_navigator = std::make_unique<DesktopProgram>(*s_desktop, m_home.Path());
        m_navigator->Start({QStringLiteral("--tell")});
        m_libraries = PlacesTold("libraries", 2);
        // The canvas and four rows.
        m_places = PlacesTold("places", 5);
        ASSERT_EQ(m_libraries.size(), 2u) << m_navigator->Errors();
        ASSERT_EQ(m_places.size(), 5u) << m_navigator->Errors();
    }
    std::vector<QPoint> PlacesTold(const char* word, int count) {
        const auto told = m_navigator->WaitFor(QLatin1String(word), [count](const QString& places) {
            return places.count(QLatin1Char(' ')) == 2 * count - 1;
        });
        const QStringList numbers = told.value_or(QString()).split(QLatin1Char(' '));
        std::vector<QPoint> places;
        for (int at = 0; at + 1 < numbers.size(); at += 2)
            places.emplace_back(numbers[at].toInt(), numbers[at + 1].toInt());
        return places;
    }

    [[nodiscard]] QPoint MiddleOfCanvas() const { return m_places[0]; }
    [[nodiscard]] QPoint Row(std::size_t row) const { return m_places[row + 1]; }

    // First just out of the row; on its way the pointer stops often, as a hand's does.
    void Drag(QPoint from, QPoint to) {
        const QPoint out = from + QPoint(0, from.y() < to.y() ? 30 : -30);
        ASSERT_TRUE(s_desktop->Do(At(from) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")} +
                                  At(from + (out - from) / 2) + At(out)));
        ASSERT_TRUE(Hear("drag", "begun")) << m_navigator->Errors();
        QStringList words;
        for (int step = 1; step <= cnSteps; ++step)
            words += At(out + (to - out) * step / cnSteps);
        words += At(to + QPoint(1, 0));
        ASSERT_TRUE(s_desktop->Do(words));
    }
    void Release() {
        ASSERT_TRUE(s_desktop->Do({QStringLiteral("mouseup"), QStringLiteral("1")}));
        ASSERT_TRUE(Hear("drag", "over")) << m_navigator->Errors();
    }
    [[nodiscard]] bool Hear(const char* word, const char* rest) {
        return m_navigator
            ->WaitFor(QLatin1String(word),
                      [rest](const QString& heard) { return heard == QLatin1String(rest); })
            .has_value();
    }
    // Ends a drag over the canvas; the cell that is placed, in words of its line.
    std::string Drop() {
        const bool released = s_desktop->Do({QStringLiteral("mouseup"), QStringLiteral("1")}).has_value();
        const auto told = m_navigator->WaitFor(QStringLiteral("placed"), [](const QString&) { return true; });
        const QString copy = QString::number(cnDropCopy);
        if (!released || !told || !Hear("effect", qPrintable(copy)) || !Hear("drag", "over"))
            return "none: " + m_navigator->Errors();
        return told->toStdString();
    }

    // The next cell that is placed, by whatever means.
    std::string NextPlaced() {
        const auto told = m_navigator->WaitFor(QStringLiteral("placed"), [](const QString&) { return true; });
        return told ? told->toStdString() : "none: " + m_navigator->Errors();
    }
    // The middle of an item, once it is seen.
    QPoint Item(const char* text) {
        const QRegularExpression place(QStringLiteral("\"%1\" (\\d+) (\\d+)").arg(QLatin1String(text)));
        const auto told = m_navigator->WaitFor(QStringLiteral("items"), [&place](const QString& items) {
            return place.match(items).hasMatch();
        });
        const QRegularExpressionMatch found = place.match(told.value_or(QString()));
        EXPECT_TRUE(found.hasMatch()) << text << ": " << m_navigator->Errors();
        return {found.captured(1).toInt(), found.captured(2).toInt()};
    }
    // There is no window manager that would do it.
    void GiveTheKeyboard() {
        ASSERT_TRUE(s_desktop->Do({QStringLiteral("search"), QStringLiteral("--sync"),
                                   QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                                   QStringLiteral("^Cells to place"), QStringLiteral("windowfocus")}));
    }
    static void Click(QPoint at, const char* button, int times = 1) {
        QStringList words = At(at);
        for (int time = 0; time < times; ++time)
            words += QStringList{QStringLiteral("click"), QLatin1String(button)};
        ASSERT_TRUE(s_desktop->Do(words));
    }
    static void Press(const char* key) {
        ASSERT_TRUE(s_desktop->Do({QStringLiteral("key"), QLatin1String(key)}));
    }

    void CloseTheNavigator() {
        m_navigator->Say(QStringLiteral("close"));
        ASSERT_TRUE(Hear("navigator", "closed")) << m_navigator->Errors();
    }
    static constexpr int cnSteps = 12;
    static std::unique_ptr<Desktop> s_desktop;
    navigator_test::TempFolder m_home;
    std::unique_ptr<DesktopProgram> m_navigator;
    std::vector<QPoint> m_libraries;
    std::vector<QPoint> m_places;

    static QStringList At(QPoint point) {
        return {QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y())};
    }
};

std::unique_ptr<Desktop> DropTargetTest::s_desktop;

TEST_F(DropTargetTest, TheCanvasOfTheSameProgramReadsTheSixFields) {
    Drag(Row(3), MiddleOfCanvas());
    EXPECT_EQ(Drop(), R"("chip" "my io" "pad in" "layout" "" left)");
    Drag(Row(0), MiddleOfCanvas() + QPoint(0, 100));
    EXPECT_EQ(Drop(), R"("chip" "logic" "inv" "symbol" "" left)") << "and the next drag is another one";
}

TEST_F(DropTargetTest, AnotherProgramGetsTheNamesAsText) {
    DesktopProgram other(*s_desktop, m_home.Path());
    const auto field = gStartTextTarget(other);
    ASSERT_TRUE(field) << other.Errors();
    Drag(Row(3), *field);
    ASSERT_TRUE(gAwaitDropTaken(other)) << other.Errors();
    Release();
    // The format of this process has a name there, and nothing behind it.
    EXPECT_TRUE(other.WaitFor(QStringLiteral("bytes"), [](const QString& count) {
        return count == QLatin1String("0");
    })) << other.Errors();
    EXPECT_EQ(gNextDroppedText(other), QStringLiteral("\"my io pad in layout\"")) << other.Errors();
}

TEST_F(DropTargetTest, ADropOnTheListItselfIsRefused) {
    Drag(Row(0), Row(2));
    ASSERT_TRUE(s_desktop->Do({QStringLiteral("mouseup"), QStringLiteral("1")}));
    EXPECT_TRUE(Hear("effect", "0")) << m_navigator->Errors();
    ASSERT_TRUE(Hear("drag", "over")) << m_navigator->Errors();
    // What is told next is the drop that follows.
    Drag(Row(1), MiddleOfCanvas());
    EXPECT_EQ(Drop(), R"("chip" "logic" "nand2" "symbol" "" left)");
}

TEST_F(DropTargetTest, ADragGoesOnWhileTheRowsAreFetchedAnew) {
    Drag(Row(3), MiddleOfCanvas());
    m_navigator->Say(QStringLiteral("refresh"));
    m_places = PlacesTold("places", 6);
    ASSERT_EQ(m_places.size(), 6u) << m_navigator->Errors();
    EXPECT_EQ(Drop(), R"("chip" "my io" "pad in" "layout" "" left)");
    Drag(Row(4), MiddleOfCanvas());
    EXPECT_EQ(Drop(), R"("chip" "my io" "pad in" "layout" "" left)") << "a new cell stands before it";
    Drag(Row(0), MiddleOfCanvas());
    EXPECT_EQ(Drop(), R"("chip" "logic" "and2" "symbol" "" left)");
}

// The panes' objects wait for the end of the drag, and what is dragged with them.
TEST_F(DropTargetTest, ADragGoesOnWhenItsListEnds) {
    Drag(Row(3), MiddleOfCanvas());
    CloseTheNavigator();
    EXPECT_EQ(Drop(), R"("chip" "my io" "pad in" "layout" "" left)");
    m_navigator->Say(QStringLiteral("count"));
    EXPECT_TRUE(Hear("count", "1")) << "and the program goes on";
}

TEST_F(DropTargetTest, ADragWhoseListEndsIsStillTextToAnotherProgram) {
    DesktopProgram other(*s_desktop, m_home.Path());
    const auto field = gStartTextTarget(other);
    ASSERT_TRUE(field) << other.Errors();
    Drag(Row(3), MiddleOfCanvas());
    CloseTheNavigator();
    ASSERT_TRUE(s_desktop->Do(At(*field) + At(*field + QPoint(1, 1)) + At(*field)));
    ASSERT_TRUE(gAwaitDropTaken(other)) << other.Errors();
    Release();
    EXPECT_EQ(gNextDroppedText(other), QStringLiteral("\"my io pad in layout\"")) << other.Errors();
}

TEST_F(DropTargetTest, EscapeEndsADragWithoutADrop) {
    Drag(Row(0), MiddleOfCanvas());
    ASSERT_TRUE(s_desktop->Do({QStringLiteral("key"), QStringLiteral("Escape")}));
    Release();
    Drag(Row(2), MiddleOfCanvas());
    EXPECT_EQ(Drop(), R"("chip" "logic" "nor2" "symbol" "" left)");
}

TEST_F(DropTargetTest, ARightClickOpensTheMenuOfThatRow) {
    GiveTheKeyboard();
    Click(Row(1), "3");
    ASSERT_TRUE(Hear("menu", "open")) << m_navigator->Errors();
    Press("p");
    EXPECT_EQ(NextPlaced(), R"("chip" "logic" "nand2" "symbol" "" left)");
    EXPECT_TRUE(Hear("menu", "closed"));
}

TEST_F(DropTargetTest, ItemsArePickedByTheMouseAloneAlsoOfASubMenu) {
    Click(Row(1), "3");
    Click(Item("Place"), "1");
    EXPECT_EQ(NextPlaced(), R"("chip" "logic" "nand2" "symbol" "" left)");
    ASSERT_TRUE(Hear("menu", "closed"));
    Click(Row(2), "3");
    Click(Item("More"), "1");
    Click(Item("Place All Selected"), "1");
    EXPECT_EQ(NextPlaced(), R"("chip" "logic" "nor2" "symbol" "" left)");
    EXPECT_TRUE(Hear("menu", "closed"));
}

TEST_F(DropTargetTest, TheMenuKeyAndKeysLeadIntoASubMenu) {
    GiveTheKeyboard();
    Click(Row(2), "1");
    Press("Menu");
    ASSERT_TRUE(Hear("menu", "open")) << m_navigator->Errors();
    Press("m");
    Press("a");
    EXPECT_EQ(NextPlaced(), R"("chip" "logic" "nor2" "symbol" "" left)");
}

TEST_F(DropTargetTest, ADoubleClickPlacesTheCell) {
    Click(Row(0), "1", 2);
    EXPECT_EQ(NextPlaced(), R"("chip" "logic" "inv" "symbol" "" left)");
}

TEST_F(DropTargetTest, APointerThatRestsOnALibraryShowsItsPathUntilItLeaves) {
    GiveTheKeyboard();
    ASSERT_TRUE(s_desktop->Do(At(m_libraries[1]) + At(m_libraries[1] + QPoint(1, 0))));
    EXPECT_TRUE(Hear("status", "/libs/io")) << m_navigator->Errors();
    ASSERT_TRUE(s_desktop->Do(At(MiddleOfCanvas())));
    EXPECT_TRUE(Hear("status", "")) << "the timer looks";
}

}  // namespace
