/// @file
/// The drop-down list. Its closing is told a moment later: Qt closes the list before it says what was picked,
/// and who answers the closing wants to find the new choice.
#include "toolkit/qt/QtComboPeer.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <utility>

#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CComboBox.h"

namespace vapp_qt {

int QtComboModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_count;
}

QVariant QtComboModel::data(const QModelIndex& index, int role) const {
    if (m_combo == nullptr || !index.isValid()) return {};
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
    return gToQString(m_combo->GetLBText(index.row()));
}

void QtComboModel::Reset() {
    beginResetModel();
    m_count = m_combo != nullptr ? m_combo->GetCount() : 0;
    endResetModel();
}

void QtComboModel::Detach() {
    m_combo = nullptr;
    Reset();
}

QtComboWidget::QtComboWidget(QWidget* parent) : QComboBox(parent) {
    QObject::connect(this, &QComboBox::activated, this, [this] { m_isPickOpen = true; });
    // Later: a pick in the list is told behind the closing.
    QObject::connect(
        this, &QtComboWidget::Closed, this, [this] { m_isPickOpen = false; }, Qt::QueuedConnection);
}

void QtComboWidget::hidePopup() {
    const bool wasOpen = view()->isVisible();
    QComboBox::hidePopup();
    if (wasOpen) emit Closed();
}

void QtComboWidget::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && std::exchange(m_isPickOpen, false)) {
        emit Closed();
    } else {
        QComboBox::keyPressEvent(event);
    }
}

void QtComboWidget::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

QtComboPeer::QtComboPeer(CComboBox& combo)
    : QtPeer(combo, new QtComboWidget(gClientWidgetAbove(combo))), m_combo(combo), m_model(combo) {
    auto* box = static_cast<QtComboWidget*>(Widget());
    box->setModel(&m_model);
    // By keys too; what is current already was not picked.
    QObject::connect(box, &QComboBox::activated, this, [this](int index) {
        const QtBusyScope busy;
        if (index != m_combo.GetCurSel()) m_combo.PickedByUser(index);
    });
    QObject::connect(
        box, &QtComboWidget::Closed, this,
        [this] {
            const QtBusyScope busy;
            m_combo.ClosedByUser();
        },
        Qt::QueuedConnection);
}

QtComboPeer::~QtComboPeer() {
    m_model.Detach();
}

void QtComboPeer::Changed(UINT changes) {
    QtPeer::Changed(changes);
    if ((changes & (cnChangeItems | cnChangeSelection)) != 0) ApplyItems((changes & cnChangeItems) != 0);
}

void QtComboPeer::ApplyItems(bool reset) {
    auto* box = static_cast<QComboBox*>(Widget());
    if (box == nullptr) return;
    const QSignalBlocker quiet(box);
    if (reset) m_model.Reset();
    box->setCurrentIndex(m_combo.GetCurSel());
}

}  // namespace vapp_qt
