#include "platform/OsName.h"

#include <gtest/gtest.h>

namespace {

using vapp_platform::IsWineDeviceName;
using vapp_platform::OsName;
using vapp_platform::TWindowsFacts;

TEST(OsNameTest, ADisplayOfWineBeginsWithItsName) {
    EXPECT_TRUE(IsWineDeviceName("Wine"));
    EXPECT_TRUE(IsWineDeviceName("WineX"));
    EXPECT_TRUE(IsWineDeviceName("Wine X11 Driver"));
    EXPECT_FALSE(IsWineDeviceName(""));
    EXPECT_FALSE(IsWineDeviceName("Win"));
    EXPECT_FALSE(IsWineDeviceName(" Wine"));
    EXPECT_FALSE(IsWineDeviceName("wine"));
    EXPECT_FALSE(IsWineDeviceName("\\\\.\\DISPLAY1"));
}

TEST(OsNameTest, TheSystemIsLinuxWhereTheDisplayIsWines) {
    TWindowsFacts facts;
    facts.major = 6;
    facts.minor = 1;
    facts.build = 7601;
    facts.productCode = 48;
    EXPECT_EQ(OsName(true, facts), "Linux");
    EXPECT_EQ(OsName(false, facts), "Microsoft Windows 7 Professional (build 7601), 64-bit");
    EXPECT_EQ(OsName(false, facts), vapp_platform::WindowsName(facts));
}

TEST(OsNameTest, AVersionThatIsNotToldIsNamedByItsErrorEverywhereElse) {
    TWindowsFacts unknown;
    unknown.known = false;
    unknown.errorText = "Access is denied.";
    EXPECT_EQ(OsName(true, unknown), "Linux");
    EXPECT_EQ(OsName(false, unknown), "Access is denied.");
}

}  // namespace
