/// @file
/// Lines about places and states, and the few orders.
#include "examples/drop-target/Teller.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMenu>
#include <QTextStream>
#include <QThread>
#include <iostream>
#include <string>

#include "vapp/browser/TLibraryView.h"
#include "vapp/celllist/TCellListView.h"
#include "vapp/toolkit/COleDataSource.h"

using namespace vapp_library_browser;

namespace {

constexpr int cnStandardInput = 0;

// One word of a line: what is in it stays in it.
QString Quoted(const CStringU& name) {
    return QLatin1Char('"') + QString::fromUtf8(name.Payload()) + QLatin1Char('"');
}

// The middle of something, on the screen.
QString PlaceOf(const QWidget& widget, const QPoint& point) {
    const QPoint place = widget.mapToGlobal(point);
    return QStringLiteral(" %1 %2").arg(place.x()).arg(place.y());
}

// The middles of the rows that a list of the navigator shows. A widget may outlive its list for a moment, and
// has no rows then.
QString PlacesOfRows(const QWidget& window, UINT list) {
    const auto* rows = window.findChild<QAbstractItemView*>(QStringLiteral("control%1").arg(list));
    if (rows == nullptr || rows->model() == nullptr) return {};
    QString places;
    for (int row = 0; row < rows->model()->rowCount(); ++row) {
        const QRect area = rows->visualRect(rows->model()->index(row, 0));
        places += PlaceOf(*rows->viewport(), area.center());
    }
    return places;
}

// The items of the menus that are open, and their middles.
QString PlacesOfItems() {
    QString places;
    for (const QWidget* const window : QApplication::topLevelWidgets()) {
        const auto* const menu = qobject_cast<const QMenu*>(window);
        if (menu == nullptr || !menu->isVisible()) continue;
        for (QAction* const item : menu->actions()) {
            const QString text = item->text().remove(QLatin1Char('&'));
            const QPoint middle = menu->actionGeometry(item).center();
            places += QStringLiteral(" \"%1\"").arg(text) + PlaceOf(*menu, middle);
        }
    }
    return places;
}

}  // namespace

Teller::Teller(QMainWindow& window, const Canvas& canvas, TLibraryBrowser& navigator, Tcl_Interp* interp)
    : m_window(window),
      m_canvas(canvas),
      m_navigator(navigator),
      m_interp(interp),
      m_orders(cnStandardInput, QSocketNotifier::Read) {
    COleDataSource::InstallDragRunner(
        [runner = COleDataSource::GetDragRunner()](COleDataSource& source, UINT effects, const CRect& start) {
            const UINT effect = runner(source, effects, start);
            Print(QStringLiteral("effect %1").arg(effect));
            return effect;
        });
    QObject::connect(&m_orders, &QSocketNotifier::activated, &m_orders, [this] { Obey(); });
}

void Teller::Print(const QString& line) {
    QTextStream(stdout) << line << Qt::endl;
}

void Teller::PrintPlaced(const Canvas::Placed& placed) {
    QStringList words{QStringLiteral("placed")};
    for (const CStringU* name : {&placed.cell.design, &placed.cell.library, &placed.cell.cell,
                                 &placed.cell.view, &placed.cell.sortKey})
        words.append(Quoted(*name));
    words.append(placed.cell.startedByRightButton ? QStringLiteral("right") : QStringLiteral("left"));
    Print(words.join(QLatin1Char(' ')));
}

void Teller::Tell(const QString& word, const QString& rest) {
    QString& told = m_told[word];
    if (told == rest) return;
    told = rest;
    Print(word + rest);
}

void Teller::TellWhatIsSeen() {
    Tell(QStringLiteral("libraries"), PlacesOfRows(m_window, TLibraryView::cnLibraryListId));
    Tell(QStringLiteral("places"),
         PlaceOf(m_canvas, m_canvas.rect().center()) + PlacesOfRows(m_window, TCellListView::cnReport));
    Tell(QStringLiteral("drag"), IsDragging() ? QStringLiteral(" begun") : QStringLiteral(" over"));
    const bool isOpen = QApplication::activePopupWidget() != nullptr;
    Tell(QStringLiteral("menu"), isOpen ? QStringLiteral(" open") : QStringLiteral(" closed"));
    Tell(QStringLiteral("items"), PlacesOfItems());
}

// The list may end while a row of it is dragged: the drag goes on, in a loop of events of its own.
bool Teller::IsDragging() const {
    const TCellListView* const view = m_navigator.GetCellListView();
    return view != nullptr ? view->GetReport().IsInDragDrop() : QThread::currentThread()->loopLevel() > 1;
}

void Teller::Obey() {
    std::string order;
    if (!std::getline(std::cin, order)) {
        m_orders.setEnabled(false);
        return;
    }
    if (order == "refresh") {
        Tcl_Eval(m_interp, "lappend cells {logic and2 symbol}");
        m_navigator.RequestCellListViewDelayedPopulate(UpdateAlways);
    } else if (order == "close") {
        m_navigator.DestroyWindow();
        Print(QStringLiteral("navigator closed"));
    } else if (order == "count") {
        Print(QStringLiteral("count %1").arg(m_canvas.GetPlaced().size()));
    }
}
