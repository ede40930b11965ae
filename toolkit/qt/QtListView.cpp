/// @file
/// Painting of the list. A row's look is asked once for each painting of it; the answer may change the list
/// or end the window, so that the list is looked at anew for every row.
#include "toolkit/qt/QtListView.h"

#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTextDocument>
#include <QTimerEvent>
#include <QToolTip>
#include <optional>

#include "toolkit/qt/QtColor.h"
#include "toolkit/qt/QtIcons.h"
#include "toolkit/qt/QtPeer.h"
#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CListCtrl.h"

namespace vapp_qt {

namespace {

constexpr int cnListRowPadding = 3;
constexpr int cnEmptyTextOffset = 2;

}  // namespace

QtListView::QtListView(CListCtrl& list, QtRowControl& control, QtListModel& listModel, QWidget* parent)
    : QtRowView(control, parent), m_list(&list) {
    setModel(&listModel);
    ApplyFont();
}

void QtListView::Detach() {
    m_list = nullptr;
    m_tipTimer.stop();
    QtRowView::Detach();
}

int QtListView::ColumnAt(int x) const {
    return m_list != nullptr && x >= 0 && x < viewport()->width() ? 0 : -1;
}

QRect QtListView::ColumnRect(int column) const {
    return column == 0 ? viewport()->rect() : QRect();
}

void QtListView::ApplyFont() {
    if (Control() != nullptr) Control()->SetHeights(fontMetrics().height() + 2 * cnListRowPadding, 0);
}

QColor QtListView::BackColor() const {
    return m_list != nullptr ? gToQColor(m_list->GetBkColor(), palette().color(QPalette::Base))
                             : palette().color(QPalette::Base);
}

void QtListView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), BackColor());
    if (m_list == nullptr) return;
    const QtBusyScope busy(QtBusyScope::TKind::Painting);
    if (m_list->GetItemCount() == 0) {
        PaintEmptyText(painter);
        return;
    }
    const int top = m_list->GetTopIndex();
    const int rowHeight = m_list->GetRowHeight();
    const int last = top + event->rect().bottom() / rowHeight;
    for (int row = top + event->rect().top() / rowHeight; row <= last; ++row) {
        if (row >= m_list->GetItemCount()) break;
        const ListItemLook look = m_list->DrawItem(row);
        if (m_list == nullptr) break;
        PaintRow(painter, RowRect(row), look);
    }
}

void QtListView::PaintRow(QPainter& painter, const QRect& row, const ListItemLook& look) const {
    const auto group = hasFocus() ? QPalette::Active : QPalette::Inactive;
    const QColor usual = look.highlighted ? palette().color(group, QPalette::Highlight) : BackColor();
    const QColor back = gToQColor(look.backColor, usual);
    const QColor usualInk =
        palette().color(group, look.highlighted ? QPalette::HighlightedText : QPalette::Text);
    const QColor ink = gToQColor(look.textColor, gReadableOn(back, usualInk));
    painter.fillRect(row, back);
    for (const UINT icon : look.icons)
        gDrawResource(painter, QRectF(row.left() + 1, row.top() + 1, row.height() - 2, row.height() - 2),
                      icon, ink);
    painter.setFont(gToQFont(font(), look.font));
    painter.setPen(ink);
    const QRect text = row.adjusted(look.textIndent, 0, 0, 0);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(gToQString(look.text), Qt::ElideRight, text.width()));
    if (look.focusRect) PaintFocusFrame(painter, row, ink);
}

bool QtListView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QtRowView::viewportEvent(event);
    ShowTip(static_cast<QHelpEvent*>(event)->pos());
    return true;
}

// It goes when the pointer leaves the row: the next row has another one.
void QtListView::ShowTip(const QPoint& at) {
    if (m_list == nullptr) return;
    const QtBusyScope busy;
    const std::optional<CStringU> tip = m_list->OnToolTipNotify();
    if (m_list == nullptr) return;
    if (m_list->IsTipTimerRunning())
        m_tipTimer.start(static_cast<int>(CListCtrl::cnTipTimerMilliseconds), this);
    QString text = tip ? gToQString(*tip) : QString();
    // A path that looks like markup is none.
    if (Qt::mightBeRichText(text))
        text = QLatin1String("<qt>") + text.toHtmlEscaped() + QLatin1String("</qt>");
    QToolTip::showText(viewport()->mapToGlobal(at), text, viewport(), RowRect(RowAt(at)));
}

void QtListView::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_tipTimer.timerId()) {
        QtRowView::timerEvent(event);
        return;
    }
    const QtBusyScope busy;
    if (m_list != nullptr) m_list->OnTipTimer();
    if (m_list == nullptr || !m_list->IsTipTimerRunning()) m_tipTimer.stop();
}

void QtListView::PaintEmptyText(QPainter& painter) const {
    const QString text = gToQString(m_list->GetEmptyText());
    if (m_list == nullptr || text.isEmpty()) return;
    painter.setFont(gToQFont(font(), {.bold = false, .italic = true}));
    const QColor usual = gReadableOn(BackColor(), palette().color(QPalette::PlaceholderText));
    painter.setPen(gToQColor(m_list->GetEmptyTextColor(), usual));
    painter.drawText(viewport()->rect().adjusted(cnEmptyTextOffset, cnEmptyTextOffset, 0, 0),
                     Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, text);
}

}  // namespace vapp_qt
