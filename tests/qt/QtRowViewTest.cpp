/// @file
/// Mouse, keys, wheel and bars of a view of rows, by a report; and the copy of the selection for onlookers.
#include "toolkit/qt/QtRowView.h"

#include <QDropEvent>
#include <QEventLoop>
#include <QMimeData>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <utility>
#include <vector>

#include "tests/qt/QtTestReport.h"

class QtRowViewTest : public ShownReport {
protected:
    QtRowViewTest() { Populate(100); }
    void Click(int row, Qt::KeyboardModifiers modifiers = {}, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(View()->viewport(), button, modifiers, At(row));
    }
    [[nodiscard]] std::vector<RowSelection::Range> Selected() const {
        return report.GetSelectedRows().GetSelection().GetRanges();
    }
    /// Ranges of the copy that Qt has.
    [[nodiscard]] std::vector<RowSelection::Range> Mirrored() const {
        QApplication::processEvents();
        std::vector<RowSelection::Range> ranges;
        for (const QItemSelectionRange& range : View()->selectionModel()->selection())
            ranges.push_back({range.top(), range.bottom()});
        std::sort(ranges.begin(), ranges.end(),
                  [](const auto& one, const auto& other) { return one.first < other.first; });
        return ranges;
    }
    [[nodiscard]] int Focus() const {
        return report.GetFocusedRow() ? report.GetFocusedRow()->GetIndex() : -1;
    }
    using Ranges = std::vector<RowSelection::Range>;
};

TEST_F(QtRowViewTest, ClicksSelectByTheControlsRules) {
    Click(2);
    EXPECT_EQ(Selected(), (Ranges{{2, 2}}));
    Click(5, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), (Ranges{{2, 5}}));
    Click(3, Qt::ControlModifier);
    EXPECT_EQ(Selected(), (Ranges{{2, 2}, {4, 5}}));
    EXPECT_EQ(Focus(), 3);
    Click(4, {}, Qt::RightButton);
    EXPECT_EQ(Selected(), (Ranges{{2, 2}, {4, 5}})) << "a right click inside keeps the selection";
    Click(0, {}, Qt::RightButton);
    EXPECT_EQ(Selected(), (Ranges{{0, 0}}));
}

TEST_F(QtRowViewTest, AClickBelowTheLastRowClears) {
    Populate(2);
    Click(1);
    Click(4);
    EXPECT_TRUE(Selected().empty());
}

TEST_F(QtRowViewTest, DraggingOverRowsSelectsThem) {
    QWidget& rows = *View()->viewport();
    gDrag(rows, At(1), At(4));
    EXPECT_EQ(Selected(), (Ranges{{1, 4}}));
    gSendMouse(rows, QEvent::MouseButtonPress, At(3));
    for (int move = 0; move < 5; ++move)
        gSendMouse(rows, QEvent::MouseMove, QPoint(20, rows.height() + 40));
    gSendMouse(rows, QEvent::MouseButtonRelease, QPoint(20, rows.height() + 40));
    EXPECT_GT(report.GetTopRowIndex(), 0) << "beyond the edge it scrolls";
    EXPECT_EQ(Selected().front().first, 3);
    EXPECT_EQ(Selected().front().last, Focus());
    gSendMouse(rows, QEvent::MouseMove, At(report.GetTopRowIndex()));
    EXPECT_EQ(Selected().front().last, Focus()) << "the drag is over";
}

TEST_F(QtRowViewTest, DraggingAboveTheFirstRowStopsThere) {
    gDrag(*View()->viewport(), At(3), QPoint(20, -500));
    EXPECT_EQ(Selected(), (Ranges{{0, 3}}));
}

