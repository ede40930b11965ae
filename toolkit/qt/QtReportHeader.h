/// @file
/// The header of a report: captions, the sort arrow, and what the user does with the mouse: click to sort,
/// drag an edge to resize, drag a caption to move, double click an edge to fit. All of it are calls of the
/// control; only the drag that is under way is kept.
#pragma once

#include <QPalette>
#include <QWidget>
#include <vector>

#include "toolkit/qt/QtColumnPlaces.h"
#include "vapp/toolkit/BasicTypes.h"
#include "vapp/toolkit/CPoint.h"

class CXTPReportControl;

namespace vapp_qt {

class QtReportHeader : public QWidget {
    Q_OBJECT
public:
    QtReportHeader(CXTPReportControl& report, QWidget* parent);

    void Detach() { m_report = nullptr; }
    /// The height that the font and the style ask for.
    [[nodiscard]] int WantedHeight() const;

signals:
    /// An edge was double clicked.
    void FitWanted(CXTPReportColumn* column);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    enum class TDrag { None, Pressed, Resizing, Moving };
    /// What the colours of the sections were made of.
    struct ColorSources {
        qint64 palette = 0;
        COLORREF back = cnNoColor;
        COLORREF text = cnNoColor;
    };

    [[nodiscard]] QRect PaintedPart(const QtColumnPlace& place, const QString& text) const;
    void PaintSection(QPainter& painter, const QtColumnPlace& place) const;
    void PaintEmptySection(QPainter& painter, int left) const;
    void PaintDropMark(QPainter& painter) const;
    void ApplyColors();
    /// The column whose right edge can be caught at `x`, or null.
    [[nodiscard]] CXTPReportColumn* EdgeAt(int x) const;
    [[nodiscard]] CXTPReportColumn* ColumnAt(int x) const;
    /// The column that the dragged one would take the place of, or null.
    [[nodiscard]] CXTPReportColumn* DropTarget(int x) const;
    void EndDrag();
    [[nodiscard]] CPoint ClientPoint(const QPoint& point) const;

    CXTPReportControl* m_report;
    QPalette m_colors;
    ColorSources m_colorsOf;
    CXTPReportColumn* m_column = nullptr;
    TDrag m_drag = TDrag::None;
    int m_pressedAt = 0;
    int m_widthThen = 0;
    int m_mouseX = -1;
};

}  // namespace vapp_qt
