/// @file
/// The button: clicks, image, and the end of its window by its own click.
#include "toolkit/qt/QtButtonPeer.h"

#include <QTest>
#include <QToolButton>
#include <set>

#include "tests/qt/QtTestFrame.h"
#include "vapp/toolkit/CButton.h"

namespace {

int ColoursIn(const QImage& image) {
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    }
    return static_cast<int>(colours.size());
}

}  // namespace

TEST(QtButtonPeer, ClickIsToldOnce) {
    ShownFrame shown;
    CButton button;
    ASSERT_TRUE(button.Create(&shown.form, 8, {10, 10, 34, 34}));
    QTest::mouseClick(gWidgetOf(button), Qt::LeftButton);
    EXPECT_EQ(shown.form.Count(cnButtonClicked), 1);
    QTest::keyClick(gWidgetOf(button), Qt::Key_Space);
    EXPECT_EQ(shown.form.Count(cnButtonClicked), 2);
}

TEST(QtButtonPeer, DisabledButtonTellsNothing) {
    ShownFrame shown;
    CButton button;
    ASSERT_TRUE(button.Create(&shown.form, 8, {10, 10, 34, 34}));
    button.EnableWindow(false);
    QTest::mouseClick(gWidgetOf(button), Qt::LeftButton);
    EXPECT_TRUE(shown.form.heard.empty());
    EXPECT_FALSE(gWidgetOf(button)->isEnabled());
}

TEST(QtButtonPeer, ShowsTextOrImage) {
    ShownFrame shown;
    CButton button;
    button.SetWindowText("Clear");
    ASSERT_TRUE(button.Create(&shown.form, 8, {10, 10, 70, 34}));
    const auto* widget = gWidgetAs<QToolButton>(button);
    EXPECT_EQ(widget->text(), "Clear");
    EXPECT_EQ(widget->toolButtonStyle(), Qt::ToolButtonTextOnly);
    button.SetImageResource(564);
    EXPECT_EQ(widget->toolButtonStyle(), Qt::ToolButtonIconOnly);
    EXPECT_FALSE(widget->icon().isNull());
    button.SetImageResource(0);
    EXPECT_TRUE(widget->icon().isNull());
}

TEST(QtButtonPeer, ImagesDiffer) {
    ShownFrame shown;
    CButton button;
    ASSERT_TRUE(button.Create(&shown.form, 8, {10, 10, 34, 34}));
    auto* widget = gWidgetOf(button);
    for (const qreal ratio : {1.0, 2.0}) {
        button.SetImageResource(0);
        const QImage none = gPictureOf(*widget, ratio);
        button.SetImageResource(562);
        const QImage empty = gPictureOf(*widget, ratio);
        button.SetImageResource(564);
        const QImage filled = gPictureOf(*widget, ratio);
        EXPECT_NE(none, empty);
        EXPECT_NE(none, filled);
        EXPECT_NE(empty, filled);
        EXPECT_GT(ColoursIn(filled), ColoursIn(none));
    }
}

TEST(QtButtonPeer, ImageOfAFineScreenIsDrawnNotScaledUp) {
    ShownFrame shown;
    CButton button;
    ASSERT_TRUE(button.Create(&shown.form, 8, {10, 10, 34, 34}));
    for (const UINT resource : {562u, 564u}) {
        button.SetImageResource(resource);
        const QIcon icon = gWidgetAs<QToolButton>(button)->icon();
        const QImage fine = icon.pixmap(QSize(16, 16), 2).toImage();
        const QImage coarse = icon.pixmap(QSize(16, 16), 1).toImage();
        ASSERT_EQ(fine.size(), QSize(32, 32)) << resource;
        ASSERT_EQ(coarse.size(), QSize(16, 16)) << resource;
        int unlike = 0;
        for (int y = 0; y < 32; ++y) {
            for (int x = 0; x < 32; ++x)
                unlike += fine.pixel(x, y) != coarse.pixel(x / 2, y / 2) ? 1 : 0;
        }
        EXPECT_GT(unlike, 0) << "blocks of four pixels, as scaling up makes them";
    }
}

TEST(QtButtonPeer, ClickMayEndTheButton) {
    ShownFrame shown;
    CButton button;
    ASSERT_TRUE(button.Create(&shown.form, 8, {10, 10, 34, 34}));
    const QPointer<QWidget> widget = gWidgetOf(button);
    shown.form.answer = [&](const Notification&) {
        button.DestroyWindow();
        EXPECT_FALSE(widget.isNull()) << "Qt is still in the middle of the widget's own event";
    };
    QTest::mouseClick(widget, Qt::LeftButton);
    EXPECT_FALSE(button.IsWindow());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}

TEST(QtButtonPeer, ClickMayEndTheWholeFrame) {
    ShownFrame shown;
    CButton button;
    ASSERT_TRUE(button.Create(&shown.form, 8, {10, 10, 34, 34}));
    const QPointer<QWidget> widget = gWidgetOf(button);
    const QPointer<QWidget> top = gWidgetOf(shown.frame);
    shown.form.answer = [&](const Notification&) {
        shown.frame.DestroyWindow();
        EXPECT_FALSE(widget.isNull() || top.isNull()) << "Qt is still in the middle of their own event";
    };
    QTest::mouseClick(widget, Qt::LeftButton);
    EXPECT_FALSE(shown.frame.IsWindow());
    EXPECT_FALSE(top && top->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
    EXPECT_TRUE(top.isNull());
}
