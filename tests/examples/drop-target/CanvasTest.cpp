#include "examples/drop-target/Canvas.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <memory>

#include "toolkit/qt/QtDragMime.h"
#include "vapp/celllist/CLibCellViewOleDataSource.h"

namespace {

using namespace vapp_library_browser;

class CanvasTest : public testing::Test {
protected:
    CanvasTest() {
        m_canvas.resize(400, 300);
        m_source = std::make_unique<CLibCellViewOleDataSource>();
        m_source->CacheData(CLibCellViewOleDataSource::ClipboardFormatLibCellView,
                            CLibCellViewOleData("chip", {"my io", "pad in", "layout"}, true));
        m_source->SetText("my io pad in layout");
    }
    // Each of these tells whether the canvas took it.
    bool Enter(const QMimeData& data) {
        QDragEnterEvent event({100, 60}, m_actions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&m_canvas, &event);
        return event.isAccepted();
    }
    bool Drop(const QMimeData& data) {
        QDropEvent event({105, 57}, m_actions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&m_canvas, &event);
        return event.isAccepted();
    }

    Qt::DropActions m_actions = Qt::CopyAction | Qt::LinkAction;
    std::unique_ptr<CLibCellViewOleDataSource> m_source;
    Canvas m_canvas;
};

TEST_F(CanvasTest, ADroppedCellIsPlacedWithAllItsFields) {
    int told = 0;
    m_canvas.onPlaced = [&told](const Canvas::Placed&) { ++told; };
    const vapp_qt::QtDragMime data(*m_source);
    EXPECT_TRUE(Enter(data));
    EXPECT_TRUE(Drop(data));
    ASSERT_EQ(m_canvas.GetPlaced().size(), 1u);
    EXPECT_EQ(told, 1);
    const Canvas::Placed& placed = m_canvas.GetPlaced().front();
    EXPECT_EQ(placed.at, QPoint(100, 60)) << "on the grid";
    EXPECT_EQ(placed.cell.design, "chip");
    EXPECT_EQ(placed.cell.library, "my io");
    EXPECT_EQ(placed.cell.cell, "pad in");
    EXPECT_EQ(placed.cell.view, "layout");
    EXPECT_EQ(placed.cell.sortKey, "");
    EXPECT_TRUE(placed.cell.startedByRightButton);
}

TEST_F(CanvasTest, TextFromElsewhereIsNoCell) {
    QMimeData text;
    text.setText(QStringLiteral("logic inv symbol"));
    EXPECT_FALSE(Enter(text));
    QMimeData foreign;
    foreign.setData(QString::fromLatin1(CLibCellViewOleDataSource::ClipboardFormatLibCellView.GetString()),
                    "six fields");
    EXPECT_FALSE(Enter(foreign)) << "bytes under the right name are none either";
}

TEST_F(CanvasTest, ADragWhoseSourceHasEndedDropsNothing) {
    const vapp_qt::QtDragMime data(*m_source);
    EXPECT_TRUE(Enter(data));
    m_source.reset();
    EXPECT_FALSE(Drop(data));
    EXPECT_TRUE(m_canvas.GetPlaced().empty());
}

TEST_F(CanvasTest, ShowsWhereACellWouldLandAndWhatHasLanded) {
    const auto picture = [this] { return m_canvas.grab().toImage(); };
    const QImage empty = picture();
    const vapp_qt::QtDragMime data(*m_source);
    Enter(data);
    EXPECT_NE(picture(), empty);
    QDragLeaveEvent leave;
    QApplication::sendEvent(&m_canvas, &leave);
    EXPECT_EQ(picture(), empty);
    Enter(data);
    Drop(data);
    EXPECT_NE(picture(), empty);
}

}  // namespace
