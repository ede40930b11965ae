/// @file
/// The list of libraries on the screen: one column without a header, each row drawn as its control says at
/// that moment.
#pragma once

#include <QBasicTimer>

#include "toolkit/qt/QtListModel.h"
#include "toolkit/qt/QtRowView.h"

class CListCtrl;
struct ListItemLook;

namespace vapp_qt {

class QtListView : public QtRowView {
    Q_OBJECT
public:
    QtListView(CListCtrl& list, QtRowControl& control, QtListModel& listModel, QWidget* parent);

    void Detach() override;

    [[nodiscard]] int ColumnAt(int x) const override;
    [[nodiscard]] QRect ColumnRect(int column) const override;

protected:
    void ApplyFont() override;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void ShowTip(const QPoint& at);
    [[nodiscard]] QColor BackColor() const;
    void PaintRow(QPainter& painter, const QRect& row, const ListItemLook& look) const;
    void PaintEmptyText(QPainter& painter) const;

    CListCtrl* m_list;
    QBasicTimer m_tipTimer;
};

}  // namespace vapp_qt
