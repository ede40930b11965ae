/// @file
/// A splitter: the panes where the control puts them, and between them bars that the user drags. The bars
/// keep no heights: where they are follows from the panes, what they do are calls of the control.
#pragma once

#include <vector>

#include "toolkit/qt/QtPeer.h"

class CSplitterWnd;

namespace vapp_qt {

/// The bar below a row.
class QtSplitterBar : public QWidget {
    Q_OBJECT
public:
    QtSplitterBar(CSplitterWnd& splitter, int row, QWidget* parent);

    /// The control is going; the bar does nothing any more.
    void Detach() { m_splitter = nullptr; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Drag(int top);

    CSplitterWnd* m_splitter;
    int m_row;
    int m_grabbedAt = 0;
};

class QtSplitterPeer : public QtPeer {
public:
    explicit QtSplitterPeer(CSplitterWnd& splitter);
    ~QtSplitterPeer() override;

    void Changed(UINT changes) override;

protected:
    void ChildPlaced() override;

private:
    void MakeBars();
    void PlaceBars();

    CSplitterWnd& m_splitter;
    std::vector<QPointer<QtSplitterBar>> m_bars;
};

}  // namespace vapp_qt
