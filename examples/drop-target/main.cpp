/// @file
/// A navigator beside a canvas: drag a cell onto the canvas, and it is placed there. Dragged into another
/// program, it is its three names.
///
/// Each drop is told on the standard output. With `--tell` the program tells as well where the canvas and the
/// rows are on the screen, and when a drag begins and ends, for a test that moves the real pointer.
#include <tcl.h>

#include <QAbstractEventDispatcher>
#include <QAbstractItemView>
#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QTextStream>
#include <memory>

#include "examples/drop-target/Canvas.h"
#include "vapp/browser/TLibraryBrowser.h"
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
)tcl";

class Frame final : public CFrameWnd {
public:
    ~Frame() override { DestroyWindow(); }
};

void Print(const QString& line) {
    QTextStream(stdout) << line << Qt::endl;
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

/// Tells the middle of the canvas, and then of each row that is shown.
QString PlacesOf(const QWidget& window, const Canvas& canvas) {
    QString places = PlaceOf(canvas, canvas.rect().center());
    const UINT id = vapp_library_browser::TCellListView::cnReport;
    const auto* rows = window.findChild<QAbstractItemView*>(QStringLiteral("control%1").arg(id));
    for (int row = 0; rows != nullptr && row < rows->model()->rowCount(); ++row) {
        const QRect area = rows->visualRect(rows->model()->index(row, 0));
        places += PlaceOf(*rows->viewport(), area.center());
    }
    return places;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    QtPeerFactory::Install();
    Tcl_FindExecutable(argv[0]);
    const std::unique_ptr<Tcl_Interp, decltype(&Tcl_DeleteInterp)> interp(Tcl_CreateInterp(),
                                                                          &Tcl_DeleteInterp);
    if (Tcl_Eval(interp.get(), csDesign) != TCL_OK) return 1;

    CWinAppEx app("drop-target");
    Frame frame;
    frame.CreateFrame("Cells to place", CRect(0, 0, 860, 640));
    app.SetMainWnd(&frame);
    auto& window = dynamic_cast<QMainWindow&>(*gWidgetOf(frame));
    auto* const dock = new QDockWidget(QStringLiteral("Canvas"), &window);
    auto* const canvas = new Canvas(dock);
    canvas->onPlaced = &PrintPlaced;
    dock->setWidget(canvas);
    window.addDockWidget(Qt::RightDockWidgetArea, dock);

    vapp_library_browser::TLibraryBrowser navigator;
    navigator.Initialize(&frame, interp.get(), nullptr);
    navigator.SerializeSetup(false);
    const bool isTelling = QApplication::arguments().contains(QStringLiteral("--tell"));
    QString told;
    bool wasDragging = false;
    QObject::connect(
        QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &window, [&] {
            navigator.Populate();
            if (!isTelling) return;
            const QString places = PlacesOf(window, *canvas);
            if (places != told) Print(QStringLiteral("places") + (told = places));
            const bool isDragging = navigator.GetCellListView()->GetReport().IsInDragDrop();
            if (isDragging == wasDragging) return;
            wasDragging = isDragging;
            Print(QStringLiteral("drag ") + (isDragging ? QStringLiteral("begun") : QStringLiteral("over")));
        });
    frame.ShowWindow(true);
    return QApplication::exec();
}
