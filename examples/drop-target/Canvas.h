/// @file
/// A canvas on which cells are placed by dropping them: what a host's own editor window does with a cell that
/// is dragged out of the navigator.
#pragma once

#include <QPoint>
#include <QWidget>
#include <functional>
#include <vector>

#include "vapp/celllist/CLibCellViewOleData.h"

/// Takes cells of this process's navigator and nothing else.
class Canvas : public QWidget {
public:
    struct Placed {
        QPoint at;
        vapp_library_browser::CLibCellViewOleData cell;
    };

    explicit Canvas(QWidget* parent = nullptr);

    /// What has been placed so far, in this order.
    [[nodiscard]] const std::vector<Placed>& GetPlaced() const { return m_placed; }
    /// Places a cell, as a drop there would.
    void Place(const QPoint& at, const vapp_library_browser::CLibCellViewOleData& cell);
    /// Called after each.
    std::function<void(const Placed& placed)> onPlaced;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void MarkPlace(const QPoint& place);

    std::vector<Placed> m_placed;
    QPoint m_place;  ///< where the cell would land
    bool m_isMarked = false;
};
