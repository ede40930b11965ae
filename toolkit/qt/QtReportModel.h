/// @file
/// The report's rows as a Qt model: for the view's selection and for assistive technology. It holds no cell;
/// each question goes to the report at that moment.
///
/// The surprise: the numbers of rows and columns are those of the last reset, as Qt wants it, while the
/// report may have others already. What is gone answers nothing.
#pragma once

#include <QAbstractTableModel>

class CXTPReportControl;
class CXTPReportColumn;
struct CXTPReportRecordItemMetrics;

namespace vapp_qt {

/// Its columns are the visible ones of the report, from left to right.
class QtReportModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit QtReportModel(CXTPReportControl& report);

    /// The rows are others; takes over the number of columns as well.
    void ResetRows();
    /// Columns were added, hidden, shown, moved or resized. Only another number of them is a reset: the rows,
    /// and what onlookers know of them, stay otherwise.
    void ResetColumns();
    /// The report goes; from now on the model is empty.
    void Detach();

    /// How a cell looks now; false if it isn't there. May run host script.
    bool Measure(int row, CXTPReportColumn& column, CXTPReportRecordItemMetrics& metrics) const;
    /// The column of the report behind one of the model, or null.
    [[nodiscard]] CXTPReportColumn* ColumnAt(int column) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    CXTPReportControl* m_report;
    int m_rowCount = 0;
    int m_columnCount = 0;
};

}  // namespace vapp_qt
