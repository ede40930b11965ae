/// @file
/// Painting of the report. Whatever a cell asks of the host may come back and change rows, columns or the
/// very window, so that nothing that was read before a cell is trusted behind it, but the columns: they live
/// as long as their report.
#include "toolkit/qt/QtReportView.h"

#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <algorithm>

#include "toolkit/qt/QtColor.h"
#include "toolkit/qt/QtIcons.h"
#include "toolkit/qt/QtPeer.h"
#include "toolkit/qt/QtReportHeader.h"
#include "toolkit/qt/QtReportModel.h"
#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CXTPReportControl.h"

namespace vapp_qt {

namespace {

constexpr int cnCellPadding = 4;
constexpr int cnReportRowPadding = 3;
constexpr int cnIconMargin = 2;
constexpr int cnNoItemsMargin = 8;

}  // namespace

QtReportView::QtReportView(CXTPReportControl& report, QtRowControl& control, QtReportModel& reportModel,
                           QWidget* parent)
    : QtRowView(control, parent),
      m_report(&report),
      m_model(reportModel),
      m_header(new QtReportHeader(report, this)) {
    QObject::connect(m_header, &QtReportHeader::FitWanted, this, &QtReportView::FitColumn);
    setModel(&reportModel);
    ApplyFont();
}

void QtReportView::Detach() {
    m_report = nullptr;
    m_header->Detach();
    QtRowView::Detach();
}

void QtReportView::ApplyHeader() {
    m_header->update();
    viewport()->update();
}

void QtReportView::ApplyFont() {
    for (std::size_t index = 0; index < m_fonts.size(); ++index)
        m_fonts[index] = gToQFont(font(), {.bold = (index & 1U) != 0, .italic = (index & 2U) != 0});
    if (Control() == nullptr) return;
    const int headerHeight = m_header->WantedHeight();
    Control()->SetHeights(fontMetrics().height() + 2 * cnReportRowPadding, headerHeight);
    setViewportMargins(0, headerHeight, 0, 0);
}

void QtReportView::resizeEvent(QResizeEvent* event) {
    QtRowView::resizeEvent(event);
    m_header->setGeometry(viewport()->x(), viewport()->y() - m_header->WantedHeight(), viewport()->width(),
                          m_header->WantedHeight());
}

int QtReportView::ColumnAt(int x) const {
    if (m_report == nullptr) return -1;
    for (const QtColumnPlace& place : gColumnPlaces(*m_report)) {
        if (x >= place.shownLeft && x < place.Right()) return place.visibleIndex;
    }
    return -1;
}

QRect QtReportView::ColumnRect(int column) const {
    if (m_report == nullptr) return {};
    const QtColumnPlace place = gPlaceOfColumn(*m_report, m_model.ColumnAt(column));
    return {place.shownLeft, 0, std::max(place.ShownWidth(), 0), viewport()->height()};
}

// --- Painting ------------------------------------------------------------------------------------------

QtReportView::Looks QtReportView::GetLooks() const {
    const auto group = !isEnabled() ? QPalette::Disabled : hasFocus() ? QPalette::Active : QPalette::Inactive;
    const CXTPReportPaintManager& colors = m_report->GetPaintManager();
    const auto pick = [&](TReportColor color, QPalette::ColorRole role) {
        return gToQColor(colors.GetColor(color), palette().color(group, role));
    };
    Looks looks;
    looks.back = pick(TReportColor::ControlBack, QPalette::Base);
    looks.back = gToQColor(colors.GetColor(TReportColor::FilteredList), looks.back);
    looks.text = gReadableOn(looks.back, pick(TReportColor::ControlText, QPalette::Text));
    looks.grid = gMixed(looks.text, looks.back, 12);
    looks.selectedBack = palette().color(group, QPalette::Highlight);
    looks.selectedText = gReadableOn(looks.selectedBack, palette().color(group, QPalette::HighlightedText));
    return looks;
}

void QtReportView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    if (m_report == nullptr) {
        painter.fillRect(event->rect(), palette().base());
        return;
    }
    const QtBusyScope busy(QtBusyScope::TKind::Painting);
    const Looks looks = GetLooks();
    const QRect exposed = event->rect();
    painter.fillRect(exposed, looks.back);
    if (m_report->GetRows().GetCount() == 0) {
        PaintNoItems(painter, looks);
        return;
    }
    const std::vector<QtColumnPlace> places = gColumnPlaces(*m_report);
    const int top = m_report->GetTopRowIndex();
    const int rowHeight = m_report->GetRowHeight();
    const int last = top + exposed.bottom() / rowHeight;
    for (int row = top + exposed.top() / rowHeight; row <= last; ++row) {
        if (!PaintRow(painter, row, places, looks)) break;
    }
    if (m_report == nullptr) return;
    PaintGrid(painter, exposed, places, looks);
    PaintFocus(painter);
}

