/// @file
/// Answers of the list's model. Only what icons mean is asked of host script; the texts are the list's own.
#include "toolkit/qt/QtListModel.h"

#include "toolkit/qt/QtIcons.h"
#include "toolkit/qt/QtPeer.h"
#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CListCtrl.h"

namespace vapp_qt {

namespace {

// The marks of a row tell something that those who can't see them want to know, too.
QString AccessibleText(CListCtrl& list, int row) {
    const QtBusyScope busy(QtBusyScope::TKind::Painting);
    const ListItemLook look = list.DrawItem(row);
    QString text = gToQString(look.text);
    for (const UINT icon : look.icons) {
        if (const QString name = gLibraryMarkName(icon); !name.isEmpty()) text += QLatin1String(", ") + name;
    }
    return text;
}

}  // namespace

QtListModel::QtListModel(CListCtrl& list) : m_list(&list), m_rowCount(list.GetItemCount()) {}

void QtListModel::Reset() {
    beginResetModel();
    m_rowCount = m_list != nullptr ? m_list->GetItemCount() : 0;
    endResetModel();
}

void QtListModel::Detach() {
    m_list = nullptr;
    Reset();
}

int QtListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rowCount;
}

int QtListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 1;
}

QVariant QtListModel::data(const QModelIndex& index, int role) const {
    if (m_list == nullptr || !checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    if (role == Qt::DisplayRole) return gToQString(m_list->GetItemText(index.row()));
    return role == Qt::AccessibleTextRole ? QVariant(AccessibleText(*m_list, index.row())) : QVariant();
}

QVariant QtListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (m_list == nullptr || orientation != Qt::Horizontal || section != 0) return {};
    return role == Qt::DisplayRole ? QVariant(gToQString(m_list->GetColumnCaption(0))) : QVariant();
}

Qt::ItemFlags QtListModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

}  // namespace vapp_qt
