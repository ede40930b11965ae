/// @file
/// A top-level window: a QMainWindow, so that a host can give it menus, bars and a status line of its own.
/// The frame's client area is the central widget.
///
/// The surprise: the central widget has no size worth reading before the window is shown for the first time;
/// until then the whole window counts as the client area.
#pragma once

#include "toolkit/qt/QtPeer.h"

class CFrameWnd;
class QMainWindow;

namespace vapp_qt {

class QtFramePeer : public QtPeer {
public:
    explicit QtFramePeer(CFrameWnd& frame);

    void Changed(UINT changes) override;
    [[nodiscard]] QWidget* ClientWidget() const override { return m_client; }
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void ApplyRect() override;
    void ReportRect() override;
    void ApplyVisible() override;

private:
    [[nodiscard]] bool WasShown() const;

    QPointer<QWidget> m_client;
};

}  // namespace vapp_qt
