/// @file
/// Another program, which knows nothing of design data: a field that takes any text. It tells where the field
/// is, and what has come into it.
#include <QApplication>
#include <QDragMoveEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextStream>
#include <QTimer>

namespace {

void Print(const QString& line) {
    QTextStream(stdout) << line << Qt::endl;
}

class Field final : public QPlainTextEdit {
protected:
    // The source knows that it may drop here once our answer has gone out to it.
    void dragMoveEvent(QDragMoveEvent* event) override {
        QPlainTextEdit::dragMoveEvent(event);
        QTimer::singleShot(0, this, [taken = event->isAccepted()] {
            QGuiApplication::sync();
            Print(taken ? QStringLiteral("ready yes") : QStringLiteral("ready no"));
        });
    }
    void insertFromMimeData(const QMimeData* source) override {
        Print(QStringLiteral("formats ") + source->formats().join(QLatin1Char(' ')));
        for (const QString& format : source->formats()) {
            if (format.startsWith(QLatin1String("Vornex")))
                Print(QStringLiteral("bytes %1").arg(source->data(format).size()));
        }
        QPlainTextEdit::insertFromMimeData(source);
        Print(QStringLiteral("text \"%1\"").arg(toPlainText()));
    }
};

}  // namespace

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    Field field;
    field.setGeometry(900, 100, 300, 200);
    field.show();
    QTimer::singleShot(0, &field, [&field] {
        const QPoint place = field.viewport()->mapToGlobal(field.viewport()->rect().center());
        Print(QStringLiteral("places %1 %2").arg(place.x()).arg(place.y()));
    });
    return QApplication::exec();
}
