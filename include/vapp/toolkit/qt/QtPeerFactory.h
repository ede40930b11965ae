/// @file
/// The Qt adapter: shows the toolkit's controls by Qt widgets. A host installs it and goes on as before.
#pragma once

#include "vapp/toolkit/Peer.h"
#include "vapp/toolkit/qt/QtExport.h"

class QWidget;

/// Makes the widgets. Their pixels are Qt's device-independent ones, so that all rectangles of the logic hold
/// on every screen.
class VAPP_QT_EXPORT QtPeerFactory : public PeerFactory {
public:
    QtPeerFactory();
    ~QtPeerFactory() override;

    /// Makes the one factory of the process and installs it; again does no harm. A QApplication must exist,
    /// and outlive the windows.
    static void Install();

    std::unique_ptr<Peer> CreateFrame(CFrameWnd& frame) override;
    std::unique_ptr<Peer> CreateSplitter(CSplitterWnd& splitter) override;
    std::unique_ptr<Peer> CreateForm(CView& view) override;
    std::unique_ptr<Peer> CreateStatic(CStatic& text) override;
    std::unique_ptr<Peer> CreateEdit(CEdit& edit) override;
    std::unique_ptr<Peer> CreateButton(CButton& button) override;
    std::unique_ptr<Peer> CreateTab(CTabCtrl& tab) override;
    std::unique_ptr<Peer> CreateCombo(CComboBox& combo) override;
    std::unique_ptr<Peer> CreateList(CListCtrl& list) override;
    std::unique_ptr<Peer> CreateReport(CXTPReportControl& report) override;
    std::unique_ptr<Peer> CreateDialogWindow(CDialog& dialog) override;
    bool WaitFor(CDialog& dialog) override;

    std::unique_ptr<Peer> CreateSplash(TSplashScreen& splash) override;
    std::optional<int> ShowMessageBox(const TMessageBox& box) override;
    UINT TrackMenu(const CMenu& menu, CWnd& owner, CPoint screen, TMenuAlign align) override;
    [[nodiscard]] std::vector<CRect> MonitorAreas() const override;
    [[nodiscard]] CPoint CursorPosition() const override;
    [[nodiscard]] ClipboardPeer* GetClipboard() override;
};

/// The widget that shows a window: a QMainWindow for a frame, which a host may give menus and bars. Null if
/// the window isn't made, or is shown by another adapter or none. Qt's or the host's deletion of it leaves
/// the window without pixels, and no harm is done.
[[nodiscard]] VAPP_QT_EXPORT QWidget* gWidgetOf(const CWnd& window);
