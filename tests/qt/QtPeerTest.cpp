/// @file
/// What all peers share: place, visibility, names, focus, and the two orders in which control and widget end.
#include "toolkit/qt/QtPeer.h"

#include <QLineEdit>
#include <QTest>
#include <memory>

#include "tests/qt/QtTestFrame.h"
#include "vapp/toolkit/CButton.h"
#include "vapp/toolkit/CComboBox.h"
#include "vapp/toolkit/CEdit.h"
#include "vapp/toolkit/CStatic.h"
#include "vapp/toolkit/CTabCtrl.h"

namespace {

// One of each simple control, on a form of its own.
struct AllControls {
    ShownFrame shown;
    CStatic text;
    CStatic picture{CStatic::TKind::Picture};
    CStatic border{CStatic::TKind::Frame};
    CEdit edit;
    CButton button;
    CTabCtrl tabs;
    CComboBox combo;

    AllControls() {
        UINT id = 100;
        for (CWnd* control : All())
            control->Create(&shown.form, ++id, {5, 5, 65, 29});
    }
    [[nodiscard]] std::vector<CWnd*> All() {
        return {&text, &picture, &border, &edit, &button, &tabs, &combo};
    }
};

}  // namespace

TEST(QtPeer, WidgetStandsInTheParentsWhereTheControlIs) {
    AllControls controls;
    UINT id = 100;
    for (CWnd* control : controls.All()) {
        const QWidget* widget = gWidgetOf(*control);
        ASSERT_NE(widget, nullptr);
        EXPECT_EQ(widget->parentWidget(), gWidgetOf(controls.shown.form));
        EXPECT_EQ(widget->geometry(), QRect(5, 5, 60, 24));
        EXPECT_EQ(widget->objectName(), QStringLiteral("control%1").arg(++id));
        control->MoveWindow({10, 20, 110, 50});
        EXPECT_EQ(widget->geometry(), QRect(10, 20, 100, 30));
    }
}

TEST(QtPeer, HopelessRectanglesBecomeNoSize) {
    ShownFrame shown;
    CEdit edit;
    ASSERT_TRUE(edit.Create(&shown.form, 1, {50, 50, 10, 10}));
    EXPECT_TRUE(gWidgetOf(edit)->size().isEmpty());
    EXPECT_EQ(edit.GetRect(), CRect(50, 50, 10, 10)) << "the control keeps what it was given";
    edit.MoveWindow({0, 0, 0x7FFFFFFF, 0x7FFFFFFF});
    EXPECT_EQ(edit.GetRect(), CRect(0, 0, 0x7FFFFFFF, 0x7FFFFFFF));
}

TEST(QtPeer, VisibleAndEnabledFollowTheControl) {
    AllControls controls;
    for (CWnd* control : controls.All()) {
        const QWidget* widget = gWidgetOf(*control);
        EXPECT_TRUE(widget->isVisible());
        control->ShowWindow(false);
        EXPECT_FALSE(widget->isVisible());
        control->ShowWindow(true);
        EXPECT_TRUE(widget->isVisible());
        control->EnableWindow(false);
        EXPECT_FALSE(widget->isEnabled());
        control->EnableWindow(true);
        EXPECT_TRUE(widget->isEnabled());
    }
}

TEST(QtPeer, AccessibleNameIsTheOneGivenOrTheText) {
    ShownFrame shown;
    CEdit edit;
    ASSERT_TRUE(edit.Create(&shown.form, 1, {0, 0, 90, 20}));
    edit.SetWindowText("nand");
    EXPECT_EQ(gWidgetOf(edit)->accessibleName(), "nand");
    edit.SetAccessibleName("Filter cells");
    EXPECT_EQ(gWidgetOf(edit)->accessibleName(), "Filter cells");
}

