/// @file
/// The dialog of the excluded views, without a screen: its steps, and what is stored when.
#include "vapp/browser/CExcludeDlg.h"

#include <gtest/gtest.h>

#include "vapp/browser/ExcludeViewNames.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/text/ActiveCodePage.h"
#include "vapp/text/Translate.h"
#include "vapp/toolkit/CWinAppEx.h"

using namespace vapp_library_browser;

class CExcludeDlgTest : public testing::Test {
protected:
    [[nodiscard]] CEdit& Edit() { return dynamic_cast<CEdit&>(*m_dialog.GetDlgItem(CExcludeDlg::cnEditId)); }
    void Press(UINT id) { dynamic_cast<CButton&>(*m_dialog.GetDlgItem(id)).Click(); }
    [[nodiscard]] CString Setting() const {
        return m_app.GetProfileString("LibraryNavigator", "ExcludeViewNames", "none");
    }

    CWinAppEx m_app{"tool"};
    CExcludeDlg m_dialog;
};

TEST_F(CExcludeDlgTest, HasTheControlsOfItsTemplate) {
    ASSERT_TRUE(m_dialog.Open());
    EXPECT_EQ(m_dialog.GetDlgCtrlID(), 4004u);
    EXPECT_EQ(m_dialog.GetWindowText(), CString("Exclude These View Names"));
    EXPECT_TRUE(Edit().IsMultiLine());
    EXPECT_EQ(CWnd::GetFocus(), &Edit()) << "the user wants to edit";
    EXPECT_EQ(m_dialog.GetDlgItem(CExcludeDlg::cnLabelId)->GetWindowText(),
              CString("View names to filter out of cell view list:"));
    EXPECT_EQ(m_dialog.GetDlgItem(4001)->GetWindowText(), CString("Reset to default"));
    EXPECT_EQ(m_dialog.GetDlgItem(IDOK)->GetWindowText(), CString("OK"));
    EXPECT_EQ(m_dialog.GetDlgItem(IDCANCEL)->GetWindowText(), CString("Cancel"));
}

TEST_F(CExcludeDlgTest, ItsTextsAreTranslated) {
    vlang::gSetTranslation("__$$Translatable$$_Reset to default",
                           "Zur\xC3\xBC"
                           "ck");
    gSetActiveCodePage(1252);
    ASSERT_TRUE(m_dialog.Open());
    EXPECT_EQ(m_dialog.GetDlgItem(CExcludeDlg::cnResetId)->GetWindowText(), CString("Zur\xFC"
                                                                                    "ck"));
    gSetActiveCodePage(0);
    vlang::gClearTranslations();
}

TEST_F(CExcludeDlgTest, AFirstStartShowsTheDefault) {
    ASSERT_TRUE(m_dialog.Open());
    EXPECT_EQ(Edit().GetWindowText(),
              CString("ads; ARVance_MS; ams; auCdl; auLvs; orvo; orvoD; hspiceD; hspiceS; ivpcell; spectre; "
                      "symbol_xform"));
    EXPECT_EQ(m_dialog.GetExcludeViews(), Edit().GetWindowText());
    EXPECT_EQ(Setting(), CString("none")) << "reading stores nothing";
}

TEST_F(CExcludeDlgTest, OkStoresTheTextAsItStands) {
    ASSERT_TRUE(m_dialog.Open());
    Edit().EditedByUser("  layout;;\nLVS , {x}  ");
    Press(IDOK);
    EXPECT_FALSE(m_dialog.IsWaiting());
    EXPECT_EQ(m_dialog.GetResult(), IDOK);
    EXPECT_EQ(Setting(), CString("  layout;;\nLVS , {x}  "));
    EXPECT_EQ(m_dialog.GetExcludeViews(), Setting());
    EXPECT_EQ(TLibraryBrowser().GetExcludeViewNames(), Setting());
}

TEST_F(CExcludeDlgTest, AnEmptiedTextIsASettingAndNotTheDefault) {
    ASSERT_TRUE(m_dialog.Open());
    Edit().EditedByUser("");
    Press(IDOK);
    EXPECT_EQ(Setting(), CString(""));
    EXPECT_TRUE(TLibraryBrowser().GetExcludeViewNames().IsEmpty());
    CExcludeDlg next;
    ASSERT_TRUE(next.Open());
    EXPECT_TRUE(next.GetExcludeViews().IsEmpty());
}

