/// @file
/// The peer with an item for each cell of the table.
#include <QList>
#include <QStandardItemModel>
#include <QString>
#include <chrono>

#include "bench/CellListBench.h"

double FillAndSortItemModel(const std::vector<BenchRow>& rows) {
    const auto start = std::chrono::steady_clock::now();
    QStandardItemModel model;
    model.setColumnCount(3);
    for (const BenchRow& row : rows) {
        model.appendRow({new QStandardItem(QString::fromStdString(row.cell)),
                         new QStandardItem(QString::fromStdString(row.view)),
                         new QStandardItem(QString::fromStdString(row.library))});
    }
    model.sort(0);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}
