/// @file
/// Pictures by module and number. Handles are opaque here: any address is as good as a picture.
#include "vapp/toolkit/Resources.h"

#include <gtest/gtest.h>

TEST(Resources, ANumberMeansAPictureOfTheCurrentModule) {
    int things[3] = {};
    const auto own = reinterpret_cast<HBITMAP>(&things[0]);
    const auto others = reinterpret_cast<HBITMAP>(&things[1]);
    const auto module = reinterpret_cast<HINSTANCE>(&things[2]);
    gSetBitmapResource(7, own);
    gSetBitmapResource(7, others, module);
    gSetBitmapResource(8, own);
    EXPECT_EQ(gGetResourceHandle(), nullptr);
    EXPECT_EQ(gLoadBitmapResource(7), own);
    EXPECT_EQ(gLoadBitmapResource(9), nullptr);
    gSetResourceHandle(module);
    EXPECT_EQ(gGetResourceHandle(), module);
    EXPECT_EQ(gLoadBitmapResource(7), others);
    EXPECT_EQ(gLoadBitmapResource(8), nullptr) << "the program's own number";
    gSetResourceHandle(nullptr);
    gSetBitmapResource(7, others);
    EXPECT_EQ(gLoadBitmapResource(7), others) << "put in anew";
    gSetBitmapResource(7, nullptr);
    EXPECT_EQ(gLoadBitmapResource(7), nullptr);
    gSetBitmapResource(8, nullptr);
    gSetBitmapResource(7, nullptr, module);
}
