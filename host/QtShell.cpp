/// The preview's bitmap stays with the shell: the pane shows it without owning it, so the old one goes only
/// when the new one is in its place.

#include "host/QtShell.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QFile>
#include <QMainWindow>
#include <QStatusBar>
#include <utility>

#include "host/SymbolPainter.h"
#include "vapp/toolkit/WindowPlacement.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"
#include "vapp/toolkit/qt/QtTheme.h"

namespace navigator {

namespace {

/// A refresh may ask for another one (a pending highlight, a change noted by a script), and painting may ask
/// for a preview; more rounds than this means that a script asks for a refresh at each refresh.
constexpr int cnSettlingRounds = 10;

/// Under this name the placement of the main window is kept.
constexpr char csWindowPlace[] = "WindowPos";

CStringU TextOf(const std::string& utf8) {
    return {utf8.c_str(), TextEncoding::Utf8Auto};
}

std::string CaptionOf(const CellViewName& name) {
    return name.library + " / " + name.cell + " / " + name.view;
}

}  // namespace

QtShell::QtShell(Navigator& navigator)
    : m_navigator(navigator), m_watcher([this] {
          m_navigator.Rescan();
          m_watcher.Watch(m_navigator.Store());
      }) {
    QtPeerFactory::Install();
    m_navigator.Commands().SetPreviewHandler([this](const PreviewRequest& request) { ShowPreview(request); });
}

QtShell::~QtShell() {
    if (m_wasShown) KeepPlace();
    QObject::disconnect(m_idle);
    m_navigator.Commands().SetPreviewHandler(nullptr);
    m_navigator.Browser().SetPreview(true, CStringU(), nullptr);
}

void QtShell::Show() {
    gApplyTheme(m_navigator.Frame().IsDark());
    m_watcher.Watch(m_navigator.Store());
    m_idle = QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                              qApp, [this] { m_navigator.Populate(); });
    m_navigator.Frame().ShowWindow(true);
    m_navigator.FitPanes();
    m_wasShown = true;
}

// The widget's own place and size, and not the control's: those are of the client area, without the title
// bar, and the window would wander by the bar's height from run to run.
void QtShell::RestorePlace() {
    QWidget* const window = gWidgetOf(m_navigator.Frame());
    TWindowPlacement placement;
    if (window == nullptr || !gReadWindowPlacement(&placement, csWindowPlace)) return;
    ClipOrCenterRectToMonitor(&placement.normal, cnMonitorClip);
    window->move(placement.normal.left, placement.normal.top);
    window->resize(placement.normal.Width(), placement.normal.Height());
    if (placement.isMaximized) window->setWindowState(window->windowState() | Qt::WindowMaximized);
}

void QtShell::KeepPlace() {
    const QWidget* const window = gWidgetOf(m_navigator.Frame());
    if (window == nullptr) return;
    const bool isNormal = (window->windowState() & (Qt::WindowMaximized | Qt::WindowMinimized)) == 0;
    const QRect place = isNormal ? QRect(window->pos(), window->size()) : window->normalGeometry();
    gWriteWindowPlacement({{place.x(), place.y(), place.x() + place.width(), place.y() + place.height()},
                           window->isMaximized()},
                          csWindowPlace);
}

void QtShell::Tell(const CString& sentence) {
    auto* const window = qobject_cast<QMainWindow*>(gWidgetOf(m_navigator.Frame()));
    if (window != nullptr) window->statusBar()->showMessage(QString::fromUtf8(sentence.GetString()));
}

std::optional<std::string> QtShell::Screenshot(const std::string& file) {
    gApplyTheme(m_navigator.Frame().IsDark());
    m_navigator.Frame().ShowWindow(true);
    m_navigator.FitPanes();
    for (int round = 0; round < cnSettlingRounds; ++round) {
        QApplication::processEvents();
        m_navigator.Populate();
    }
    QApplication::processEvents();
    QWidget* const window = gWidgetOf(m_navigator.Frame());
    if (window == nullptr || !window->grab().save(QFile::decodeName(file.c_str())))
        return "The picture can't be written to \"" + file + "\".";
    return std::nullopt;
}

void QtShell::ShowPreview(const PreviewRequest& request) {
    DesignStore& store = m_navigator.Store();
    const CellViewRef view =
        store.Find(request.name.design, request.name.library, request.name.cell, request.name.view);
    PictureRequest picture;
    picture.width = request.width;
    picture.height = request.height;
    picture.scale = qApp->devicePixelRatio();
    picture.isDark = m_navigator.Frame().IsDark();
    QtBitmap bitmap(gPaintView(store, view, picture));
    m_navigator.Browser().SetPreview(false, TextOf(CaptionOf(request.name)), bitmap.Get());
    m_picture = std::move(bitmap);
}

}  // namespace navigator
