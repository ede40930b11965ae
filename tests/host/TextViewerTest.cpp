/// The window of a view's text.

#include "host/TextViewer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTest>

#include "tests/host/TempFolder.h"

namespace navigator_test {
namespace {

using namespace navigator;

class TextViewerTest : public testing::Test {
protected:
    TextViewer& Open(const std::filesystem::path& file) {
        return TextViewer::Show({"d", "lib", "inv", "schematic"}, file, m_parent);
    }
    static QPlainTextEdit& TextIn(const TextViewer& viewer) {
        return *viewer.findChild<QPlainTextEdit*>(QStringLiteral("viewerText"));
    }
    static QString NoteIn(const TextViewer& viewer) {
        const auto* const note = viewer.findChild<QLabel*>(QStringLiteral("viewerNote"));
        return note->isHidden() ? QString() : note->text();
    }
    static void Find(TextViewer& viewer, const char* text) {
        auto* const field = viewer.findChild<QLineEdit*>(QStringLiteral("viewerFind"));
        field->setText(QLatin1String(text));
        QTest::keyClick(field, Qt::Key_Return);
    }

    TempFolder m_folder;
    QWidget m_parent;
};

TEST_F(TextViewerTest, ShowsTheFileAndLetsNobodyChangeIt) {
    TextViewer& viewer = Open(m_folder.Write("inv.sch", "v {}\nN 0 0\n"));
    EXPECT_EQ(viewer.windowTitle().toStdString(), "inv (schematic) - lib");
    EXPECT_EQ(TextIn(viewer).toPlainText().toStdString(), "v {}\nN 0 0\n");
    EXPECT_TRUE(TextIn(viewer).isReadOnly());
    QTest::keyClicks(&TextIn(viewer), QStringLiteral("abc"));
    EXPECT_EQ(TextIn(viewer).toPlainText().toStdString(), "v {}\nN 0 0\n");
    EXPECT_EQ(NoteIn(viewer).toStdString(), "");
    EXPECT_EQ(viewer.findChild<QLineEdit*>(QStringLiteral("viewerPath"))->text().toStdString(),
              (m_folder.Path() / "inv.sch").string());
}

TEST_F(TextViewerTest, AFileThatIsShownAlreadyIsReadAgainInItsWindow) {
    TextViewer& first = Open(m_folder.Write("inv.sch", "one"));
    TextViewer& other = Open(m_folder.Write("buf.sch", "two"));
    EXPECT_NE(&first, &other);
    m_folder.Write("inv.sch", "three");
    EXPECT_EQ(&Open(m_folder.Path() / "inv.sch"), &first);
    EXPECT_EQ(TextIn(first).toPlainText().toStdString(), "three");
}

TEST_F(TextViewerTest, TheSearchGoesRoundAndSaysWhatIsNotThere) {
    TextViewer& viewer = Open(m_folder.Write("inv.sch", "one two one"));
    Find(viewer, "one");
    EXPECT_EQ(TextIn(viewer).textCursor().selectionStart(), 0);
    Find(viewer, "one");
    EXPECT_EQ(TextIn(viewer).textCursor().selectionStart(), 8);
    Find(viewer, "one");
    EXPECT_EQ(TextIn(viewer).textCursor().selectionStart(), 0);
    Find(viewer, "three");
    EXPECT_EQ(TextIn(viewer).textCursor().selectionStart(), 0);
    EXPECT_EQ(NoteIn(viewer).toStdString(), "Not found: three");
    Find(viewer, "two");
    EXPECT_EQ(NoteIn(viewer).toStdString(), "");
}

TEST_F(TextViewerTest, AFileThatIsGoneIsSaid) {
    EXPECT_EQ(NoteIn(Open(m_folder.Path() / "none.sch")).toStdString(), "The file can't be read.");
}

TEST_F(TextViewerTest, AClosedWindowIsGone) {
    const QPointer<TextViewer> viewer = &Open(m_folder.Write("inv.sch", "one"));
    viewer->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(viewer.isNull());
}

}  // namespace
}  // namespace navigator_test