TEST_F(CExcludeDlgTest, ResetShowsTheDefaultAndStoresNothing) {
    m_app.WriteProfileString("LibraryNavigator", "ExcludeViewNames", "mine");
    ASSERT_TRUE(m_dialog.Open());
    EXPECT_EQ(Edit().GetWindowText(), CString("mine"));
    Press(CExcludeDlg::cnResetId);
    EXPECT_TRUE(m_dialog.IsWaiting());
    EXPECT_EQ(Edit().GetWindowText(), CString(csDefaultExcludeViewNames));
    EXPECT_EQ(m_dialog.GetExcludeViews(), CString(csDefaultExcludeViewNames));
    EXPECT_EQ(Setting(), CString("mine"));
    Press(IDCANCEL);
    EXPECT_EQ(m_dialog.GetResult(), IDCANCEL);
    EXPECT_EQ(Setting(), CString("mine"));
}

TEST_F(CExcludeDlgTest, ResetThenOkStoresTheDefault) {
    m_app.WriteProfileString("LibraryNavigator", "ExcludeViewNames", "mine");
    ASSERT_TRUE(m_dialog.Open());
    Press(CExcludeDlg::cnResetId);
    Press(IDOK);
    EXPECT_EQ(Setting(), CString(csDefaultExcludeViewNames));
}

TEST_F(CExcludeDlgTest, CancelStoresNothing) {
    ASSERT_TRUE(m_dialog.Open());
    Edit().EditedByUser("other");
    Press(IDCANCEL);
    EXPECT_EQ(Setting(), CString("none"));
}

TEST_F(CExcludeDlgTest, WithoutAScreenNobodyAnswersAndNothingIsStored) {
    EXPECT_EQ(m_dialog.DoModal(), IDCANCEL);
    EXPECT_FALSE(m_dialog.IsWindow());
    EXPECT_EQ(Setting(), CString("none"));
}

TEST_F(CExcludeDlgTest, OtherLettersAreUtf8InTheSettingAndNativeInTheControl) {
    gSetActiveCodePage(1252);
    m_app.WriteProfileString("LibraryNavigator", "ExcludeViewNames", "verst\xC3\xA4rker");
    ASSERT_TRUE(m_dialog.Open());
    EXPECT_EQ(Edit().GetWindowText(), CString("verst\xE4rker"));
    Edit().EditedByUser("gro\xDF");
    Press(IDOK);
    gSetActiveCodePage(0);
    EXPECT_EQ(Setting(), CString("gro\xC3\x9F"));
}

TEST_F(CExcludeDlgTest, ATextThatTheCodePageDoesNotHaveIsKeptUnlessItIsEdited) {
    gSetActiveCodePage(1252);
    m_app.WriteProfileString("LibraryNavigator", "ExcludeViewNames", "\xE4\xB8\xAD; x");
    ASSERT_TRUE(m_dialog.Open());
    EXPECT_EQ(Edit().GetWindowText(), CString("?; x"));
    Press(IDOK);
    EXPECT_EQ(Setting(), CString("\xE4\xB8\xAD; x"));
    CExcludeDlg again;
    ASSERT_TRUE(again.Open());
    dynamic_cast<CEdit&>(*again.GetDlgItem(CExcludeDlg::cnEditId)).EditedByUser("?; y");
    dynamic_cast<CButton&>(*again.GetDlgItem(IDOK)).Click();
    gSetActiveCodePage(0);
    EXPECT_EQ(Setting(), CString("?; y"));
}

TEST_F(CExcludeDlgTest, ALargerWindowGivesItsRoomToTheText) {
    ASSERT_TRUE(m_dialog.Open());
    m_dialog.MoveWindow({0, 0, 500, 300});
    EXPECT_EQ(Edit().GetRect(), CRect(12, 36, 488, 248));
    EXPECT_EQ(m_dialog.GetDlgItem(CExcludeDlg::cnResetId)->GetRect(), CRect(12, 260, 152, 288));
    EXPECT_EQ(m_dialog.GetDlgItem(IDCANCEL)->GetRect(), CRect(406, 260, 488, 288));
}

TEST(CExcludeDlgBareTest, WithoutAnApplicationTheDefaultIsShownAndNothingKept) {
    ASSERT_EQ(CWinAppEx::GetApp(), nullptr);
    CExcludeDlg dialog;
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(dialog.GetExcludeViews(), CString(csDefaultExcludeViewNames));
    dynamic_cast<CEdit&>(*dialog.GetDlgItem(CExcludeDlg::cnEditId)).EditedByUser("x");
    dynamic_cast<CButton&>(*dialog.GetDlgItem(IDOK)).Click();
    EXPECT_EQ(dialog.GetExcludeViews(), CString("x"));
    EXPECT_EQ(TLibraryBrowser().GetExcludeViewNames(), CString(csDefaultExcludeViewNames));
}
