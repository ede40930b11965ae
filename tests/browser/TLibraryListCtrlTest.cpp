#include "vapp/browser/TLibraryListCtrl.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include "tests/browser/NavigatorFixture.h"

using namespace vapp_library_browser;

class TLibraryListCtrlTest : public NavigatorFixture {
protected:
    void ShowTwo() {
        Show({"other", "main"});  // shown as main, other
        m_host.Answer("database top_level top", "main");
    }
    ListItemLook Look(int row) { return Libraries().GetLibraryListCtrl().DrawItem(row); }
    void AnswerInfo(const char* allowed, const char* unresolved, const char* space) {
        m_host.AnswerStart("database libraryinfo is_edit_allowed", allowed);
        m_host.AnswerStart("database libraryinfo is_unresolved", unresolved);
        m_host.AnswerStart("database libraryinfo allow_space_for_icon", space);
    }
};

TEST_F(TLibraryListCtrlTest, TheTopLibraryHasTheWindowsTextColourAndTheOthersAreBlue) {
    ShowTwo();
    EXPECT_EQ(Look(0).text, CStringU("main"));
    EXPECT_EQ(Look(0).textColor, cnNoColor);
    EXPECT_EQ(Look(1).textColor, 0xFF0000u);
    EXPECT_EQ(Look(1).backColor, cnNoColor);
    EXPECT_EQ(Look(1).textIndent, 2);
    EXPECT_FALSE(Look(1).font.bold);
}

TEST_F(TLibraryListCtrlTest, TheTopLibraryIsKnownByItsBytes) {
    ShowTwo();
    m_host.Answer("database top_level top", "Main");
    EXPECT_EQ(Look(0).textColor, 0xFF0000u);
}

TEST_F(TLibraryListCtrlTest, AFailedQuestionMakesNoLibraryStandOut) {
    ShowTwo();
    m_host.AnswerCode("database top_level top", TCL_ERROR, "main");
    EXPECT_EQ(Look(0).textColor, 0xFF0000u);
}

TEST_F(TLibraryListCtrlTest, ALibraryWithoutANameStandsOutWhenTheQuestionFails) {
    Show({""});
    EXPECT_EQ(Look(0).textColor, cnNoColor);
}

TEST_F(TLibraryListCtrlTest, EachPaintingAsksOnceWithTheSanitisedDesign) {
    Initialize();
    m_host.Answer("database all_libs", "{{my top} {a /a}}");
    m_browser.Populate();
    m_host.ClearLines();
    const HookGuard hook;
    static_cast<void>(Look(0));
    EXPECT_EQ(m_host.Lines(), std::vector<std::string>{"database top_level {my top}"});
}

TEST_F(TLibraryListCtrlTest, AReservedLibraryIsTintedAndBoldOnlyIfModifiedToo) {
    ShowTwo();
    const TLibCellView view("other", "inv", "layout");
    m_browser.SetLcvModified(view, true);
    EXPECT_FALSE(Look(1).font.bold);
    m_browser.SetOaViewReserved(view, true);
    EXPECT_TRUE(Look(1).font.bold);
    EXPECT_EQ(Look(1).backColor, 0xE6E6FFu);
    m_browser.SetLcvModified(view, false);
    EXPECT_FALSE(Look(1).font.bold);
    EXPECT_EQ(Look(1).backColor, 0xE6E6FFu);
}

TEST_F(TLibraryListCtrlTest, ASelectedRowHasTheDesktopsColours) {
    ShowTwo();
    m_browser.SetOaViewReserved({"other", "inv", "layout"}, true);
    Select("other");
    EXPECT_TRUE(Look(1).highlighted);
    EXPECT_EQ(Look(1).textColor, cnNoColor);
    EXPECT_EQ(Look(1).backColor, cnNoColor);
    EXPECT_FALSE(Look(0).highlighted);
}

TEST_F(TLibraryListCtrlTest, InTheDarkThemeTheOthersAreLightBlue) {
    ShowTwo();
    m_frame.dark = true;
    m_browser.SetOaViewReserved({"other", "inv", "layout"}, true);
    EXPECT_EQ(Look(0).textColor, 0xFFFFFFu);
    EXPECT_EQ(Look(1).textColor, 0xFF9090u);
    EXPECT_EQ(Look(1).backColor, 0x2D2D2Du) << "the tint is for the light theme";
    Select("other");
    EXPECT_EQ(Look(1).textColor, 0xFFFFFFu);
    EXPECT_EQ(Look(1).backColor, 0xFF9933u);
}

