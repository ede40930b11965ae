#include "platform/Environment.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "platform/ChildEnvironment.h"
#include "platform/UnixEnvironment.h"
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

TEST(EnvironmentTest, AValueOfNothingIsEmptyWhereThereIsOne) {
    const VariableGuard guard(u"VAPP_TEST_VALUE", u"");
    const auto value = GetEnvironmentValue(u"VAPP_TEST_VALUE");
    EXPECT_EQ(value.has_value(), path_test::cnValuesMayBeEmpty);
    EXPECT_EQ(value.value_or(u""), u"");
}

TEST(EnvironmentTest, ALongValueComesWhole) {
    const std::u16string value(30'000, u'\u00E9');
    const VariableGuard guard(u"VAPP_TEST_VALUE", value);
    EXPECT_EQ(GetEnvironmentValue(u"VAPP_TEST_VALUE"), value);
}

// What threads ask for stays whole while the library itself sets variables: each value is of one letter.
TEST(EnvironmentTest, ThreadsMayAskWhileTheLibrarySetsVariables) {
    const VariableGuard guard(u"VAPP_TEST_VALUE", u"a value");
    std::atomic<bool> isDone = false;
    const auto ask = [&isDone] {
        do {
            EXPECT_EQ(GetEnvironmentValue(u"VAPP_TEST_VALUE"), u"a value");
            const std::u16string changing = GetEnvironmentValue(u"VAPP_TEST_CHANGES").value_or(u"");
            EXPECT_EQ(changing.find_first_not_of(changing.substr(0, 1)), std::u16string::npos);
            const CStringU onUnixSide = gGetUnixEnv("VAPP_TEST_CHANGES");
            EXPECT_EQ(onUnixSide.PayloadView().find_first_not_of(onUnixSide.PayloadView().substr(0, 1)),
                      std::string_view::npos);
        } while (!isDone);
    };
    std::vector<std::jthread> askers;
    for (int i = 0; i < 2; ++i)
        askers.emplace_back(ask);
    for (int round = 0; round < 300; ++round) {
        const CString value(static_cast<char>('a' + round % 26), round * 10);
        const CString grows = "VAPP_TEST_GROWS_" + CString(std::to_string(round));
        vapp_platform::SetEnvironmentValue("VAPP_TEST_CHANGES", value);
        vapp_platform::SetEnvironmentValue(grows, "x");
        static_cast<void>(gSetUnixEnv("VAPP_TEST_CHANGES", value, 1));
    }
    isDone = true;
    askers.clear();
    for (int round = 0; round < 300; ++round)
        vapp_platform::UnsetEnvironmentValue("VAPP_TEST_GROWS_" + CString(std::to_string(round)));
    vapp_platform::UnsetEnvironmentValue("VAPP_TEST_CHANGES");
}

}  // namespace
