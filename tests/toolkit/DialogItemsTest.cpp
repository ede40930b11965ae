/// @file
/// Controls by a template, in any window.
#include "toolkit/DialogItems.h"

#include <gtest/gtest.h>

#include <array>

#include "vapp/text/Translate.h"

namespace {

constexpr std::array<DialogItem, 2> cnTwoItems = {{
    {7, {1, 2, 30, 40}, "__$$Translatable$$_Key"},
    {8, {5, 6, 70, 80}, "plain"},
}};
constexpr DialogTemplate cnTwoItemTemplate = {100, {90, 90}, cnTwoItems};

}  // namespace

TEST(DialogItems, AreFoundByTheirIdentifier) {
    ASSERT_NE(gFindDialogItem(cnTwoItemTemplate, 8), nullptr);
    EXPECT_EQ(gFindDialogItem(cnTwoItemTemplate, 8)->rect, CRect(5, 6, 70, 80));
    EXPECT_EQ(gFindDialogItem(cnTwoItemTemplate, 9), nullptr);
}

TEST(DialogItems, AreMadeAtTheirPlaceWithTheirText) {
    vlang::gSetTranslation("__$$Translatable$$_Key", "word");
    CWnd parent;
    ASSERT_TRUE(parent.Create(nullptr, 1));
    CWnd first;
    CWnd second;
    CWnd unknown;
    gCreateDialogItem(parent, cnTwoItemTemplate, first, 7);
    gCreateDialogItem(parent, cnTwoItemTemplate, second, 8);
    gCreateDialogItem(parent, cnTwoItemTemplate, unknown, 9);
    EXPECT_EQ(parent.GetDlgItem(7), &first);
    EXPECT_EQ(first.GetRect(), CRect(1, 2, 30, 40));
    EXPECT_EQ(first.GetWindowText(), CString("word"));
    EXPECT_EQ(second.GetWindowText(), CString("plain"));
    EXPECT_TRUE(unknown.IsWindow());
    EXPECT_EQ(unknown.GetRect(), CRect());
    vlang::gClearTranslations();
}

TEST(DialogItems, AnExistingControlIsLeftAlone) {
    CWnd parent;
    ASSERT_TRUE(parent.Create(nullptr, 1));
    CWnd control;
    control.SetWindowText("own");
    ASSERT_TRUE(control.Create(&parent, 3));
    gCreateDialogItem(parent, cnTwoItemTemplate, control, 8);
    EXPECT_EQ(control.GetDlgCtrlID(), 3u);
    EXPECT_EQ(control.GetWindowText(), CString("own"));
}
