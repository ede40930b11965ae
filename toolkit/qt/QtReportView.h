/// @file
/// The report on the screen: each shown cell is measured once while it is painted, and drawn from that.
#pragma once

#include <QFont>
#include <array>

#include "toolkit/qt/QtColumnPlaces.h"
#include "toolkit/qt/QtRowView.h"
#include "vapp/toolkit/CXTPReportRecord.h"

class CXTPReportControl;

namespace vapp_qt {

class QtReportHeader;
class QtReportModel;

class QtReportView : public QtRowView {
    Q_OBJECT
public:
    QtReportView(CXTPReportControl& report, QtRowControl& control, QtReportModel& reportModel,
                 QWidget* parent);

    void Detach() override;
    [[nodiscard]] QtReportHeader* Header() const { return m_header; }
    /// Columns, sort order or looks are others: the header too.
    void ApplyHeader();

    [[nodiscard]] int ColumnAt(int x) const override;
    [[nodiscard]] QRect ColumnRect(int column) const override;

protected:
    void ApplyFont() override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Colours that hold for all rows of one painting.
    struct Looks {
        QColor back;
        QColor text;
        QColor grid;
        QColor selectedBack;
        QColor selectedText;
    };

    [[nodiscard]] Looks GetLooks() const;
    void PaintNoItems(QPainter& painter, const Looks& looks) const;
    bool PaintRow(QPainter& painter, int row, const std::vector<QtColumnPlace>& places, const Looks& looks);
    void PaintCell(QPainter& painter, const QRect& cell, bool selected, const Looks& looks);
    void PaintGrid(QPainter& painter, const QRect& exposed, const std::vector<QtColumnPlace>& places,
                   const Looks& looks) const;
    void PaintFocus(QPainter& painter) const;
    [[nodiscard]] const QFont& FontOf(const CFont* font) const;
    void FitColumn(CXTPReportColumn* column);

    CXTPReportControl* m_report;
    QtReportModel& m_model;
    QtReportHeader* m_header;
    std::array<QFont, 4> m_fonts;
    CXTPReportRecordItemMetrics m_metrics;
};

}  // namespace vapp_qt
