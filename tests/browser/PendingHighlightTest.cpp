#include "vapp/browser/PendingHighlight.h"

#include <gtest/gtest.h>

using namespace vapp_library_browser;

TEST(PendingHighlight, IsOneForTheProcessAndNoneUntilSet) {
    EXPECT_EQ(gPendingHighlight(), nullptr);
    gPendingHighlight() = std::make_unique<TLibCellView>("lib", "inv", "layout");
    EXPECT_EQ(&gPendingHighlight(), &gPendingHighlight());
    ASSERT_NE(gPendingHighlight(), nullptr);
    EXPECT_EQ(*gPendingHighlight(), TLibCellView("lib", "inv", "layout"));
    const std::unique_ptr<TLibCellView> taken = std::move(gPendingHighlight());
    EXPECT_EQ(gPendingHighlight(), nullptr) << "who takes it leaves none";
}
