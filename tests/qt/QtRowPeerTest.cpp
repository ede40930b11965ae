/// @file
/// What happens in the middle of painting: host script runs there, and may fill the control anew or end it.
#include "toolkit/qt/QtRowPeer.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include "tests/qt/QtTestReport.h"

class QtRowPeerTest : public ShownReport {
protected:
    /// Has something done once, at the question for the row.
    void DoAt(int row, const std::function<void()>& what) {
        report.onAsked = [this, row, what](int asked, int /*item*/) {
            if (asked != row) return;
            report.onAsked = nullptr;
            what();
        };
    }
};

TEST_F(QtRowPeerTest, PopulationInsidePaintingIsShownAfterwards) {
    Populate(100);
    report.SetTopRow(90);
    const QSignalSpy resets(View()->model(), &QAbstractItemModel::modelReset);
    DoAt(95, [this, &resets] {
        report.SetRows(3);
        EXPECT_EQ(resets.count(), 0) << "not under the painting";
    });
    Paint();
    EXPECT_EQ(report.GetRows().GetCount(), 3);
    QApplication::processEvents();
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(View()->model()->rowCount(), 3);
    EXPECT_FALSE(View()->verticalScrollBar()->isVisible());
    report.asked.clear();
    Paint();
    EXPECT_EQ(report.asked.size(), 9U);
}

TEST_F(QtRowPeerTest, PopulationAtEveryQuestionIsNoHarm) {
    Populate(100);
    int rows = 100;
    report.onAsked = [this, &rows](int, int) {
        rows = rows * 7 % 113;
        report.SetRows(rows);
    };
    for (int round = 0; round < 5; ++round)
        Paint();
    report.onAsked = nullptr;
    QApplication::processEvents();
    EXPECT_EQ(View()->model()->rowCount(), rows);
}

TEST_F(QtRowPeerTest, NewColumnsInsidePaintingAreNoHarm) {
    Populate(10);
    DoAt(1, [this] {
        for (int item = 3; item < 12; ++item)
            report.AddNamedColumn("More", 70);
        report.GetColumns().ChangeColumnOrder(0, report.GetColumns().GetAt(5));
        report.GetColumns().GetAt(3)->SetVisible(false);
        report.SetFreezeColumnsCount(4);
        report.SetScrollX(55);
    });
    Paint();
    QApplication::processEvents();
    EXPECT_EQ(View()->model()->columnCount(), 11);
    EXPECT_TRUE(View()->horizontalScrollBar()->isVisible());
}

TEST_F(QtRowPeerTest, TheEndOfTheWindowInsidePaintingIsNoHarm) {
    Populate(10);
    const QPointer<QWidget> widget = View();
    DoAt(2, [this] { report.DestroyWindow(); });
    widget->grab();
    EXPECT_FALSE(report.IsWindow());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}

TEST_F(QtRowPeerTest, TheEndOfTheWindowInsideAModelsAnswerIsNoHarm) {
    Populate(10);
    const QPointer<QWidget> widget = View();
    QAbstractItemModel* model = View()->model();
    DoAt(2, [this] { report.SetRows(1); });
    EXPECT_EQ(model->data(model->index(2, 0)).toString(), "cell00002");
    QApplication::processEvents();
    EXPECT_EQ(model->rowCount(), 1);
}

TEST_F(QtRowPeerTest, PaintingAskedForInsidePaintingComesLater) {
    Populate(10);
    int depth = 0;
    int deepest = 0;
    report.onAsked = [this, &depth, &deepest](int, int) {
        deepest = std::max(deepest, ++depth);
        report.Invalidate();
        report.UpdateWindow();
        --depth;
    };
    Paint();
    EXPECT_EQ(deepest, 1);
}

TEST_F(QtRowPeerTest, UpdateWindowPaintsAtOnce) {
    Populate(10);
    report.Invalidate();
    EXPECT_TRUE(report.asked.empty());
    report.UpdateWindow();
    EXPECT_FALSE(report.asked.empty());
}

TEST_F(QtRowPeerTest, AnEventLoopInsidePaintingIsNoHarm) {
    Populate(100);
    DoAt(3, [this] {
        report.SetRows(2);
        QApplication::processEvents();
    });
    Paint();
    // The view looks again after a little while.
    ASSERT_TRUE(QTest::qWaitFor([this] { return View()->model()->rowCount() == 2; }, 5000));
}
