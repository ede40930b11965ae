/// @file
/// The shared fonts.
#include "vapp/toolkit/XTPPaintManager.h"

#include <gtest/gtest.h>

TEST(XTPPaintManager, FontsAreSharedAndDifferInWeight) {
    EXPECT_EQ(&XTPPaintManager::GetRegularFont(), &XTPPaintManager::GetRegularFont());
    EXPECT_FALSE(XTPPaintManager::GetRegularFont().bold);
    EXPECT_TRUE(XTPPaintManager::GetRegularBoldFont().bold);
}
