#include <gtest/gtest.h>

#include "tests/browser/NavigatorFixture.h"

using namespace vapp_library_browser;

class TLibraryViewCaches : public NavigatorFixture {
protected:
    const TLibCellView m_inv{"lib", "inv", "layout"};
};

TEST_F(TLibraryViewCaches, ReservedViewsAreCountedByLibrary) {
    Initialize();
    EXPECT_FALSE(m_browser.HasOaReservedViews("lib"));
    m_browser.SetOaViewReserved(m_inv, true);
    m_browser.SetOaViewReserved({"lib", "nand", "layout"}, true);
    EXPECT_TRUE(m_browser.HasOaReservedViews("lib"));
    EXPECT_FALSE(m_browser.HasOaReservedViews("other"));
    m_browser.SetOaViewReserved(m_inv, false);
    EXPECT_TRUE(m_browser.HasOaReservedViews("lib"));
    m_browser.SetOaViewReserved({"lib", "NAND", "Layout"}, false);
    EXPECT_FALSE(m_browser.HasOaReservedViews("lib"));
}

TEST_F(TLibraryViewCaches, LibrariesAreTakenToTheByteAndViewsWithoutCase) {
    Initialize();
    m_browser.SetOaViewReserved(m_inv, true);
    EXPECT_FALSE(m_browser.HasOaReservedViews("LIB"));
    m_browser.SetOaViewReserved({"LIB", "inv", "layout"}, false);
    EXPECT_TRUE(m_browser.HasOaReservedViews("lib"));
}

TEST_F(TLibraryViewCaches, ReservingRepaintsNothing) {
    Show({"lib"});
    const unsigned paints = Libraries().GetLibraryListCtrl().GetInvalidateCount();
    m_browser.SetOaViewReserved(m_inv, true);
    EXPECT_EQ(Libraries().GetLibraryListCtrl().GetInvalidateCount(), paints);
    EXPECT_FALSE(Libraries().NeedsPopulate());
}

TEST_F(TLibraryViewCaches, AModifiedViewMarksThePaneAndRepaints) {
    Show({"lib"});
    const unsigned paints = Libraries().GetLibraryListCtrl().GetInvalidateCount();
    m_browser.SetLcvModified(m_inv, true);
    EXPECT_TRUE(Libraries().NeedsPopulate());
    EXPECT_EQ(Libraries().GetLibraryListCtrl().GetInvalidateCount(), paints + 1);
    EXPECT_TRUE(m_browser.HasModifiedLcvs("lib"));
    EXPECT_TRUE(m_browser.IsLcvModified({"lib", "INV", "LAYOUT"}));
    m_browser.SetLcvModified(m_inv, false);
    EXPECT_FALSE(m_browser.IsLcvModified(m_inv));
    EXPECT_FALSE(m_browser.HasModifiedLcvs("lib"));
}

TEST_F(TLibraryViewCaches, AskingForAnUnknownLibraryAnswersFalseEveryTime) {
    Initialize();
    EXPECT_FALSE(m_browser.IsLcvModified(m_inv));
    EXPECT_FALSE(m_browser.HasModifiedLcvs("lib")) << "asking leaves an entry, an empty one";
}

TEST_F(TLibraryViewCaches, RepositoryTextsAreEmptyUntilSet) {
    Initialize();
    EXPECT_TRUE(m_browser.GetReservedBy(m_inv).IsEmpty());
    m_browser.SetReservedBy(m_inv, "ann");
    m_browser.SetRepoState(m_inv, "locked");
    m_browser.SetVersion(m_inv, "1.2");
    const TLibCellView sameInOtherCase("LIB", "INV", "LAYOUT");
    EXPECT_EQ(m_browser.GetReservedBy(sameInOtherCase), CStringU("ann"));
    EXPECT_EQ(m_browser.GetRepoState(m_inv), CStringU("locked"));
    EXPECT_EQ(m_browser.GetVersion(m_inv), CStringU("1.2"));
    m_browser.SetReservedBy(m_inv, "");
    EXPECT_TRUE(m_browser.GetReservedBy(m_inv).IsEmpty());
}

// The one who asks has no right to add anything.
TEST_F(TLibraryViewCaches, AskingForRepositoryTextsAddsNothing) {
    static_assert(requires(const TLibraryBrowser& browser, const TLibCellView& view) {
        browser.GetReservedBy(view);
        browser.GetRepoState(view);
        browser.GetVersion(view);
    });
    Initialize();
    const TLibraryBrowser& browser = m_browser;
    EXPECT_TRUE(browser.GetReservedBy({"no", "such", "view"}).IsEmpty());
}

TEST_F(TLibraryViewCaches, ClearCachesForgetsEverythingAndTheTintGoes) {
    Show({"lib"});
    m_host.AnswerStart("database top_level", "lib");
    m_browser.SetOaViewReserved(m_inv, true);
    m_browser.SetLcvModified(m_inv, true);
    m_browser.SetReservedBy(m_inv, "ann");
    m_browser.SetRepoState(m_inv, "locked");
    m_browser.SetVersion(m_inv, "1.2");
    EXPECT_EQ(Libraries().GetLibraryListCtrl().DrawItem(0).backColor, 0xE6E6FFu);
    m_browser.ClearCaches();
    EXPECT_FALSE(m_browser.IsLcvModified(m_inv));
    EXPECT_FALSE(m_browser.HasOaReservedViews("lib"));
    EXPECT_TRUE(m_browser.GetReservedBy(m_inv).IsEmpty());
    EXPECT_TRUE(m_browser.GetRepoState(m_inv).IsEmpty());
    EXPECT_TRUE(m_browser.GetVersion(m_inv).IsEmpty());
    EXPECT_EQ(Libraries().GetLibraryListCtrl().DrawItem(0).backColor, cnNoColor);
}