// True if there may be more rows.
bool QtReportView::PaintRow(QPainter& painter, int row, const std::vector<QtColumnPlace>& places,
                            const Looks& looks) {
    if (row >= m_report->GetRows().GetCount()) return false;
    const bool selected = m_report->GetSelectedRows().Contains(CXTPReportRow(row));
    const QRect area = RowRect(row);
    if (selected) painter.fillRect(area, looks.selectedBack);
    for (const QtColumnPlace& place : places) {
        const bool measured = m_model.Measure(row, *place.column, m_metrics);
        if (m_report == nullptr) return false;
        if (!measured) continue;
        painter.save();
        painter.setClipRect(place.shownLeft, area.top(), place.ShownWidth(), area.height(),
                            Qt::IntersectClip);
        PaintCell(painter, QRect(place.left, area.top(), place.width, area.height()), selected, looks);
        painter.restore();
    }
    return true;
}

void QtReportView::PaintCell(QPainter& painter, const QRect& cell, bool selected, const Looks& looks) {
    const bool ownBack = !selected && m_metrics.background != cnNoColor;
    const QColor back =
        ownBack ? gToQColor(m_metrics.background, {}) : (selected ? looks.selectedBack : looks.back);
    if (ownBack) painter.fillRect(cell, back);
    const QColor standard = selected ? looks.selectedText : gReadableOn(back, looks.text);
    // What the colour says of a row holds for a selected one too, as far as it can be read there. Colours of
    // states are the same in a light and in a dark theme.
    const QColor own = gToQColor(m_metrics.foreground, standard);
    const QColor ink = selected ? gTintedOn(back, own, standard) : gLegibleOn(back, own);
    QRect text = cell.adjusted(cnCellPadding, 0, -cnCellPadding, 0);
    if (m_metrics.icon >= 0) {
        const QRect icon(text.left(), cell.top(), m_report->GetImageWidth(), cell.height());
        gDrawStripIcon(painter, QRectF(icon).adjusted(0, cnIconMargin, 0, -cnIconMargin), m_metrics.icon,
                       standard);
        text.setLeft(icon.right() + 1 + cnCellPadding);
    }
    if (text.width() <= 0 || m_metrics.text.IsEmpty()) return;
    const QFont& font = FontOf(m_metrics.font);
    painter.setFont(font);
    painter.setPen(ink);
    const QString shown =
        QFontMetrics(font, this).elidedText(gToQString(m_metrics.text), Qt::ElideRight, text.width());
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

void QtReportView::PaintGrid(QPainter& painter, const QRect& exposed,
                             const std::vector<QtColumnPlace>& places, const Looks& looks) const {
    painter.setPen(QPen(looks.grid, 0));
    const int rows = m_report->GetRows().GetCount() - m_report->GetTopRowIndex();
    const int rowHeight = m_report->GetRowHeight();
    if (m_report->GetGridStyle(false) != 0) {
        for (int line = 1; line <= rows && line * rowHeight <= exposed.bottom() + 1; ++line)
            painter.drawLine(exposed.left(), line * rowHeight - 1, exposed.right(), line * rowHeight - 1);
    }
    if (m_report->GetGridStyle(true) == 0) return;
    for (const QtColumnPlace& place : places) {
        if (place.Right() > place.shownLeft) {
            painter.drawLine(place.Right() - 1, exposed.top(), place.Right() - 1, exposed.bottom());
        }
    }
}

void QtReportView::PaintNoItems(QPainter& painter, const Looks& looks) const {
    const QColor grey = gToQColor(m_report->GetPaintManager().GetColor(TReportColor::GrayText),
                                  palette().color(QPalette::PlaceholderText));
    painter.setPen(gReadableOn(looks.back, grey));
    const QRect area = viewport()->rect().adjusted(cnNoItemsMargin, 0, -cnNoItemsMargin, 0);
    painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap,
                     gToQString(m_report->GetPaintManager().GetNoItemsText()));
}

void QtReportView::PaintFocus(QPainter& painter) const {
    const std::optional<CXTPReportRow> row = m_report->GetFocusedRow();
    if (!row || !hasFocus()) return;
    const QRect area = RowRect(row->GetIndex());
    if (!area.intersects(viewport()->rect())) return;
    const bool selected = m_report->GetSelectedRows().Contains(*row);
    const QColor line =
        selected ? palette().color(QPalette::HighlightedText) : palette().color(QPalette::Highlight);
    PaintFocusFrame(painter, area, line);
}

const QFont& QtReportView::FontOf(const CFont* font) const {
    if (font == nullptr) return m_fonts[0];
    return m_fonts[(font->bold ? 1U : 0U) + (font->italic ? 2U : 0U)];
}

void QtReportView::FitColumn(CXTPReportColumn* column) {
    if (m_report == nullptr) return;
    const QtBusyScope busy;
    int width = fontMetrics().horizontalAdvance(gToQString(column->GetCaption())) + 6 * cnCellPadding;
    const int top = m_report->GetTopRowIndex();
    for (int row = top; row <= top + m_report->GetCountPerPage(); ++row) {
        if (!m_model.Measure(row, *column, m_metrics) || m_report == nullptr) break;
        const int icon = m_metrics.icon >= 0 ? m_report->GetImageWidth() + cnCellPadding : 0;
        const int text =
            QFontMetrics(FontOf(m_metrics.font), this).horizontalAdvance(gToQString(m_metrics.text));
        width = std::max(width, icon + text + 2 * cnCellPadding + 1);
    }
    if (m_report != nullptr) m_report->GetReportHeader().ResizedByUser(column, width);
}

}  // namespace vapp_qt
