/// @file
/// A text, a frame or a picture that takes no input.
#pragma once

#include <QFrame>

#include "toolkit/qt/QtPeer.h"

class CStatic;

namespace vapp_qt {

/// The surface; it asks its control for text and picture whenever it paints.
class QtStaticWidget : public QFrame {
    Q_OBJECT
public:
    QtStaticWidget(CStatic& control, QWidget* parent);

    void Detach() { m_control = nullptr; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintPicture(QPainter& painter) const;
    void PaintText(QPainter& painter) const;

    CStatic* m_control;
};

class QtStaticPeer : public QtPeer {
public:
    explicit QtStaticPeer(CStatic& control);
    ~QtStaticPeer() override;

    void Changed(UINT changes) override;

protected:
    void ApplyNames() override;
};

}  // namespace vapp_qt
