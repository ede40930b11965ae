#include "vapp/browser/TLineBuilder.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

using namespace vapp_library_browser;

TEST(TLineBuilder, PutsPiecesTogetherAsTheyStand) {
    TLineBuilder line("a");
    line.Literal(" b ").Text("c d").Literal(" ").Number(-12);
    EXPECT_EQ(line.View(), "a b c d -12");
    EXPECT_STREQ(line.GetString(), "a b c d -12");
}

TEST(TLineBuilder, WritesEveryInteger) {
    EXPECT_EQ(TLineBuilder().Number(INT_MIN).View(), std::to_string(INT_MIN));
    EXPECT_EQ(TLineBuilder().Number(INT_MAX).View(), std::to_string(INT_MAX));
    EXPECT_EQ(TLineBuilder().Number(0).View(), "0");
}

TEST(TLineBuilder, GrowsBeyondItsOwnRoom) {
    TLineBuilder line;
    std::string wanted;
    for (int i = 0; i < 3000; ++i) {
        line.Number(i).Literal(" ");
        wanted += std::to_string(i) + " ";
    }
    EXPECT_EQ(line.View(), wanted);
    EXPECT_EQ(std::string(line.ToText().PayloadView()), wanted);
}

TEST(TLineBuilder, TheTextOfALineHasItsMarkerWhereItIsDue) {
    EXPECT_EQ(TLineBuilder("plain").ToText().Stored(), CString("plain"));
    EXPECT_EQ(TLineBuilder("a\xC3\xA9").ToText().Stored(), CString("\x80"
                                                                   "a\xC3\xA9"));
    EXPECT_TRUE(TLineBuilder().ToText().IsEmpty());
}
