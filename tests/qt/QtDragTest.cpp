/// @file
/// Drags without a pointer: what Qt is asked to drag, and when it isn't. The platform of these tests gives a
/// drag up at once, so that what was asked can be looked at. Drags by a real pointer are tested with the
/// examples.
#include "toolkit/qt/QtDrag.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QChildEvent>
#include <QDrag>
#include <QMimeData>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <utility>

namespace {

/// Does something in the middle of a drag: when Qt's object of it is being made.
class InTheDrag : public QObject {
public:
    explicit InTheDrag(std::function<void()> act) : m_act(std::move(act)) { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == qApp && event->type() == QEvent::ChildAdded && !std::exchange(m_isDone, true)) m_act();
        return false;
    }
    [[nodiscard]] bool IsDone() const { return m_isDone; }

private:
    std::function<void()> m_act;
    bool m_isDone = false;
};

class QtDragTest : public testing::Test {
protected:
    ~QtDragTest() override {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(Drags().size(), 0) << "nothing is left of it";
    }
    /// Those that have been made and that Qt hasn't ended yet.
    static QList<QDrag*> Drags() { return qApp->findChildren<QDrag*>(); }

    COleDataSource m_source;
};

TEST_F(QtDragTest, TheFactoryInstallsItAndQtIsAskedForTheTextAndItsLabel) {
    m_source.SetText("lib inv sym");
    m_source.CacheData("OwnFormat1A", 7);
    EXPECT_EQ(m_source.DoDragDrop(cnDropCopy | cnDropLink, {}), cnDropNone);
    ASSERT_EQ(Drags().size(), 1);
    const QDrag& drag = *Drags().front();
    EXPECT_EQ(drag.mimeData()->text(), QStringLiteral("lib inv sym"));
    EXPECT_TRUE(drag.mimeData()->hasFormat(QStringLiteral("OwnFormat1A")));
    EXPECT_EQ(drag.supportedActions(), Qt::CopyAction | Qt::LinkAction);
    EXPECT_EQ(drag.defaultAction(), Qt::CopyAction);
    EXPECT_FALSE(drag.pixmap().isNull());
    EXPECT_FALSE(QRect(QPoint(), drag.pixmap().deviceIndependentSize().toSize()).contains(drag.hotSpot()))
        << "the place of the drop can be seen";
}

TEST_F(QtDragTest, TheLabelIsNeverWiderThanAHandAndMissingWithoutAText) {
    m_source.SetText(CStringU(std::string(5000, 'n').c_str()));
    static_cast<void>(m_source.DoDragDrop(cnDropLink, {}));
    ASSERT_EQ(Drags().size(), 1);
    EXPECT_EQ(Drags().front()->defaultAction(), Qt::LinkAction);
    const QSizeF label = Drags().front()->pixmap().deviceIndependentSize();
    EXPECT_GT(label.width(), 100);
    EXPECT_LE(label.width(), 340);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_source.SetText({});
    static_cast<void>(m_source.DoDragDrop(cnDropLink, {}));
    ASSERT_EQ(Drags().size(), 1);
    EXPECT_TRUE(Drags().front()->pixmap().isNull());
}

TEST_F(QtDragTest, TheTextOutlivesTheSourceAndTheDataDoesNot) {
    auto source = std::make_unique<COleDataSource>();
    source->SetText("lib inv sym");
    static_cast<void>(source->DoDragDrop(cnDropCopy, {}));
    source.reset();
    ASSERT_EQ(Drags().size(), 1);
    EXPECT_EQ(Drags().front()->mimeData()->text(), QStringLiteral("lib inv sym"));
}

TEST_F(QtDragTest, ADragWithinADragIsNone) {
    const InTheDrag another([] {
        COleDataSource within;
        within.SetText("another");
        EXPECT_EQ(within.DoDragDrop(cnDropCopy, {}), cnDropNone);
    });
    m_source.SetText("lib inv sym");
    static_cast<void>(m_source.DoDragDrop(cnDropCopy, {}));
    EXPECT_TRUE(another.IsDone());
    ASSERT_EQ(Drags().size(), 1);
    EXPECT_EQ(Drags().front()->mimeData()->text(), QStringLiteral("lib inv sym"));
    static_cast<void>(m_source.DoDragDrop(cnDropCopy, {}));
    EXPECT_EQ(Drags().size(), 2) << "the next one is";
}

TEST_F(QtDragTest, OnAnotherThreadThereIsNone) {
    UINT effect = cnDropCopy;
    std::thread([&] { effect = vapp_qt::gRunDrag(m_source, cnDropCopy, {}); }).join();
    EXPECT_EQ(effect, cnDropNone);
    EXPECT_EQ(Drags().size(), 0);
}

}  // namespace