TEST(QtPeer, FocusGoesBothWays) {
    ShownFrame shown;
    CEdit first;
    CEdit second;
    ASSERT_TRUE(first.Create(&shown.form, 1, {0, 0, 90, 20}));
    ASSERT_TRUE(second.Create(&shown.form, 2, {0, 30, 90, 50}));
    first.SetFocus();
    EXPECT_TRUE(gWidgetOf(first)->hasFocus());
    EXPECT_EQ(CWnd::GetFocus(), &first);
    QTest::mouseClick(gWidgetOf(second), Qt::LeftButton);
    EXPECT_EQ(CWnd::GetFocus(), &second);
    gWidgetOf(second)->clearFocus();
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST(QtPeer, ControlThatEndsTakesItsWidgetAlong) {
    ShownFrame shown;
    auto edit = std::make_unique<CEdit>();
    ASSERT_TRUE(edit->Create(&shown.form, 1, {0, 0, 90, 20}));
    const QPointer<QWidget> widget = gWidgetOf(*edit);
    ASSERT_FALSE(widget.isNull());
    edit.reset();
    EXPECT_TRUE(widget.isNull());
}

TEST(QtPeer, ControlOutlivesItsWidget) {
    AllControls controls;
    delete gWidgetOf(controls.shown.frame);
    for (CWnd* control : controls.All()) {
        EXPECT_EQ(gWidgetOf(*control), nullptr);
        control->SetWindowText("still here");
        control->MoveWindow({1, 2, 30, 40});
        control->ShowWindow(false);
        control->EnableWindow(false);
        control->SetFocus();
        control->Invalidate();
        control->UpdateWindow();
        EXPECT_EQ(control->GetWindowText(), "still here");
    }
    controls.tabs.InsertItem(0, "tab");
    controls.tabs.SetCurSel(0);
    controls.combo.AddString(CStringU("item"));
    controls.combo.SetCurSel(0);
    controls.edit.SetCueText("cue");
    controls.button.SetImageResource(562);
    controls.picture.SetImage(nullptr);
    controls.shown.frame.SetWindowText("title");
    controls.shown.frame.MoveWindow({0, 0, 50, 50});
    controls.shown.frame.ShowWindow(false);
}

TEST(QtPeer, ControlCreatedUnderADeadWidgetStaysWithoutHarm) {
    ShownFrame shown;
    delete gWidgetOf(shown.form);
    CEdit edit;
    ASSERT_TRUE(edit.Create(&shown.form, 1, {0, 0, 90, 20}));
    EXPECT_FALSE(gWidgetOf(edit) != nullptr && gWidgetOf(edit)->isVisible() && gWidgetOf(edit)->isWindow())
        << "no window of its own comes up";
}

TEST(QtPeer, WindowCanBeCreatedAgain) {
    ShownFrame shown;
    CEdit edit;
    ASSERT_TRUE(edit.Create(&shown.form, 1, {0, 0, 90, 20}));
    edit.SetWindowText("kept");
    edit.DestroyWindow();
    EXPECT_EQ(gWidgetOf(edit), nullptr);
    ASSERT_TRUE(edit.Create(&shown.form, 2, {0, 0, 90, 20}));
    EXPECT_EQ(gWidgetAs<QLineEdit>(edit)->text(), "kept");
}

TEST(QtPeer, NothingChangesOnScreenWhileRedrawIsOff) {
    ShownFrame shown;
    CEdit edit;
    ASSERT_TRUE(edit.Create(&shown.form, 1, {0, 0, 90, 20}));
    edit.SetRedraw(false);
    edit.SetWindowText("later");
    EXPECT_EQ(gWidgetAs<QLineEdit>(edit)->text(), "");
    edit.SetRedraw(true);
    EXPECT_EQ(gWidgetAs<QLineEdit>(edit)->text(), "later");
}

TEST(QtPeer, PointerIsWhereTheScreenSaysItIs) {
    QCursor::setPos(37, 41);
    EXPECT_EQ(PeerFactory::Installed()->CursorPosition(), (CPoint{37, 41}));
}
