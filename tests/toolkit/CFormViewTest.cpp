/// @file
/// A view that takes places and texts from its template.
#include "vapp/toolkit/CFormView.h"

#include <gtest/gtest.h>

#include "vapp/text/Translate.h"
#include "vapp/toolkit/CEdit.h"
#include "vapp/toolkit/CStatic.h"

namespace {

constexpr DialogItem cnFormItems[] = {
    {10, {1, 2, 30, 40}, "__$$Translatable$$_Libraries"},
    {11, {5, 6, 70, 80}, ""},
};
const DialogTemplate cnDialog{387, {200, 100}, cnFormItems};

class Form : public CFormView {
public:
    Form() : CFormView(cnDialog) {}
    ~Form() override { DestroyWindow(); }

    CStatic first;
    CStatic second;
    CStatic unknown;

protected:
    void OnCreate() override {
        CreateItem(first, 10);
        CreateItem(first, 11);
        CreateItem(second, 11);
        CreateItem(unknown, 99);
    }
};

}  // namespace

TEST(CFormView, ControlsStandAsTheTemplateSays) {
    Form form;
    ASSERT_TRUE(form.Create(nullptr, 1));
    EXPECT_EQ(form.GetDlgItem(10), &form.first);
    EXPECT_EQ(form.first.GetRect(), CRect(1, 2, 30, 40));
    EXPECT_EQ(form.first.GetWindowText(), "Libraries");
    EXPECT_EQ(form.GetDlgItem(11), &form.second) << "a control that exists is not made again";
    EXPECT_EQ(form.GetTemplateRect(11), CRect(5, 6, 70, 80));
}

TEST(CFormView, ControlThatTheTemplateDoesNotKnowIsEmpty) {
    Form form;
    ASSERT_TRUE(form.Create(nullptr, 1));
    EXPECT_TRUE(form.unknown.IsWindow());
    EXPECT_EQ(form.unknown.GetRect(), CRect());
    EXPECT_EQ(form.GetTemplateRect(99), CRect());
}

TEST(CFormView, TextsOfControlsAreTranslated) {
    vlang::gSetTranslation("__$$Translatable$$_Libraries", "Bibliotheken");
    Form form;
    ASSERT_TRUE(form.Create(nullptr, 1));
    EXPECT_EQ(form.first.GetWindowText(), "Bibliotheken");
    vlang::gClearTranslations();
}

namespace {

/// A label and two fields.
class FocusForm : public CFormView {
public:
    FocusForm() : CFormView(cnDialog) {}
    ~FocusForm() override { DestroyWindow(); }

    CStatic label;
    CEdit first;
    CEdit second;

protected:
    void OnCreate() override {
        label.Create(this, 1);
        first.Create(this, 2);
        second.Create(this, 3);
    }
};

}  // namespace

TEST(CFormView, HandsTheKeyboardToTheControlThatHadItLastElseToTheFirstThatTakesIt) {
    FocusForm form;
    CWnd other;
    ASSERT_TRUE(form.Create(nullptr, 1));
    ASSERT_TRUE(other.Create(nullptr, 2));
    form.SetFocus();
    EXPECT_EQ(CWnd::GetFocus(), &form.first) << "a label does not take it";
    form.second.FocusedByPeer(true);
    other.SetFocus();
    form.FocusedByPeer(true);
    EXPECT_EQ(CWnd::GetFocus(), &form.second);
    other.SetFocus();
    form.second.EnableWindow(false);
    form.SetFocus();
    EXPECT_EQ(CWnd::GetFocus(), &form.first);
    form.first.ShowWindow(false);
    form.SetFocus();
    EXPECT_EQ(CWnd::GetFocus(), &form) << "none takes it";
}

TEST(CFormView, AControlThatHasGoneIsNotHandedTheKeyboard) {
    FocusForm form;
    ASSERT_TRUE(form.Create(nullptr, 1));
    form.second.SetFocus();
    form.second.DestroyWindow();
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
    form.SetFocus();
    EXPECT_EQ(CWnd::GetFocus(), &form.first);
    form.DestroyWindow();
    ASSERT_TRUE(form.Create(nullptr, 1));
    form.SetFocus();
    EXPECT_EQ(CWnd::GetFocus(), &form.first);
}

TEST(CFormView, ControlsEndWithTheirView) {
    Form form;
    ASSERT_TRUE(form.Create(nullptr, 1));
    form.DestroyWindow();
    EXPECT_FALSE(form.first.IsWindow());
    ASSERT_TRUE(form.Create(nullptr, 1));
    EXPECT_TRUE(form.first.IsWindow());
}
