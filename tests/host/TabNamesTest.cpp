/// Names of tabs in the settings.

#include "host/TabNames.h"

#include <gtest/gtest.h>

#include "host/NavigatorApp.h"

namespace navigator_test {
namespace {

using namespace navigator;

TEST(TabNamesTest, TheUsersNameStandsForTheHosts) {
    NavigatorApp app;
    EXPECT_EQ(gTabName(app, 2), "Names");
    gSetTabName(app, 2, "  my own ");
    EXPECT_EQ(gTabName(app, 2), "my own");
    EXPECT_EQ(gTabName(app, 1), "Details");
    for (const char* none : {"", "   ", "Names"}) {
        gSetTabName(app, 2, "x");
        gSetTabName(app, 2, none);
        EXPECT_EQ(gTabName(app, 2), "Names") << '"' << none << '"';
        EXPECT_TRUE(app.GetProfileString("TabNames", "Tab3").IsEmpty());
    }
}

TEST(TabNamesTest, ATabThatThereIsNotHasNoName) {
    NavigatorApp app;
    EXPECT_EQ(gTabName(app, -1), "");
    EXPECT_EQ(gTabName(app, cnTabs), "");
}

}  // namespace
}  // namespace navigator_test