TEST_F(QtRowViewTest, KeysMoveByTheControlsRules) {
    const int page = report.GetCountPerPage();
    QTest::keyClick(View(), Qt::Key_Down);
    EXPECT_EQ(Focus(), 0);
    QTest::keyClick(View(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), (Ranges{{0, 1}}));
    QTest::keyClick(View(), Qt::Key_PageDown);
    EXPECT_EQ(Focus(), page);
    QTest::keyClick(View(), Qt::Key_End);
    EXPECT_EQ(Focus(), 99);
    EXPECT_EQ(report.GetTopRowIndex(), 100 - page);
    QTest::keyClick(View(), Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(Focus(), 0);
    EXPECT_EQ(Selected(), (Ranges{{99, 99}})) << "control moves the focus alone";
    QTest::keyClick(View(), Qt::Key_Space);
    EXPECT_EQ(Selected(), (Ranges{{0, 0}}));
}

TEST_F(QtRowViewTest, AllOfAMillionRowsAreOneRange) {
    Populate(1000000);
    QTest::keyClick(View(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Selected(), (Ranges{{0, 999999}}));
    EXPECT_EQ(Mirrored(), (Ranges{{0, 999999}}));
    EXPECT_TRUE(report.asked.empty() || report.MostAsked() < 10) << "selecting asks nothing";
}

TEST_F(QtRowViewTest, LettersFindRows) {
    QTest::keyClicks(View(), "cell0004");
    EXPECT_EQ(Focus(), 40);
    EXPECT_EQ(Selected(), (Ranges{{40, 40}}));
}

TEST_F(QtRowViewTest, ShortcutsAreNotTakenAway) {
    QKeyEvent shortcut(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier, "\x03");
    QApplication::sendEvent(View(), &shortcut);
    EXPECT_FALSE(shortcut.isAccepted());
    QKeyEvent alt(QEvent::KeyPress, Qt::Key_C, Qt::AltModifier, "c");
    QApplication::sendEvent(View(), &alt);
    EXPECT_FALSE(alt.isAccepted());
    EXPECT_EQ(Focus(), -1);
}

TEST_F(QtRowViewTest, WheelAndBarsScrollTheControl) {
    gWheel(*View()->viewport(), 1);
    EXPECT_EQ(report.GetTopRowIndex(), QApplication::wheelScrollLines());
    View()->verticalScrollBar()->setValue(50);
    EXPECT_EQ(report.GetTopRowIndex(), 50);
    report.AddNamedColumn("Wide", 300);
    View()->horizontalScrollBar()->setValue(25);
    EXPECT_EQ(View()->horizontalScrollBar()->value(), report.GetScrollX());
    EXPECT_GT(report.GetScrollX(), 0);
    report.SetTopRow(7);
    EXPECT_EQ(View()->verticalScrollBar()->value(), 7) << "and the other way";
}

TEST_F(QtRowViewTest, SidewaysScrollingByPixelsOrByColumns) {
    report.AddNamedColumn("Wide", 300);
    report.SetFullColumnScrolling(false);
    View()->horizontalScrollBar()->setValue(25);
    EXPECT_EQ(report.GetScrollX(), 25);
    report.SetScrollX(0);
    report.SetFullColumnScrolling(true);
    View()->horizontalScrollBar()->setValue(25);
    EXPECT_EQ(report.GetScrollX(), 60) << "the next column's edge";
    EXPECT_EQ(View()->horizontalScrollBar()->value(), 60);
    QTest::keyClick(View(), Qt::Key_Left);
    EXPECT_EQ(report.GetScrollX(), 0);
}

TEST_F(QtRowViewTest, OnlookersSeeSelectionAndFocus) {
    Click(2);
    Click(5, Qt::ShiftModifier);
    Click(9 - 2, Qt::ControlModifier);
    EXPECT_EQ(Mirrored(), Selected());
    EXPECT_EQ(View()->currentIndex().row(), 7);
    report.GetSelectedRows().Clear();
    EXPECT_TRUE(Mirrored().empty());
    Populate(4);
    EXPECT_TRUE(Mirrored().empty());
}

TEST_F(QtRowViewTest, OfVeryManyRangesOnlyTheShownAreCopied) {
    Populate(100000);
    report.BeginUpdate();
    for (int row = 0; row < 100000; row += 2)
        report.GetSelectedRows().AddBlock(row, row);
    report.EndUpdate();
    const Ranges mirrored = Mirrored();
    EXPECT_GE(mirrored.size(), 3U);
    EXPECT_LT(mirrored.size(), 30U);
}

TEST_F(QtRowViewTest, ItemViewsOwnCommandsGoToTheControl) {
    View()->selectAll();
    EXPECT_EQ(Selected(), (Ranges{{0, 99}}));
    View()->scrollTo(View()->model()->index(80, 0));
    EXPECT_EQ(report.GetTopRowIndex(), 80 - report.GetCountPerPage() + 1);
    View()->keyboardSearch("cell0002");
    EXPECT_EQ(Focus(), 20);
    EXPECT_EQ(View()->indexAt(At(20, 150)), View()->model()->index(20, 1));
    EXPECT_EQ(View()->visualRect(View()->model()->index(20, 1)).height(), report.GetRowHeight());
}

TEST_F(QtRowViewTest, AClickThatEndsTheWindowIsNoHarm) {
    QWidget* rows = View()->viewport();
    shown.form.answer = [this](const Notification& told) {
        if (told.code == cnReportSelectionChanged) report.DestroyWindow();
    };
    QTest::mouseClick(rows, Qt::LeftButton, {}, At(2));
    EXPECT_FALSE(report.IsWindow());
}

TEST_F(QtRowViewTest, AKeyThatEndsTheWindowIsNoHarm) {
    shown.form.answer = [this](const Notification&) { report.DestroyWindow(); };
    QTest::keyClick(View(), Qt::Key_Right);
    QTest::keyClick(View(), Qt::Key_Down);
    EXPECT_FALSE(report.IsWindow());
}

// --- Dragging rows out ---------------------------------------------------------------------------------

class QtRowViewDragTest : public testing::Test {
protected:
    QtRowViewDragTest() {
        report.Create(&shown.form, 7, {0, 0, 300, 200});
        report.AddNamedColumn("Cell", 140);
        report.EnableDragDrop("format", 6);
        report.SetRows(100);
        QApplication::processEvents();
    }
    [[nodiscard]] QWidget& Rows() { return *gWidgetAs<vapp_qt::QtReportView>(report)->viewport(); }
    [[nodiscard]] QPoint At(int row, int x = 20) const {
        return {x, row * report.GetRowHeight() + report.GetRowHeight() / 2};
    }
    /// Makes the report so high that half of its last row shows; gives that row, of the first page.
    int CutLastRow() {
        const int page = report.GetCountPerPage();
        const CRect rect = report.GetRect();
        report.MoveWindow(
            {rect.left, rect.top, rect.right,
             rect.top + report.GetHeaderHeight() + page * report.GetRowHeight() + report.GetRowHeight() / 2});
        QApplication::processEvents();
        EXPECT_EQ(report.GetCountPerPage(), page);
        return page;
    }
    void Send(QEvent::Type type, QPoint at, Qt::MouseButton button) {
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(type, at, Rows().mapToGlobal(at), moves ? Qt::NoButton : button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
        QApplication::sendEvent(&Rows(), &event);
    }

    ShownFrame shown;
    DraggedReport report;
};

TEST_F(QtRowViewDragTest, ARowIsDraggedOnceThePointerHasLeftIt) {
    gSendMouse(Rows(), QEvent::MouseButtonPress, At(2));
    gSendMouse(Rows(), QEvent::MouseMove, At(2, 280));
    EXPECT_TRUE(report.begun.empty()) << "still within the row";
    gSendMouse(Rows(), QEvent::MouseMove, At(3, 60));
    ASSERT_EQ(report.begun.size(), 1u);
    EXPECT_EQ(report.begun[0].point.x, 20) << "where the button went down";
    EXPECT_EQ(report.begun[0].point.y, At(2).y() + report.GetHeaderHeight());
    EXPECT_EQ(report.begun[0].flags, 1u);
    gSendMouse(Rows(), QEvent::MouseMove, At(5));
    EXPECT_EQ(report.begun.size(), 1u) << "once";
    EXPECT_EQ(report.GetSelectedRows().GetSelection().GetRanges(), (std::vector<RowSelection::Range>{{2, 2}}))
        << "the pointer's way selects nothing";
}

TEST_F(QtRowViewDragTest, ARowIsDraggedOutAtTheSideToo) {
    gDrag(Rows(), At(2), At(2, 500));
    EXPECT_EQ(report.begun.size(), 1u);
}

TEST_F(QtRowViewDragTest, ARowThatIsPartlyShownIsTheOneThatIsDragged) {
    const int cut = CutLastRow();
    const QPoint pressed(20, cut * report.GetRowHeight() + 2);
    gDrag(Rows(), pressed, At(cut - 2));
    ASSERT_EQ(report.begun.size(), 1u);
    EXPECT_EQ(report.HitTestRow(report.begun[0].point), CXTPReportRow(cut));
    EXPECT_EQ(report.GetFocusedRow(), CXTPReportRow(cut));
}

TEST_F(QtRowViewDragTest, TheWheelMovesWhatWasPressed) {
    for (const int pressed : {6, 4}) {
        report.SetTopRow(0);
        report.begun.clear();
        gSendMouse(Rows(), QEvent::MouseButtonPress, At(pressed));
        gWheel(Rows(), 1);
        const int top = report.GetTopRowIndex();
        ASSERT_GT(top, 0);
        gSendMouse(Rows(), QEvent::MouseMove, At(pressed) + QPoint(1, 0));
        EXPECT_TRUE(report.begun.empty()) << "the rows moved, and not the pointer";
        gSendMouse(Rows(), QEvent::MouseMove, At(pressed + 1));
        ASSERT_EQ(report.begun.size(), 1u);
        EXPECT_EQ(report.HitTestRow(report.begun[0].point), CXTPReportRow(pressed));
        gSendMouse(Rows(), QEvent::MouseButtonRelease, At(pressed));
    }
}

TEST_F(QtRowViewDragTest, ARowThatWasScrolledAwayOrIsCutNowIsNotMistakenForAnother) {
    gSendMouse(Rows(), QEvent::MouseButtonPress, At(1));
    report.SetTopRow(50);
    gSendMouse(Rows(), QEvent::MouseMove, At(4));
    EXPECT_TRUE(report.begun.empty()) << "where it was is no place any more";
    gSendMouse(Rows(), QEvent::MouseButtonRelease, At(4));
    const int cut = CutLastRow();
    report.SetTopRow(1);
    gSendMouse(Rows(), QEvent::MouseButtonPress, {20, cut * report.GetRowHeight() - 1});
    report.SetTopRow(0);
    gSendMouse(Rows(), QEvent::MouseMove, At(1));
    ASSERT_EQ(report.begun.size(), 1u);
    EXPECT_EQ(report.HitTestRow(report.begun[0].point), CXTPReportRow(cut));
}

TEST_F(QtRowViewDragTest, ADoubleClickOnARowThatIsPartlyShownMeansIt) {
    const int cut = CutLastRow();
    const QPoint pressed(20, cut * report.GetRowHeight() + 2);
    QTest::mouseClick(&Rows(), Qt::LeftButton, {}, pressed);
    QTest::mouseDClick(&Rows(), Qt::LeftButton, {}, pressed);
    EXPECT_EQ(report.opened, std::vector<int>{cut});
    EXPECT_EQ(report.GetFocusedRow(), CXTPReportRow(cut));
    EXPECT_EQ(report.GetTopRowIndex(), 0);
}

TEST_F(QtRowViewDragTest, TheFlagsTellTheButton) {
    for (const auto& [button, flags] :
         {std::pair(Qt::LeftButton, 1u), std::pair(Qt::RightButton, 2u), std::pair(Qt::MiddleButton, 0u)}) {
        report.begun.clear();
        Send(QEvent::MouseButtonPress, At(1), button);
        Send(QEvent::MouseMove, At(4), button);
        Send(QEvent::MouseButtonRelease, At(4), button);
        ASSERT_EQ(report.begun.size(), flags != 0 ? 1u : 0u);
        if (flags != 0) {
            EXPECT_EQ(report.begun[0].flags, flags);
        }
    }
}

TEST_F(QtRowViewDragTest, AClickOrAPressBelowTheRowsDragsNothing) {
    gSendMouse(Rows(), QEvent::MouseButtonPress, At(1));
    gSendMouse(Rows(), QEvent::MouseButtonRelease, At(1));
    gSendMouse(Rows(), QEvent::MouseMove, At(4));
    report.SetRows(2);
    gDrag(Rows(), At(3), At(0));
    EXPECT_TRUE(report.begun.empty());
}

TEST_F(QtRowViewDragTest, RowsThatCameAfterThePressAreNotDragged) {
    gSendMouse(Rows(), QEvent::MouseButtonPress, At(1));
    report.SetRows(50);
    gSendMouse(Rows(), QEvent::MouseMove, At(4));
    EXPECT_TRUE(report.begun.empty());
}

TEST_F(QtRowViewDragTest, TheWindowMayEndDuringADrag) {
    const QPointer<QWidget> rows(&Rows());
    report.onDrag = [&] {
        report.DestroyWindow();
        // The drag waits in a loop of its own.
        QEventLoop loop;
        QTimer::singleShot(0, &loop, &QEventLoop::quit);
        loop.exec();
        EXPECT_FALSE(rows.isNull()) << "its event isn't over";
    };
    QEventLoop outer;
    QTimer::singleShot(0, &outer, [&] {
        gDrag(*rows, At(1), At(4));
        outer.quit();
    });
    outer.exec();
    EXPECT_EQ(report.begun.size(), 1u);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(rows.isNull());
}

TEST_F(QtRowViewDragTest, NothingCanBeDroppedOnRowsNorThroughThem) {
    gWidgetOf(shown.frame)->setAcceptDrops(true);
    QMimeData data;
    data.setText("lib inv sym");
    ASSERT_TRUE(Rows().acceptDrops()) << "else Qt would ask the window around";
    QDragEnterEvent enter(At(1), Qt::CopyAction | Qt::LinkAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Rows(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    EXPECT_EQ(enter.dropAction(), Qt::IgnoreAction);
    QDragMoveEvent move(At(1), Qt::CopyAction | Qt::LinkAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Rows(), &move);
    EXPECT_FALSE(move.isAccepted());
    QDropEvent drop(At(1), Qt::CopyAction | Qt::LinkAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Rows(), &drop);
    EXPECT_EQ(drop.dropAction(), Qt::IgnoreAction);
}

TEST_F(QtRowViewTest, ABlankBelongsToTheTextThatIsBeingTyped) {
    report.typedNames = {"amp", "op amp", "op art", "x"};
    Populate(4);
    QTest::keyClick(View(), Qt::Key_Space, Qt::ControlModifier);
    QTest::keyClicks(View(), "op ar");
    EXPECT_EQ(Focus(), 2);
    EXPECT_EQ(Selected(), (Ranges{{2, 2}}));
}
