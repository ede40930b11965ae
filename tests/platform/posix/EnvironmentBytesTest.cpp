#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/Environment.h"
#include "platform/posix/NativePath.h"

namespace {

using vapp_platform::GetEnvironmentValue;

struct EnvironmentBytesTest : testing::Test {
    EnvironmentBytesTest() = default;
    ~EnvironmentBytesTest() override { unsetenv("VAPP_TEST_VALUE"); }
    EnvironmentBytesTest(const EnvironmentBytesTest&) = delete;
    EnvironmentBytesTest& operator=(const EnvironmentBytesTest&) = delete;
};

TEST_F(EnvironmentBytesTest, AFolderOfOtherBytesIsFoundByItsVariable) {
    setenv("VAPP_TEST_VALUE", "/home/\xE9t\xE9", 1);
    const auto value = GetEnvironmentValue(u"VAPP_TEST_VALUE");
    EXPECT_EQ(value, u"/home/\xDCE9t\xDCE9");
    EXPECT_EQ(vapp_platform::ToNativePath(CStringU(std::u16string_view(value.value_or(u"")))),
              "/home/\xE9t\xE9");
}

TEST_F(EnvironmentBytesTest, ABackslashInAValueSeparates) {
    setenv("VAPP_TEST_VALUE", "D:\\\xC3\xA9\\\\x\\", 1);
    EXPECT_EQ(GetEnvironmentValue(u"VAPP_TEST_VALUE"), u"D:\\\u00E9\\\\x\\");
}

TEST_F(EnvironmentBytesTest, ABackslashInANameIsNoSlash) {
    setenv("VAPP_TEST/VALUE", "x", 1);
    EXPECT_EQ(GetEnvironmentValue(u"VAPP_TEST\\VALUE"), std::nullopt);
    EXPECT_EQ(GetEnvironmentValue(u"VAPP_TEST/VALUE"), u"x");
    unsetenv("VAPP_TEST/VALUE");
}

}  // namespace
