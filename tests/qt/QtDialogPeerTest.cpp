/// @file
/// Dialogs as a user meets them: by keys and clicks while the program waits. Each test's user acts from a
/// timer, as the dialog has the event loop.
#include "toolkit/qt/QtDialogPeer.h"

#include <QAbstractButton>
#include <QDialog>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>

#include "tests/qt/QtTestFrame.h"
#include "vapp/browser/CExcludeDlg.h"
#include "vapp/browser/ExcludeViewNames.h"
#include "vapp/toolkit/CWinAppEx.h"

using vapp_library_browser::CExcludeDlg;
using vapp_library_browser::csDefaultExcludeViewNames;

namespace {

class QtDialogPeerTest : public testing::Test {
protected:
    void SetUp() override { app.SetMainWnd(&shown.frame); }

    // Shows the dialog, lets the user act, and gives the dialog's answer.
    template <typename User>
    int Ask(User user) {
        QTimer::singleShot(0, [&] {
            widget = gWidgetAs<QDialog>(dialog);
            ASSERT_NE(widget, nullptr);
            ASSERT_TRUE(QTest::qWaitForWindowExposed(widget));
            QApplication::setActiveWindow(widget);
            user();
        });
        return dialog.DoModal();
    }
    template <typename Widget>
    [[nodiscard]] Widget* Control(UINT id) {
        return gWidgetAs<Widget>(*dialog.GetDlgItem(id));
    }
    void Click(UINT id) { QTest::mouseClick(Control<QAbstractButton>(id), Qt::LeftButton); }
    void Type(const char* text) {
        auto* field = Control<QPlainTextEdit>(CExcludeDlg::cnEditId);
        field->selectAll();
        QTest::keyClicks(field, text);
    }
    [[nodiscard]] CString Setting() const {
        return app.GetProfileString("LibraryNavigator", "ExcludeViewNames", "none");
    }

    CWinAppEx app{"tool"};
    ShownFrame shown;
    CExcludeDlg dialog;
    QPointer<QDialog> widget;
};

}  // namespace

