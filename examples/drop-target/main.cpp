/// @file
/// A navigator beside a canvas: drag a cell onto the canvas, and it is placed there; its menu and a double
/// click place it in the corner. Dragged into another program, it is its three names.
///
/// Each cell that is placed is told on the standard output. With `--tell` the program tells as well where the
/// canvas and the rows are on the screen, when a drag or a menu begins and ends, and the text of the status
/// line, for a test that moves the real pointer.
#include <tcl.h>

#include <QAbstractEventDispatcher>
#include <QAbstractItemView>
#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMap>
#include <QStatusBar>
#include <QTextStream>
#include <memory>

#include "examples/drop-target/Canvas.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CWinAppEx.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"

namespace {

constexpr char csDesign[] = R"tcl(
    proc database {what args} {
        set cells {{logic inv symbol} {logic nand2 symbol} {logic nor2 symbol} {{my io} {pad in} layout}}
        switch $what {
            all_libs  { return {{chip {logic /libs/logic} {{my io} /libs/io}}} }
            top_level { return logic }
            cells     { return [expr {"-count" in $args ? [llength $cells] : $cells}] }
            default   { return 0 }
        }
    }
    proc librarynavigator args {}
    proc logaction line { eval $line }
    proc place_all {design -lcvs cells} { foreach cell $cells { place $design {*}$cell } }
)tcl";

void Print(const QString& line) {
    QTextStream(stdout) << line << Qt::endl;
}

// Answers the navigator's questions: what its menu holds, and where its status text is shown.
class Frame final : public CFrameWnd {
public:
    ~Frame() override { DestroyWindow(); }
    vapp_library_browser::TLibraryBrowser* navigator = nullptr;
    bool isTelling = false;

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
            if (isTelling) Print(QStringLiteral("status ") + shown);
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

// The command `place DESIGN LIBRARY CELL VIEW`.
int PlaceCommand(ClientData canvas, Tcl_Interp* /*interp*/, int count, Tcl_Obj* const words[]) {
    if (count != 5) return TCL_ERROR;
    const auto name = [words](int at) { return CStringU(Tcl_GetString(words[at]), TextEncoding::Utf8Auto); };
    static_cast<Canvas*>(canvas)->Place({20, 20}, {name(1), {name(2), name(3), name(4)}, false});
    return TCL_OK;
}

// One word of a line: what is in it stays in it.
QString Quoted(const CStringU& name) {
    return QLatin1Char('"') + QString::fromUtf8(name.Payload()) + QLatin1Char('"');
}

void PrintPlaced(const Canvas::Placed& placed) {
    QStringList words{QStringLiteral("placed")};
    for (const CStringU* name : {&placed.cell.design, &placed.cell.library, &placed.cell.cell,
                                 &placed.cell.view, &placed.cell.sortKey})
        words.append(Quoted(*name));
    words.append(placed.cell.startedByRightButton ? QStringLiteral("right") : QStringLiteral("left"));
    Print(words.join(QLatin1Char(' ')));
}

// The middle of something, on the screen.
QString PlaceOf(const QWidget& widget, const QPoint& point) {
    const QPoint place = widget.mapToGlobal(point);
    return QStringLiteral(" %1 %2").arg(place.x()).arg(place.y());
}

// The middles of the rows that a list of the navigator shows.
QString PlacesOfRows(const QWidget& window, UINT list) {
    QString places;
    const auto* rows = window.findChild<QAbstractItemView*>(QStringLiteral("control%1").arg(list));
    for (int row = 0; rows != nullptr && row < rows->model()->rowCount(); ++row) {
        const QRect area = rows->visualRect(rows->model()->index(row, 0));
        places += PlaceOf(*rows->viewport(), area.center());
    }
    return places;
}

// Tells a line whenever it is another one than before.
class Teller {
public:
    void Tell(const QString& word, const QString& rest) {
        QString& told = m_told[word];
        if (told == rest) return;
        told = rest;
        Print(word + rest);
    }

private:
    QMap<QString, QString> m_told;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    QtPeerFactory::Install();
    Tcl_FindExecutable(argv[0]);
    const std::unique_ptr<Tcl_Interp, decltype(&Tcl_DeleteInterp)> interp(Tcl_CreateInterp(),
                                                                          &Tcl_DeleteInterp);
    if (Tcl_Eval(interp.get(), csDesign) != TCL_OK) return 1;

    vapp::gSetTclSanitizeInputUPointer(&OneWord);
    CWinAppEx app("drop-target");
    Frame frame;
    frame.CreateFrame("Cells to place", CRect(0, 0, 860, 640));
    app.SetMainWnd(&frame);
    auto& window = dynamic_cast<QMainWindow&>(*gWidgetOf(frame));
    auto* const dock = new QDockWidget(QStringLiteral("Canvas"), &window);
    auto* const canvas = new Canvas(dock);
    canvas->onPlaced = &PrintPlaced;
    dock->setWidget(canvas);
    window.statusBar();
    window.addDockWidget(Qt::RightDockWidgetArea, dock);

    vapp_library_browser::TLibraryBrowser navigator;
    navigator.Initialize(&frame, interp.get(), nullptr);
    navigator.SerializeSetup(false);
    navigator.SetCellListDefaultMenuCommand("place", vapp_library_browser::StyleFocusedLcv);
    Tcl_CreateObjCommand(interp.get(), "place", &PlaceCommand, canvas, nullptr);
    frame.navigator = &navigator;
    frame.isTelling = QApplication::arguments().contains(QStringLiteral("--tell"));
    Teller teller;
    QObject::connect(
        QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &window, [&] {
            navigator.Populate();
            if (!frame.isTelling) return;
            using namespace vapp_library_browser;
            teller.Tell(QStringLiteral("libraries"), PlacesOfRows(window, TLibraryView::cnLibraryListId));
            teller.Tell(QStringLiteral("places"), PlaceOf(*canvas, canvas->rect().center()) +
                                                      PlacesOfRows(window, TCellListView::cnReport));
            const bool isDragging = navigator.GetCellListView()->GetReport().IsInDragDrop();
            teller.Tell(QStringLiteral("drag"),
                        isDragging ? QStringLiteral(" begun") : QStringLiteral(" over"));
            const bool isOpen = QApplication::activePopupWidget() != nullptr;
            teller.Tell(QStringLiteral("menu"), isOpen ? QStringLiteral(" open") : QStringLiteral(" closed"));
        });
    frame.ShowWindow(true);
    return QApplication::exec();
}
