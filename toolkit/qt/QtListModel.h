/// @file
/// The rows of a list as a Qt model, for assistive technology and tests. It holds no text; each question goes
/// to the list at that moment.
#pragma once

#include <QAbstractTableModel>

class CListCtrl;

namespace vapp_qt {

/// One column. The number of rows is that of the last reset.
class QtListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit QtListModel(CListCtrl& list);

    void Reset();
    /// The list goes; from now on the model is empty.
    void Detach();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    CListCtrl* m_list;
    int m_rowCount = 0;
};

}  // namespace vapp_qt
