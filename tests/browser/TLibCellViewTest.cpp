#include "vapp/browser/TLibCellView.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

using namespace vapp_library_browser;

TEST(TLibCellView, NamesThatDifferInCaseAreOneView) {
    const TLibCellView lower("lib", "inv", "layout");
    const TLibCellView upper("LIB", "Inv", "LAYOUT");
    EXPECT_EQ(lower, upper);
    EXPECT_EQ((std::set<TLibCellView>{lower, upper}).size(), 1u);
}

TEST(TLibCellView, TheCellDecidesTheOrderThenTheViewThenTheLibrary) {
    EXPECT_LT(TLibCellView("z", "a", "v"), TLibCellView("a", "b", "v"));
    EXPECT_LT(TLibCellView("z", "a", "u"), TLibCellView("a", "a", "v"));
    EXPECT_LT(TLibCellView("a", "A", "V"), TLibCellView("b", "a", "v"));
    EXPECT_FALSE(TLibCellView("a", "b", "u") < TLibCellView("z", "a", "v"));
}

TEST(TLibCellView, TheSortKeyIsNoPartOfTheIdentityAndNeverTravels) {
    TLibCellView source("lib", "inv", "layout");
    source.sortKey = "key";
    EXPECT_EQ(source, TLibCellView("lib", "inv", "layout"));
    const TLibCellView copy = source;
    EXPECT_TRUE(copy.sortKey.IsEmpty());
    TLibCellView assigned;
    assigned.sortKey = "stale";
    assigned = source;
    EXPECT_TRUE(assigned.sortKey.IsEmpty());
    EXPECT_EQ(source.sortKey, CStringU("key"));
    TLibCellView moved = std::move(source);
    EXPECT_TRUE(moved.sortKey.IsEmpty());
    EXPECT_EQ(moved, copy);
    assigned.sortKey = "stale";
    assigned = std::move(moved);
    EXPECT_TRUE(assigned.sortKey.IsEmpty());
    EXPECT_EQ(assigned, copy);
}

TEST(TLibCellView, AssigningAViewToItselfChangesNothing) {
    TLibCellView view("lib", "inv", "layout");
    view.sortKey = "key";
    TLibCellView& same = view;
    view = same;
    EXPECT_EQ(view.cell, CStringU("inv"));
    EXPECT_EQ(view.sortKey, CStringU("key"));
}

TEST(TLibCellView, JoinsTheNamesLibraryFirst) {
    EXPECT_EQ(TLibCellView("lib", "inv", "layout").Join("/"), CStringU("lib/inv/layout"));
}

TEST(TLibCellView, DescribesItselfForMessages) {
    const TLibCellView view("lib", "inv", "layout");
    EXPECT_EQ(view.Describe(false), CStringU("cell \"inv\" library \"lib\" view \"layout\""));
    EXPECT_EQ(view.Describe(true), CStringU("Cell \"inv\" library \"lib\" view \"layout\""));
}

TEST(TLibCellView, JoinAndDescribeKeepTheMarkerInvariant) {
    const CStringU accented("caf\xC3\xA9", TextEncoding::Utf8Auto);
    const TLibCellView view("lib", accented, accented);
    EXPECT_EQ(std::string(view.Join(" ").PayloadView()), "lib caf\xC3\xA9 caf\xC3\xA9");
    EXPECT_EQ(std::string(view.Describe(true).PayloadView()),
              "Cell \"caf\xC3\xA9\" library \"lib\" view \"caf\xC3\xA9\"");
    EXPECT_TRUE(view.Describe(true).HasNonAscii());
}
