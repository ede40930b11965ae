/// @file
/// The peer with an item for each cell of the table.
#include <QList>
#include <QStandardItemModel>
#include <QString>
#include <ctime>

#include "bench/CellListBench.h"

double FillAndSortItemModel(const std::vector<BenchRow>& rows) {
    const std::clock_t start = std::clock();
    QStandardItemModel model;
    model.setColumnCount(3);
    for (const BenchRow& row : rows) {
        model.appendRow({new QStandardItem(QString::fromStdString(row.cell)),
                         new QStandardItem(QString::fromStdString(row.view)),
                         new QStandardItem(QString::fromStdString(row.library))});
    }
    model.sort(0);
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}
