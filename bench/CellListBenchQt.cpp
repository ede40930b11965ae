/// @file
/// The peers of Qt: a model with an item for each cell of the table, and the filter over a list of texts.
#include <QList>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QString>
#include <QStringListModel>
#include <ctime>

#include "bench/CellFilterBench.h"
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

double FilterItemModel(const std::vector<std::string>& names, const char* text, std::size_t& kept) {
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(names.size()));
    for (const std::string& name : names)
        texts.append(QString::fromStdString(name));
    QStringListModel model(texts);
    QSortFilterProxyModel filter;
    filter.setSourceModel(&model);
    filter.setFilterCaseSensitivity(Qt::CaseInsensitive);
    // Maps all rows, so that what is measured is the filter alone.
    if (static_cast<std::size_t>(filter.rowCount()) != names.size()) return -1;
    const std::clock_t start = std::clock();
    filter.setFilterFixedString(QString::fromUtf8(text));
    kept = static_cast<std::size_t>(filter.rowCount());
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}