TEST_F(QtDialogPeerTest, StandsInFrontOfItsOwner) {
    EXPECT_EQ(Ask([this] {
                  EXPECT_TRUE(widget->isModal());
                  EXPECT_EQ(widget->parentWidget(), gWidgetOf(shown.frame));
                  EXPECT_EQ(widget->windowTitle(), "Exclude These View Names");
                  EXPECT_EQ(widget->size(), QSize(400, 220));
                  EXPECT_EQ(QApplication::focusWidget(), Control<QWidget>(CExcludeDlg::cnEditId));
                  Click(IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_TRUE(widget == nullptr || !widget->isVisible());
    EXPECT_TRUE(gWidgetOf(shown.frame)->isVisible());
}

TEST_F(QtDialogPeerTest, TypedNamesAreKeptByOk) {
    EXPECT_EQ(Ask([this] {
                  Type("layout; LVS");
                  Click(IDOK);
              }),
              IDOK);
    EXPECT_EQ(Setting(), CString("layout; LVS"));
    EXPECT_EQ(dialog.GetExcludeViews(), CString("layout; LVS"));
}

TEST_F(QtDialogPeerTest, AnEmptiedFieldIsKeptAsNothing) {
    EXPECT_EQ(Ask([this] {
                  auto* field = Control<QPlainTextEdit>(CExcludeDlg::cnEditId);
                  field->selectAll();
                  QTest::keyClick(field, Qt::Key_Delete);
                  Click(IDOK);
              }),
              IDOK);
    EXPECT_EQ(Setting(), CString(""));
}

TEST_F(QtDialogPeerTest, ResetShowsTheDefaultAndCancelForgetsIt) {
    app.WriteProfileString("LibraryNavigator", "ExcludeViewNames", "mine");
    EXPECT_EQ(Ask([this] {
                  EXPECT_EQ(Control<QPlainTextEdit>(CExcludeDlg::cnEditId)->toPlainText(), "mine");
                  Click(CExcludeDlg::cnResetId);
                  EXPECT_EQ(Control<QPlainTextEdit>(CExcludeDlg::cnEditId)->toPlainText(),
                            csDefaultExcludeViewNames);
                  EXPECT_TRUE(widget->isVisible());
                  Click(IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_EQ(Setting(), CString("mine"));
}

TEST_F(QtDialogPeerTest, EscapeAndTheCloseButtonCancel) {
    EXPECT_EQ(Ask([this] {
                  Type("other");
                  QTest::keyClick(widget, Qt::Key_Escape);
              }),
              IDCANCEL);
    EXPECT_EQ(Ask([this] { widget->close(); }), IDCANCEL);
    EXPECT_EQ(Setting(), CString("none"));
}

TEST_F(QtDialogPeerTest, EnterOutsideOfTheTextIsOk) {
    EXPECT_EQ(Ask([this] {
                  Type("other");
                  QTest::keyClick(widget, Qt::Key_Return);
              }),
              IDOK);
    EXPECT_EQ(Setting(), CString("other"));
}

TEST_F(QtDialogPeerTest, TheKeyboardWalksThroughItsControls) {
    EXPECT_EQ(Ask([this] {
                  for (const UINT id : {CExcludeDlg::cnResetId, static_cast<UINT>(IDOK),
                                        static_cast<UINT>(IDCANCEL), CExcludeDlg::cnEditId}) {
                      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                      EXPECT_EQ(QApplication::focusWidget(), Control<QWidget>(id)) << id;
                  }
                  Control<QWidget>(IDCANCEL)->setFocus();
                  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
              }),
              IDCANCEL);
}

TEST_F(QtDialogPeerTest, LargerWindowsGiveTheirRoomToTheText) {
    EXPECT_EQ(Ask([this] {
                  widget->resize(500, 300);
                  QApplication::processEvents();
                  EXPECT_EQ(Control<QWidget>(CExcludeDlg::cnEditId)->geometry(), QRect(12, 36, 476, 212));
                  widget->resize(10, 10);
                  QApplication::processEvents();
                  EXPECT_EQ(widget->size(), QSize(400, 220)) << "no smaller than its template";
                  Click(IDCANCEL);
              }),
              IDCANCEL);
}

TEST_F(QtDialogPeerTest, TheEndOfItsWindowEndsTheWaiting) {
    EXPECT_EQ(Ask([this] { dialog.DestroyWindow(); }), IDCANCEL);
    EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(QtDialogPeerTest, TheEndOfItsOwnerEndsTheWaiting) {
    EXPECT_EQ(Ask([this] { shown.frame.DestroyWindow(); }), IDCANCEL);
    EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(QtDialogPeerTest, WorksWithoutAnOwner) {
    app.SetMainWnd(nullptr);
    EXPECT_EQ(Ask([this] {
                  EXPECT_EQ(widget->parentWidget(), nullptr);
                  Click(IDOK);
              }),
              IDOK);
}

TEST_F(QtDialogPeerTest, IsPaintedWithAllItsParts) {
    EXPECT_EQ(Ask([this] {
                  const QImage picture = gPictureOf(*widget);
                  const QString file = qEnvironmentVariable("VAPP_TEST_PICTURES");
                  if (!file.isEmpty()) picture.save(file + QStringLiteral("/exclude-views.png"));
                  // The field is light on the window's grey, and has dark letters in its first line.
                  const QRgb field = picture.pixel(200, 150);
                  EXPECT_NE(field, picture.pixel(200, 195));
                  int inked = 0;
                  for (int x = 14; x < 386; ++x) {
                      for (int y = 38; y < 56; ++y)
                          inked += qGray(picture.pixel(x, y)) + 80 < qGray(field) ? 1 : 0;
                  }
                  EXPECT_GT(inked, 100);
                  Click(IDCANCEL);
              }),
              IDCANCEL);
}
