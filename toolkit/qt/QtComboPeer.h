/// @file
/// A drop-down list.
#pragma once

#include <QAbstractListModel>
#include <QComboBox>

#include "toolkit/qt/QtPeer.h"

class CComboBox;

namespace vapp_qt {

/// The items, asked of the control when they are wanted. Only their number is kept, as Qt last heard of it.
class QtComboModel : public QAbstractListModel {
    Q_OBJECT
public:
    explicit QtComboModel(const CComboBox& combo) : m_combo(&combo) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    /// The items are others now.
    void Reset();
    void Detach();

private:
    const CComboBox* m_combo;
    int m_count = 0;
};

/// A combo box that tells when its list closes; and when the user confirms, by the Enter key, what the keys
/// have picked without the list. The wheel picks nothing: who turns it over a form wants to scroll.
class QtComboWidget : public QComboBox {
    Q_OBJECT
public:
    explicit QtComboWidget(QWidget* parent);
    void hidePopup() override;

signals:
    void Closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    bool m_isPickOpen = false;  ///< by keys, and not confirmed yet
};

class QtComboPeer : public QtPeer {
public:
    explicit QtComboPeer(CComboBox& combo);
    ~QtComboPeer() override;

    void Changed(UINT changes) override;

private:
    void ApplyItems(bool reset);

    CComboBox& m_combo;
    QtComboModel m_model;
};

}  // namespace vapp_qt
