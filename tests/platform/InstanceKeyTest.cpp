#include "platform/InstanceKey.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using vapp_platform::cnMostKeyBytes;
using vapp_platform::InstanceKey;

TEST(InstanceKey, PlainNamesStayReadable) {
    EXPECT_EQ(InstanceKey("Layout-2019.2_b"), "Layout-2019.2_b");
}

TEST(InstanceKey, WhatANameOfAFileMayNotHoldIsEscaped) {
    EXPECT_EQ(InstanceKey("a b/c\\d"), "a%20b%2fc%5cd");
    EXPECT_EQ(InstanceKey("%"), "%25");
    EXPECT_EQ(InstanceKey("\xC3\xA9"), "%c3%a9");
    EXPECT_EQ(InstanceKey(std::string_view("\0", 1)), "%00");
}

TEST(InstanceKey, NoNameHasAKeyToo) {
    EXPECT_EQ(InstanceKey(""), "%");
}

TEST(InstanceKey, NamesThatDifferHaveKeysThatDiffer) {
    const std::set<std::string> keys = {InstanceKey(""),    InstanceKey("%"),  InstanceKey("a"),
                                        InstanceKey("A"),   InstanceKey("a "), InstanceKey("a%20"),
                                        InstanceKey("%20"), InstanceKey(" ")};
    EXPECT_EQ(keys.size(), 8u);
}

TEST(InstanceKey, LongNamesAreCutAndStillTellApart) {
    const std::string most(cnMostKeyBytes, 'x');
    EXPECT_EQ(InstanceKey(most), most);
    const std::string first = InstanceKey(most + "1");
    const std::string second = InstanceKey(most + "2");
    EXPECT_EQ(first.size(), cnMostKeyBytes);
    EXPECT_NE(first, second);
    EXPECT_EQ(first, InstanceKey(most + "1"));
    EXPECT_EQ(InstanceKey(std::string(1000000, '/')).size(), cnMostKeyBytes);
}

}  // namespace
