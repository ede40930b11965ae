// Linked into a host's program as it stands: when the window has come to rest, prints the rows of all lists
// that are shown, and ends the program.
#include <QAbstractEventDispatcher>
#include <QAbstractItemView>
#include <QApplication>
#include <QStringList>
#include <QTimer>
#include <cstdio>

namespace {

void PrintRows(const QAbstractItemModel& model) {
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < model.columnCount(); ++column) {
            const QString text = model.index(row, column).data().toString();
            if (!text.isEmpty()) texts << text;
        }
        std::puts(texts.join(',').toUtf8().constData());
    }
}

void PrintLists() {
    for (const QWidget* widget : QApplication::allWidgets()) {
        const auto* view = qobject_cast<const QAbstractItemView*>(widget);
        if (view != nullptr && view->isVisible() && view->model() != nullptr) PrintRows(*view->model());
    }
}

/// The program's own work comes with an idle loop. Two idle moments after the first one it has been done.
void Watch() {
    static int rounds = 0;
    auto* dispatcher = QAbstractEventDispatcher::instance();
    QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, qApp, [dispatcher] {
        if (++rounds == 3) {
            PrintLists();
            QApplication::quit();
        }
        dispatcher->wakeUp();
    });
}

void BeginToWatch() {
    QTimer::singleShot(0, qApp, &Watch);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(BeginToWatch)
