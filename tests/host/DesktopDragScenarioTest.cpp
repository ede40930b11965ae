/// Cells dragged out of the program by a real mouse: into another program, onto the list itself, and while
/// the design changes on the disk or the program ends.

#include "tests/host/DesktopFixture.h"

namespace navigator_test {
namespace {

/// Ends the program once there is such a file, whatever it is doing: whoever asks for the state looks first.
constexpr char csEnder[] = R"tcl(
rename user user_of_program
proc user args {
    if {[file exists [file join $::env(HOME) end-now]]} exit
    uplevel 1 user_of_program $args
}
)tcl";

class DesktopDragTest : public DesktopFixture {
protected:
    void SetUp() override {
        DesktopFixture::SetUp();
        if (IsSkipped()) return;
        for (const char* cell : {"amp", "bias", "cap"})
            m_home.Write(std::string("chip/my parts/") + cell + ".sym", "v {}\n");
        m_script = m_home.Write("teller.tcl", std::string(csEnder) + csTeller);
        Begin();
    }
    void Begin() {
        m_first->Start({QStringLiteral("--script"), QString::fromStdString(m_script.string()),
                        QString::fromStdString((m_home.Path() / "chip").string())});
        ASSERT_TRUE(Awaits("[dict get $s rows] == 3")) << m_first->Errors();
        m_field = gStartTextTarget(m_other).value_or(QPoint());
        ASSERT_FALSE(m_field.isNull()) << m_other.Errors();
    }
    [[nodiscard]] bool Awaits(const std::string& expression) { return Await(*m_first, expression); }
    /// Presses upon a row and goes out of it; on the way the pointer stops often, as a hand's does.
    void DragRow(int row, QPoint to) {
        const QPoint from = PlaceOf("row " + std::to_string(row)).center();
        const QPoint out = from + QPoint(0, 40);
        ASSERT_TRUE(s_desktop->Do(At(from) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")} +
                                  At(from + (out - from) / 2) + At(out)));
        ASSERT_TRUE(Awaits("[dict get $s drag]")) << m_first->Errors();
        Move(out, to);
    }
    static void Move(QPoint from, QPoint to) {
        constexpr int cnStops = 12;
        QStringList words;
        for (int stop = 1; stop <= cnStops; ++stop)
            words += At(from + (to - from) * stop / cnStops);
        ASSERT_TRUE(s_desktop->Do(words + At(to + QPoint(1, 0))));
    }
    static void LetGo() { ASSERT_TRUE(s_desktop->Do({QStringLiteral("mouseup"), QStringLiteral("1")})); }
    /// Drops what is dragged where the pointer is, in the other program; the text that comes.
    std::optional<QString> DropThere() {
        if (!gAwaitDropTaken(m_other)) return std::nullopt;
        LetGo();
        return gNextDroppedText(m_other);
    }

    DesktopProgram m_other{*s_desktop, m_home.Path()};
    QPoint m_field;
};

TEST_F(DesktopDragTest, AnotherProgramGetsLibraryCellAndViewAsText) {
    DragRow(1, m_field);
    EXPECT_EQ(DropThere(), QStringLiteral("\"my parts bias symbol\"")) << m_other.Errors();
    EXPECT_TRUE(Awaits("![dict get $s drag]"));
    EXPECT_EQ(Of("cell"), "{my parts} bias symbol") << "the row that was pressed has the focus";
}

TEST_F(DesktopDragTest, ADropOnAListOrThePreviewIsRefusedAndChangesNothing) {
    for (const char* place : {"row 2", "library {my parts}", "pane 2"}) {
        SCOPED_TRACE(place);
        DragRow(0, PlaceOf(place).center());
        LetGo();
        ASSERT_TRUE(Awaits("![dict get $s drag]"));
        EXPECT_EQ(Of("rows"), "3");
        EXPECT_EQ(Of("libraries"), "");
        EXPECT_EQ(Of("cell"), "{my parts} amp symbol");
    }
    DragRow(2, m_field);
    EXPECT_EQ(DropThere(), QStringLiteral("\"my parts cap symbol\"")) << "the next drag is a whole one";
}

TEST_F(DesktopDragTest, ADragGoesOnWhileTheDesignChangesOnTheDisk) {
    DragRow(2, m_field);
    m_home.Write("chip/my parts/another.sym", "v {}\n");
    ASSERT_TRUE(Awaits("[dict get $s rows] == 4 && [dict get $s drag]")) << "the rows are fetched meanwhile";
    EXPECT_EQ(DropThere(), QStringLiteral("\"my parts cap symbol\"")) << "what was pressed";
    ASSERT_TRUE(Awaits("![dict get $s drag]"));
}

TEST_F(DesktopDragTest, AProgramThatEndsInTheMiddleOfADragEndsWell) {
    DragRow(0, m_field);
    m_home.Write("end-now", "");
    // Something has to happen, so that the program is idle again behind it.
    Move(m_field, m_field + QPoint(20, 10));
    EXPECT_EQ(0, m_first->WaitForEnd()) << m_first->Errors();
    LetGo();
}

}  // namespace
}  // namespace navigator_test
