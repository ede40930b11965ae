/// @file
/// What a test that moves the real pointer has to know of `drop-target`, and what it can have done meanwhile.
/// No host needs this.
#pragma once

#include <tcl.h>

#include <QMainWindow>
#include <QMap>
#include <QSocketNotifier>
#include <QString>

#include "examples/drop-target/Canvas.h"
#include "vapp/browser/TLibraryBrowser.h"

/// Tells, a line each on the standard output, where the canvas, the libraries, the rows and the items of open
/// menus are, when a drag or a menu begins and ends, and which effect a drag had. Takes orders, a line each
/// on the standard input: `refresh` gives the design a cell more and fetches the rows anew, `close` ends the
/// navigator, `count` tells how many cells are placed.
class Teller {
public:
    /// All must outlive it.
    Teller(QMainWindow& window, const Canvas& canvas, vapp_library_browser::TLibraryBrowser& navigator,
           Tcl_Interp* interp);

    /// What is another than it was when it was told last.
    void TellWhatIsSeen();
    static void Print(const QString& line);
    /// The six fields of a cell that has just been placed.
    static void PrintPlaced(const Canvas::Placed& placed);

private:
    void Tell(const QString& word, const QString& rest);
    void Obey();
    [[nodiscard]] bool IsDragging() const;

    QMainWindow& m_window;
    const Canvas& m_canvas;
    vapp_library_browser::TLibraryBrowser& m_navigator;
    Tcl_Interp* m_interp;
    QSocketNotifier m_orders;
    QMap<QString, QString> m_told;
};
