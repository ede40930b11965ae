#include "platform/ChildEnvironment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <thread>

namespace {

using vapp_platform::EnvironmentSnapshot;
using vapp_platform::SetEnvironmentValue;
using vapp_platform::UnsetEnvironmentValue;

/// The snapshot holds this entry, whole.
bool HasEntry(const std::wstring& entry) {
    const std::vector<wchar_t> snapshot = EnvironmentSnapshot();
    const std::wstring between(1, L'\0');
    const std::wstring all = between + std::wstring(snapshot.begin(), snapshot.end());
    return all.find(between + entry + between) != std::wstring::npos;
}

TEST(ChildEnvironment, TheSnapshotEndsWithTheNulOfItsLastEntry) {
    SetEnvironmentValue("VAPP_TEST_VALUE", "one");
    const std::vector<wchar_t> snapshot = EnvironmentSnapshot();
    ASSERT_GT(snapshot.size(), 2U);
    EXPECT_EQ(snapshot.back(), L'\0');
    EXPECT_NE(snapshot[snapshot.size() - 2], L'\0');
    UnsetEnvironmentValue("VAPP_TEST_VALUE");
}

TEST(ChildEnvironment, ValuesAreSetReplacedAndTakenAway) {
    SetEnvironmentValue("VAPP_TEST_VALUE", "one");
    EXPECT_TRUE(HasEntry(L"VAPP_TEST_VALUE=one"));
    SetEnvironmentValue("VAPP_TEST_VALUE", "two");
    EXPECT_TRUE(HasEntry(L"VAPP_TEST_VALUE=two"));
    EXPECT_FALSE(HasEntry(L"VAPP_TEST_VALUE=one"));
    SetEnvironmentValue("VAPP_TEST_VALUE", "");
    EXPECT_TRUE(HasEntry(L"VAPP_TEST_VALUE="));
    UnsetEnvironmentValue("VAPP_TEST_VALUE");
    EXPECT_FALSE(HasEntry(L"VAPP_TEST_VALUE="));
}

TEST(ChildEnvironment, SnapshotsAndChangesMayMeet) {
    std::thread setting([] {
        for (int round = 0; round < 1000; ++round) {
            SetEnvironmentValue(("VAPP_TEST_" + std::to_string(round % 50)).c_str(),
                                std::to_string(round).c_str());
        }
    });
    for (int round = 0; round < 200; ++round)
        EXPECT_EQ(EnvironmentSnapshot().back(), L'\0');
    setting.join();
    for (int number = 0; number < 50; ++number) {
        UnsetEnvironmentValue(("VAPP_TEST_" + std::to_string(number)).c_str());
    }
}

}  // namespace
