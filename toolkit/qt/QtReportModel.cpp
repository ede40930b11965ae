/// @file
/// Answers of the report's model.
#include "toolkit/qt/QtReportModel.h"

#include <QApplication>
#include <QBrush>
#include <QFont>

#include "toolkit/qt/QtColor.h"
#include "toolkit/qt/QtIcons.h"
#include "toolkit/qt/QtPeer.h"
#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CXTPReportControl.h"

namespace vapp_qt {

namespace {

// Other roles must not cost a question.
bool IsCellRole(int role) {
    switch (role) {
        case Qt::DisplayRole:
        case Qt::ForegroundRole:
        case Qt::BackgroundRole:
        case Qt::FontRole:
        case Qt::AccessibleTextRole:
            return true;
        default:
            return false;
    }
}

QVariant ColorAnswer(COLORREF color) {
    return color == cnNoColor ? QVariant() : QVariant(QBrush(gToQColor(color, {})));
}

// An icon tells something that those who can't see it want to know, too.
QString AccessibleText(const CXTPReportRecordItemMetrics& metrics) {
    const QString text = gToQString(metrics.text);
    const QString icon = gStripIconName(metrics.icon);
    return icon.isEmpty() ? text : text + QLatin1String(", ") + icon;
}

QVariant Answer(const CXTPReportRecordItemMetrics& metrics, int role) {
    switch (role) {
        case Qt::DisplayRole:
            return gToQString(metrics.text);
        case Qt::ForegroundRole:
            return ColorAnswer(metrics.foreground);
        case Qt::BackgroundRole:
            return ColorAnswer(metrics.background);
        case Qt::FontRole:
            return metrics.font == nullptr ? QVariant()
                                           : QVariant(gToQFont(QApplication::font(), *metrics.font));
        default:
            return AccessibleText(metrics);
    }
}

}  // namespace

QtReportModel::QtReportModel(CXTPReportControl& report) : m_report(&report) {
    ResetRows();
}

void QtReportModel::ResetRows() {
    beginResetModel();
    m_rowCount = m_report != nullptr ? m_report->GetRows().GetCount() : 0;
    m_columnCount = m_report != nullptr ? m_report->GetColumns().GetVisibleColumnsCount() : 0;
    endResetModel();
}

void QtReportModel::ResetColumns() {
    if (m_report == nullptr || m_columnCount != m_report->GetColumns().GetVisibleColumnsCount()) {
        ResetRows();
        return;
    }
    if (m_columnCount == 0) return;
    emit headerDataChanged(Qt::Horizontal, 0, m_columnCount - 1);
    if (m_rowCount > 0) emit dataChanged(index(0, 0), index(m_rowCount - 1, m_columnCount - 1));
}

void QtReportModel::Detach() {
    m_report = nullptr;
    ResetRows();
}

bool QtReportModel::Measure(int row, CXTPReportColumn& column, CXTPReportRecordItemMetrics& metrics) const {
    metrics.Reset();
    return m_report != nullptr && m_report->MeasureItem(row, column, metrics);
}

CXTPReportColumn* QtReportModel::ColumnAt(int column) const {
    return m_report != nullptr ? m_report->GetColumns().GetVisibleAt(column) : nullptr;
}

int QtReportModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rowCount;
}

int QtReportModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_columnCount;
}

QVariant QtReportModel::data(const QModelIndex& index, int role) const {
    if (!IsCellRole(role) || !checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    CXTPReportColumn* column = ColumnAt(index.column());
    if (column == nullptr) return {};
    // The answer may come from host script. What that changes is told to the view when the question is over.
    const QtBusyScope busy(QtBusyScope::TKind::Painting);
    CXTPReportRecordItemMetrics metrics;
    if (!Measure(index.row(), *column, metrics)) return {};
    return Answer(metrics, role);
}

QVariant QtReportModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
    if (orientation == Qt::Vertical) return section >= 0 && section < m_rowCount ? section + 1 : QVariant();
    const CXTPReportColumn* column = ColumnAt(section);
    return column == nullptr ? QVariant() : QVariant(gToQString(column->GetCaption()));
}

Qt::ItemFlags QtReportModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

}  // namespace vapp_qt
