#include "platform/Environment.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/platform/SystemEnvironment.h"

namespace {

using path_test::VariableGuard;
using vapp_platform::GetEnvironmentValue;

TEST(EnvironmentTest, AValueIsThatOfItsVariable) {
    const VariableGuard guard(u"VAPP_TEST_VALUE", u"a value");
    EXPECT_EQ(GetEnvironmentValue(u"VAPP_TEST_VALUE"), u"a value");
}

TEST(EnvironmentTest, AnUnsetVariableHasNone) {
    EXPECT_EQ(GetEnvironmentValue(u"VAPP_NO_SUCH_VARIABLE"), std::nullopt);
}

TEST(EnvironmentTest, NamesThatNoVariableCanHaveAreUnset) {
    const VariableGuard guard(u"VAPP_TEST_VALUE", u"x=y");
    EXPECT_EQ(GetEnvironmentValue(u""), std::nullopt);
    EXPECT_EQ(GetEnvironmentValue(u"VAPP_TEST_VALUE=x"), std::nullopt);
    EXPECT_EQ(GetEnvironmentValue(std::u16string_view(u"VAPP_TEST_VALUE\0x", 17)), std::nullopt);
}

TEST(EnvironmentTest, NamesAndValuesBeyondAsciiReturn) {
    const VariableGuard guard(u"VAPP_TEST_\u00E9", u"\u4E2D\xD83D\xDE00");
    EXPECT_EQ(GetEnvironmentValue(u"VAPP_TEST_\u00E9"), u"\u4E2D\xD83D\xDE00");
}

TEST(EnvironmentTest, CaseOfNamesCountsAsOnTheSystem) {
    const VariableGuard guard(u"VAPP_TEST_VALUE", u"a");
    EXPECT_EQ(GetEnvironmentValue(u"vapp_test_value").has_value(), path_test::cnNamesIgnoreCase);
}

}  // namespace
