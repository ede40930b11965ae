/// @file
/// A navigator beside a canvas: drag a cell onto the canvas, and it is placed there; its menu and a double
/// click place it in the corner. Dragged into another program, it is its three names.
///
///     drop-target [--tell] [FOLDER]
///
/// FOLDER is a design with its libraries as folders; without one there is a small design of four cells.
/// Each cell that is placed is told on the standard output. With `--tell` the program tells more, and takes
/// orders, for a test that moves the real pointer; see Teller.h.
#include <tcl.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QStatusBar>
#include <functional>
#include <memory>
#include <utility>

#include "examples/drop-target/Canvas.h"
#include "examples/drop-target/Design.h"
#include "examples/drop-target/Teller.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CWinAppEx.h"
#include "vapp/toolkit/qt/QtIdle.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"

namespace {

// Answers the navigator's questions: what its menu holds, and where its status text is shown.
class Frame final : public CFrameWnd {
public:
    ~Frame() override { DestroyWindow(); }
    vapp_library_browser::TLibraryBrowser* navigator = nullptr;
    std::function<void(const QString& text)> onStatus;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        using namespace vapp_library_browser;
        if (message == WM_LN_BUILDCELLMENU && navigator != nullptr) {
            navigator->AddCellListMenuCommand("&Place", "place", StyleFocusedLcv, false, false, true);
            navigator->BeginCellListSubmenu("&More");
            navigator->AddCellListMenuCommand("Place &All Selected", "place_all", StyleSelectedLcvs, false,
                                              false, false);
            navigator->EndCellListSubmenu();
        } else if (message == WM_LN_HOSTNOTIFY && wParam == cnNotifyStatusText) {
            const auto* text = reinterpret_cast<const CStringU*>(lParam);
            const QString shown = text != nullptr ? QString::fromUtf8(text->Payload()) : QString();
            dynamic_cast<QMainWindow&>(*gWidgetOf(*this)).statusBar()->showMessage(shown);
            if (onStatus) onStatus(shown);
        } else {
            return CFrameWnd::WindowProc(message, wParam, lParam);
        }
        return 0;
    }
};

// Makes one word of a name, whatever stands in it.
CStringU OneWord(const CStringU& name) {
    const char* const words[] = {name.Payload()};
    char* const merged = Tcl_Merge(1, words);
    const CStringU word(merged, TextEncoding::Utf8Auto);
    Tcl_Free(merged);
    return word;
}

bool OpenDesign(Tcl_Interp* interp, const QString& folder) {
    const CStringU name(folder.toUtf8().constData(), TextEncoding::Utf8Auto);
    const CStringU line = CStringU("open_design ") + OneWord(name);
    return Tcl_Eval(interp, line.Payload()) == TCL_OK;
}

// The command `place DESIGN LIBRARY CELL VIEW`.
int PlaceCommand(ClientData canvas, Tcl_Interp* interp, int count, Tcl_Obj* const words[]) {
    if (count != 5) {
        Tcl_WrongNumArgs(interp, 1, words, "DESIGN LIBRARY CELL VIEW");
        return TCL_ERROR;
    }
    const auto name = [words](int at) { return CStringU(Tcl_GetString(words[at]), TextEncoding::Utf8Auto); };
    static_cast<Canvas*>(canvas)->Place({20, 20}, {name(1), {name(2), name(3), name(4)}, false});
    return TCL_OK;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    QtPeerFactory::Install();
    Tcl_FindExecutable(argv[0]);
    const std::unique_ptr<Tcl_Interp, decltype(&Tcl_DeleteInterp)> interp(Tcl_CreateInterp(),
                                                                          &Tcl_DeleteInterp);
    if (Tcl_Eval(interp.get(), csDesign) != TCL_OK) return 1;
    QStringList words = QApplication::arguments().mid(1);
    const bool isTelling = words.removeAll(QStringLiteral("--tell")) > 0;
    if (!words.isEmpty() && !OpenDesign(interp.get(), words.first())) return 1;

    vapp::gSetTclSanitizeInputUPointer(&OneWord);
    CWinAppEx app("drop-target");
    Frame frame;
    frame.CreateFrame("Cells to place", CRect(0, 0, 860, 640));
    app.SetMainWnd(&frame);
    auto& window = dynamic_cast<QMainWindow&>(*gWidgetOf(frame));
    auto* const dock = new QDockWidget(QStringLiteral("Canvas"), &window);
    auto* const canvas = new Canvas(dock);
    canvas->onPlaced = &Teller::PrintPlaced;
    dock->setWidget(canvas);
    window.statusBar();
    window.addDockWidget(Qt::RightDockWidgetArea, dock);

    vapp_library_browser::TLibraryBrowser navigator;
    navigator.Initialize(&frame, interp.get(), nullptr);
    navigator.AddCellViewListFilterType("All");
    for (const auto& [tab, text] : {std::pair(0, "Names"), std::pair(1, "Details"), std::pair(2, "Own")})
        navigator.SetCellTabsText(tab, text);
    navigator.SerializeSetup(false);
    navigator.SetCellListDefaultMenuCommand("place", vapp_library_browser::StyleFocusedLcv);
    Tcl_CreateObjCommand(interp.get(), "place", &PlaceCommand, canvas, nullptr);
    frame.navigator = &navigator;
    gRunWhenIdle(window, [&navigator] { navigator.Populate(); });
    std::unique_ptr<Teller> teller;
    if (isTelling) {
        teller = std::make_unique<Teller>(window, *canvas, navigator, interp.get());
        frame.onStatus = [](const QString& text) { Teller::Print(QStringLiteral("status ") + text); };
        // Also what is seen of an open menu.
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                         &window, [&teller] { teller->TellWhatIsSeen(); });
    }
    frame.ShowWindow(true);
    return QApplication::exec();
}
