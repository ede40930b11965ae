/// @file
/// A view of equally high rows that exist only as numbers. Where a row stands is arithmetic, so that a
/// million rows need no more memory and no more time than ten.
///
/// It is an item view with a model, so that assistive technology, test tools and hosts find what they expect;
/// but selection, focus, scroll position and all rules of clicks and keys are the control's. The item view's
/// own selection model is a copy for onlookers, made anew after each change, never asked here.
#pragma once

#include <QAbstractItemView>

#include "toolkit/qt/QtRowControl.h"

class QPainter;

namespace vapp_qt {

class QtRowView : public QAbstractItemView {
    Q_OBJECT
public:
    /// Above this number of selected ranges the copy holds only those that touch the shown rows.
    static constexpr std::size_t cnMirroredRanges = 1000;

    /// @param control  not owned; must live until `Detach`
    QtRowView(QtRowControl& control, QWidget* parent);

    /// The control is going: nothing is shown and reported from now on.
    virtual void Detach();
    /// The control, or null after `Detach`.
    [[nodiscard]] QtRowControl* Control() const { return m_control; }

    /// Rows, columns, size or scroll position are others: sets the scroll bars and paints.
    void ApplyGeometry();
    /// Selection or focus is another: paints, and soon copies it for onlookers.
    void ApplySelection();

    /// The rows are others: what was pressed isn't what would be dragged.
    void ForgetPress();

    /// The row at a point of the viewport, -1 for none.
    [[nodiscard]] int RowAt(const QPoint& point) const;
    /// The row's place in the viewport, as wide as it.
    [[nodiscard]] QRect RowRect(int row) const;
    /// The column of the model at a horizontal place, -1 for none; and a column's place.
    [[nodiscard]] virtual int ColumnAt(int x) const = 0;
    [[nodiscard]] virtual QRect ColumnRect(int column) const = 0;

    [[nodiscard]] QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    [[nodiscard]] QModelIndex indexAt(const QPoint& point) const override;
    void selectAll() override;
    void keyboardSearch(const QString& search) override;

protected:
    /// Measures the font and tells the control the heights.
    virtual void ApplyFont() = 0;
    /// A dotted frame just inside the area, one unit wide at every scale.
    static void PaintFocusFrame(QPainter& painter, const QRect& area, const QColor& line);

    [[nodiscard]] QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] int horizontalOffset() const override;
    [[nodiscard]] int verticalOffset() const override;
    [[nodiscard]] bool isIndexHidden(const QModelIndex& index) const override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection& selection) const override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

    bool viewportEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void SelectAlong(const QMouseEvent& event);
    void DragOut(const QMouseEvent& event);
    void ApplyBar(QScrollBar& bar, int last, int page, int step, int value);
    void MirrorSelection();
    void Type(const QString& text);
    [[nodiscard]] int DragTarget(int y) const;
    [[nodiscard]] CPoint ClientPoint(const QPoint& viewportPoint) const;

    QtRowControl* m_control;
    bool m_applyingBars = false;
    bool m_mirrorPending = false;
    int m_draggedTo = -1;   ///< row of the selecting that is under way
    int m_pressedRow = -1;  ///< row that may be dragged out
    QPoint m_pressed;       ///< where the button went down
    QPoint m_pressedInRow;  ///< and where that was in its row, which the wheel may move
    Qt::MouseButton m_pressedButton = Qt::NoButton;
};

}  // namespace vapp_qt
