/// @file
/// One drag at a time, with a label of what is dragged at the pointer.
///
/// The surprise is who owns the drag. Under X11 another program asks for the text after the drop, and the
/// platform ends the drag when that is done: nothing here may end it. So its parent is the application, and
/// no widget, which the host may end while the user still looks for a place.
#include "toolkit/qt/QtDrag.h"

#include <QApplication>
#include <QDrag>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <QScreen>
#include <QThread>

#include "toolkit/FlagGuard.h"
#include "toolkit/qt/QtDragMime.h"
#include "toolkit/qt/QtPeer.h"
#include "toolkit/qt/QtText.h"

namespace vapp_qt {

namespace {

constexpr int cnLabelPadding = 4;
constexpr int cnMaxLabelWidth = 320;
// From the pointer's tip, so that the place of the drop can be seen.
constexpr QPoint cnLabelOffset(-12, -8);

struct EffectEntry {
    UINT effect;
    Qt::DropAction action;
};
constexpr EffectEntry cnEffects[] = {
    {cnDropCopy, Qt::CopyAction}, {cnDropMove, Qt::MoveAction}, {cnDropLink, Qt::LinkAction}};

Qt::DropActions ActionsOf(UINT effects) {
    Qt::DropActions actions;
    for (const EffectEntry& entry : cnEffects)
        actions.setFlag(entry.action, (effects & entry.effect) != 0);
    return actions;
}

UINT EffectOf(Qt::DropAction action) {
    for (const EffectEntry& entry : cnEffects) {
        if (entry.action == action) return entry.effect;
    }
    return cnDropNone;
}

QPixmap LabelOf(const QString& text) {
    const QFontMetrics metrics(QApplication::font());
    const QString shown = metrics.elidedText(text.simplified(), Qt::ElideMiddle, cnMaxLabelWidth);
    const QSize size(metrics.horizontalAdvance(shown) + 2 * cnLabelPadding,
                     metrics.height() + 2 * cnLabelPadding);
    const qreal ratio = qApp->devicePixelRatio();
    QPixmap label(size * ratio);
    label.setDevicePixelRatio(ratio);
    const QPalette palette = QApplication::palette();
    label.fill(palette.color(QPalette::ToolTipBase));
    QPainter painter(&label);
    const QRect area(QPoint(0, 0), size);
    painter.setPen(palette.color(QPalette::ToolTipText));
    painter.drawRect(area.adjusted(0, 0, -1, -1));
    painter.drawText(area, Qt::AlignCenter | Qt::TextSingleLine, shown);
    return label;
}

bool s_isDragging = false;

}  // namespace

UINT gRunDrag(COleDataSource& source, UINT effects, const CRect& /*start*/) {
    if (qApp == nullptr || QThread::currentThread() != qApp->thread() || s_isDragging) return cnDropNone;
    const FlagGuard dragging(s_isDragging);
    const QtBusyScope busy;
    auto* const drag = new QDrag(qApp);
    drag->setMimeData(new QtDragMime(source));
    if (!source.GetText().IsEmpty()) {
        drag->setPixmap(LabelOf(gToQString(source.GetText())));
        drag->setHotSpot(cnLabelOffset);
    }
    const Qt::DropActions actions = ActionsOf(effects);
    return EffectOf(drag->exec(actions, actions.testFlag(Qt::CopyAction) ? Qt::CopyAction : Qt::LinkAction));
}

}  // namespace vapp_qt
