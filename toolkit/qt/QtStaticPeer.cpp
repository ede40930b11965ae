/// @file
/// Static surfaces. A long text ends in an ellipsis and shows whole as its tool tip. A picture is asked for
/// in the size of the whole control, and so is drawn over the whole of it, pixel for pixel, with the frame on
/// top; one that is too large is made smaller, one that is smaller stands in the middle.
#include "toolkit/qt/QtStaticPeer.h"

#include <QPainter>
#include <QStyle>

#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CStatic.h"
#include "vapp/toolkit/qt/QtBitmap.h"

namespace vapp_qt {

QtStaticWidget::QtStaticWidget(CStatic& control, QWidget* parent) : QFrame(parent), m_control(&control) {
    if (control.GetKind() == CStatic::TKind::Text) return;
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
}

void QtStaticWidget::paintEvent(QPaintEvent* event) {
    if (m_control != nullptr) {
        QPainter painter(this);
        if (m_control->GetKind() == CStatic::TKind::Picture) PaintPicture(painter);
        if (m_control->GetKind() == CStatic::TKind::Text) PaintText(painter);
    }
    QFrame::paintEvent(event);
}

void QtStaticWidget::PaintPicture(QPainter& painter) const {
    painter.fillRect(rect(), palette().base());
    const QImage image = QtBitmap::ImageOf(m_control->GetImage());
    if (image.isNull()) return;
    QSizeF size = image.deviceIndependentSize();
    if (size.width() > width() || size.height() > height()) {
        size.scale(QSizeF(rect().size()), Qt::KeepAspectRatio);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
    }
    // Whole pixels: half a pixel's offset would blur every line of the picture.
    const QPoint corner(qRound((width() - size.width()) / 2), qRound((height() - size.height()) / 2));
    painter.drawImage(QRectF(corner, size), image);
}

void QtStaticWidget::PaintText(QPainter& painter) const {
    const QString text =
        fontMetrics().elidedText(gToQString(m_control->GetWindowText()), Qt::ElideRight, width());
    style()->drawItemText(&painter, rect(), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, palette(),
                          isEnabled(), text, foregroundRole());
}

QtStaticPeer::QtStaticPeer(CStatic& control)
    : QtPeer(control, new QtStaticWidget(control, gClientWidgetAbove(control))) {}

QtStaticPeer::~QtStaticPeer() {
    if (auto* widget = static_cast<QtStaticWidget*>(Widget())) widget->Detach();
}

void QtStaticPeer::Changed(UINT changes) {
    QtPeer::Changed(changes);
    if (Widget() != nullptr && (changes & (cnChangeText | cnChangeLook)) != 0) Widget()->update();
}

void QtStaticPeer::ApplyNames() {
    QtPeer::ApplyNames();
    const QString text = gToQString(Window().GetWindowText());
    Widget()->setToolTip(text.isEmpty() ? QString()
                                        : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped()));
    // A named text is read with its name: the name alone would hide what it says.
    if (Window().GetAccessibleName().IsEmpty() || text.isEmpty()) return;
    Widget()->setAccessibleName(QStringLiteral("%1: %2").arg(Widget()->accessibleName(), text));
}

}  // namespace vapp_qt
