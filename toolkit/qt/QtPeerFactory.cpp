/// @file
/// One peer for each kind of control.
#include "vapp/toolkit/qt/QtPeerFactory.h"

#include <QApplication>
#include <QCursor>
#include <QScreen>
#include <QThread>

#include "toolkit/qt/QtButtonPeer.h"
#include "toolkit/qt/QtClipboard.h"
#include "toolkit/qt/QtComboAccessible.h"
#include "toolkit/qt/QtComboPeer.h"
#include "toolkit/qt/QtDialogPeer.h"
#include "toolkit/qt/QtDrag.h"
#include "toolkit/qt/QtEditPeer.h"
#include "toolkit/qt/QtFormPeer.h"
#include "toolkit/qt/QtFramePeer.h"
#include "toolkit/qt/QtListPeer.h"
#include "toolkit/qt/QtMenu.h"
#include "toolkit/qt/QtMessageBox.h"
#include "toolkit/qt/QtReportPeer.h"
#include "toolkit/qt/QtRowAccessible.h"
#include "toolkit/qt/QtSplashPeer.h"
#include "toolkit/qt/QtSplitterPeer.h"
#include "toolkit/qt/QtStaticPeer.h"
#include "toolkit/qt/QtTabPeer.h"
#include "toolkit/qt/QtTextPeer.h"
#include "vapp/toolkit/CButton.h"
#include "vapp/toolkit/CComboBox.h"
#include "vapp/toolkit/CDialog.h"
#include "vapp/toolkit/CEdit.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CListCtrl.h"
#include "vapp/toolkit/COleDataSource.h"
#include "vapp/toolkit/CSplitterWnd.h"
#include "vapp/toolkit/CStatic.h"
#include "vapp/toolkit/CTabCtrl.h"
#include "vapp/toolkit/CView.h"
#include "vapp/toolkit/CXTPReportControl.h"
#include "vapp/toolkit/TMessageBox.h"
#include "vapp/toolkit/TSplashScreen.h"

using namespace vapp_qt;

QtPeerFactory::QtPeerFactory() {
    gInstallRowAccessibility();
    gInstallComboAccessibility();
}

QtPeerFactory::~QtPeerFactory() {
    if (PeerFactory::Installed() == this) PeerFactory::Install(nullptr);
}

void QtPeerFactory::Install() {
    static QtPeerFactory factory;
    PeerFactory::Install(&factory);
    COleDataSource::InstallDragRunner(&gRunDrag);
}

std::unique_ptr<Peer> QtPeerFactory::CreateFrame(CFrameWnd& frame) {
    return std::make_unique<QtFramePeer>(frame);
}

std::unique_ptr<Peer> QtPeerFactory::CreateSplitter(CSplitterWnd& splitter) {
    return std::make_unique<QtSplitterPeer>(splitter);
}

std::unique_ptr<Peer> QtPeerFactory::CreateForm(CView& view) {
    return std::make_unique<QtFormPeer>(view);
}

std::unique_ptr<Peer> QtPeerFactory::CreateStatic(CStatic& text) {
    return std::make_unique<QtStaticPeer>(text);
}

std::unique_ptr<Peer> QtPeerFactory::CreateEdit(CEdit& edit) {
    if (edit.IsMultiLine()) return std::make_unique<QtTextPeer>(edit);
    return std::make_unique<QtEditPeer>(edit);
}

std::unique_ptr<Peer> QtPeerFactory::CreateButton(CButton& button) {
    return std::make_unique<QtButtonPeer>(button);
}

std::unique_ptr<Peer> QtPeerFactory::CreateTab(CTabCtrl& tab) {
    return std::make_unique<QtTabPeer>(tab);
}

std::unique_ptr<Peer> QtPeerFactory::CreateCombo(CComboBox& combo) {
    return std::make_unique<QtComboPeer>(combo);
}

std::unique_ptr<Peer> QtPeerFactory::CreateList(CListCtrl& list) {
    return std::make_unique<QtListPeer>(list);
}

std::unique_ptr<Peer> QtPeerFactory::CreateReport(CXTPReportControl& report) {
    return std::make_unique<QtReportPeer>(report);
}

std::unique_ptr<Peer> QtPeerFactory::CreateSplash(TSplashScreen& splash) {
    return std::make_unique<QtSplashPeer>(splash);
}

std::optional<int> QtPeerFactory::ShowMessageBox(const TMessageBox& box) {
    // Without its application object Qt shows nothing; on other threads it must not.
    if (qApp == nullptr || QThread::currentThread() != qApp->thread()) return std::nullopt;
    return gShowMessageBox(box);
}

UINT QtPeerFactory::TrackMenu(const CMenu& menu, CWnd& owner, CPoint screen, TMenuAlign align) {
    return gTrackMenu(menu, owner, screen, align);
}

std::vector<CRect> QtPeerFactory::MonitorAreas() const {
    std::vector<CRect> areas;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect area = screen->geometry();
        areas.emplace_back(area.x(), area.y(), area.x() + area.width(), area.y() + area.height());
    }
    return areas;
}

std::unique_ptr<Peer> QtPeerFactory::CreateDialogWindow(CDialog& dialog) {
    return std::make_unique<QtDialogPeer>(dialog);
}

bool QtPeerFactory::WaitFor(CDialog& dialog) {
    auto* peer = dynamic_cast<QtDialogPeer*>(dialog.GetPeer());
    if (peer == nullptr) return false;
    peer->Wait();
    return true;
}

CPoint QtPeerFactory::CursorPosition() const {
    const QPoint position = QCursor::pos();
    return {position.x(), position.y()};
}

ClipboardPeer* QtPeerFactory::GetClipboard() {
    static QtClipboard clipboard;
    return &clipboard;
}

QWidget* gWidgetOf(const CWnd& window) {
    const auto* peer = dynamic_cast<const QtPeer*>(window.GetPeer());
    return peer != nullptr ? peer->Widget() : nullptr;
}