TEST_F(TLibraryListCtrlTest, TheFocusRectangleNeedsTheKeyboard) {
    ShowTwo();
    auto& list = Libraries().GetLibraryListCtrl();
    list.ClickedByUser(1, {});
    EXPECT_FALSE(Look(1).focusRect);
    list.SetFocus();
    EXPECT_TRUE(Look(1).focusRect);
    EXPECT_FALSE(Look(0).focusRect);
}

TEST_F(TLibraryListCtrlTest, TheEditorModeAsksForTheLibrarysStateByItsBareName) {
    Show({"my lib"});
    m_browser.ModifyForQEdit();
    AnswerInfo("1", "0", "1");
    const HookGuard hook;
    const ListItemLook look = Look(0);
    EXPECT_EQ(m_host.Lines(), (std::vector<std::string>{"database libraryinfo is_edit_allowed my lib",
                                                        "database libraryinfo is_unresolved my lib",
                                                        "database libraryinfo allow_space_for_icon my lib"}));
    EXPECT_EQ(look.textColor, cnNoColor);
    EXPECT_EQ(look.textIndent, 2 + Libraries().GetLibraryListCtrl().GetRowHeight());
    EXPECT_EQ(look.icons[0], 0u);
}

TEST_F(TLibraryListCtrlTest, MarksOfALibraryInTheEditorMode) {
    Show({"lib"});
    m_browser.ModifyForQEdit();
    struct Case {
        const char* allowed;
        const char* unresolved;
        const char* space;
        UINT icons[2];
        bool indented;
        std::size_t lines;
    };
    const Case cases[] = {
        {"1", "0", "0", {0, 0}, false, 3},         {"1", "0", "1", {0, 0}, true, 3},
        {"1", "1", "0", {366, 0}, true, 2},        {"0", "0", "0", {367, 0}, true, 2},
        {"0", "1", "0", {366, 367}, true, 2},      {"1", "0", "nonsense", {0, 0}, false, 3},
        {"nonsense", "0", "0", {367, 0}, true, 2}, {"", "0", "0", {367, 0}, true, 2},
        {"true", "0", "0", {367, 0}, true, 2},     {"1", "nonsense", "0", {0, 0}, false, 3},
        {"1", "", "1", {0, 0}, true, 3},           {"yes", "yes", "yes", {367, 0}, true, 2},
    };
    for (const Case& test : cases) {
        AnswerInfo(test.allowed, test.unresolved, test.space);
        m_host.ClearLines();
        const ListItemLook look = Look(0);
        EXPECT_EQ(look.icons[0], test.icons[0]) << test.allowed << test.unresolved << test.space;
        EXPECT_EQ(look.icons[1], test.icons[1]) << test.allowed << test.unresolved << test.space;
        EXPECT_EQ(look.textIndent > 2, test.indented) << test.allowed << test.unresolved << test.space;
        EXPECT_EQ(m_host.Lines().size(), test.lines);
    }
}

TEST_F(TLibraryListCtrlTest, FailedQuestionsOfTheEditorModeShowAPlainLibrary) {
    Show({"lib"});
    m_browser.ModifyForQEdit();
    const ListItemLook look = Look(0);
    EXPECT_EQ(m_host.Lines().size(), 3u);
    EXPECT_EQ(look.icons[0], 0u);
    EXPECT_EQ(look.textIndent, 2);
}

TEST_F(TLibraryListCtrlTest, RowsThatAreNotThereHaveNoLookAndSendNoLine) {
    ShowTwo();
    for (const int row : {-1, 2, 1 << 30})
        EXPECT_TRUE(Look(row).text.IsEmpty());
    EXPECT_TRUE(m_host.Lines().empty());
}

TEST_F(TLibraryListCtrlTest, AListWithoutItsPaneHasTheBaseLook) {
    TLibraryListCtrl list;
    list.InsertItem(0, "a");
    EXPECT_EQ(list.DrawItem(0).text, CStringU("a"));
    EXPECT_EQ(list.DrawItem(0).textColor, cnNoColor);
}

TEST_F(TLibraryListCtrlTest, AListThatIsRefilledWhileItIsPaintedIsPaintedAsItWas) {
    ShowTwo();
    AnswerLibraries({});
    m_host.Handle("database top_level top", [this](Tcl_Interp* interp) {
        Refresh();
        Tcl_SetObjResult(interp, Tcl_NewStringObj("main", -1));
        return TCL_OK;
    });
    EXPECT_EQ(Look(1).text, CStringU("other"));
    EXPECT_TRUE(Shown().empty());
}
