/// @file
/// What the tests of the peers share: a shown frame whose form writes down what its controls tell it, and a
/// look at the pixels of a widget at a chosen device pixel ratio.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QWidget>
#include <algorithm>
#include <functional>
#include <vector>

#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CView.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"

/// A form that writes down the notifications of its controls; `answer` runs at each.
class RecordingForm : public CView {
public:
    ~RecordingForm() override { DestroyWindow(); }

    std::vector<UINT> heard;
    std::function<void(const Notification&)> answer;

    [[nodiscard]] int Count(UINT code) const {
        return static_cast<int>(std::count(heard.begin(), heard.end(), code));
    }

protected:
    bool OnNotify(Notification& notification, LRESULT& /*result*/) override {
        heard.push_back(notification.code);
        // A copy: the answer may be the end of this form.
        const auto answering = answer;
        if (answering) answering(notification);
        return true;
    }
};

/// A frame with a recording form in it. Controls of the test are declared behind it, so that they end first.
class ShownFrame {
public:
    explicit ShownFrame(CSize size = {320, 240}) {
        frame.CreateFrame("frame", {0, 0, size.cx, size.cy});
        form.Create(&frame, 1, frame.GetClientRect());
        frame.ShowWindow(true);
        QApplication::processEvents();
        QApplication::setActiveWindow(gWidgetOf(frame));
    }

    CFrameWnd frame;
    RecordingForm form;
};

/// The widget of a control as the type that it must be; fails the test, and gives null, otherwise.
template <typename Widget>
[[nodiscard]] Widget* gWidgetAs(const CWnd& control) {
    auto* widget = dynamic_cast<Widget*>(gWidgetOf(control));
    EXPECT_NE(widget, nullptr);
    return widget;
}

/// The widget and its children as they are painted on a screen of the ratio.
[[nodiscard]] inline QImage gPictureOf(QWidget& widget, qreal ratio = 1) {
    QImage image(widget.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    widget.render(&image);
    return image;
}
