/// @file
/// The limit, with real processes that end, or are killed.
#include "app/COXInstanceManager.h"

#include <gtest/gtest.h>

#include <optional>

#include "tests/app/InstanceRoles.h"
#include "tests/platform/InstanceFolder.h"

namespace {

using app_test::OtherInstance;

class InstanceManager : public testing::Test {
protected:
    [[nodiscard]] int Check(int limit) const {
        COXInstanceManager manager(name.c_str());
        manager.SetMaxAllowedInstances(static_cast<std::uint32_t>(limit));
        return manager.CheckMaxAllowedInstances();
    }

    const platform_test::InstanceFolder folder;
    const std::string& name = folder.name;
};

TEST_F(InstanceManager, ASecondProcessIsRefusedUntilTheFirstEnds) {
    OtherInstance first(name, 1);
    ASSERT_EQ(first.Answer(), "0");
    OtherInstance second(name, 1);
    EXPECT_EQ(second.Answer(), "1");
    EXPECT_EQ(Check(1), 1);
    second.End();
    EXPECT_EQ(Check(1), 1) << "the refused one was none";
    first.End();
    EXPECT_EQ(Check(1), 0);
}

TEST_F(InstanceManager, AKilledInstanceLeavesNothingBehind) {
    OtherInstance first(name, 1);
    ASSERT_EQ(first.Answer(), "0");
    EXPECT_EQ(Check(1), 1);
    first.Kill();
    OtherInstance second(name, 1);
    EXPECT_EQ(second.Answer(), "0");
    second.Kill();
    EXPECT_EQ(Check(1), 0);
}

TEST_F(InstanceManager, AKilledOneOfSeveralFreesItsOwnPlaceOnly) {
    OtherInstance first(name, 2);
    OtherInstance second(name, 2);
    ASSERT_EQ(second.Answer(), "0");
    EXPECT_EQ(Check(2), 1);
    first.Kill();
    EXPECT_EQ(Check(1), 1) << "the second still runs";
    EXPECT_EQ(Check(2), 0);
    second.End();
}

TEST_F(InstanceManager, TheCountLastsAsLongAsTheManager) {
    std::optional<COXInstanceManager> manager(name.c_str());
    manager->SetMaxAllowedInstances(1);
    ASSERT_EQ(manager->CheckMaxAllowedInstances(), 0);
    EXPECT_EQ(OtherInstance(name, 1).Answer(), "1");
    manager.reset();
    EXPECT_EQ(OtherInstance(name, 1).Answer(), "0");
}

TEST_F(InstanceManager, OneProcessIsOneInstance) {
    std::optional<COXInstanceManager> first(name.c_str());
    COXInstanceManager second(name.c_str());
    first->SetMaxAllowedInstances(1);
    second.SetMaxAllowedInstances(1);
    EXPECT_EQ(first->CheckMaxAllowedInstances(), 0);
    EXPECT_EQ(first->CheckMaxAllowedInstances(), 0) << "asked again";
    EXPECT_EQ(second.CheckMaxAllowedInstances(), 0);
    first.reset();
    EXPECT_EQ(OtherInstance(name, 1).Answer(), "1") << "the second manager still counts";
}

TEST_F(InstanceManager, WithoutALimitNobodyIsRefused) {
    OtherInstance first(name, 0);
    OtherInstance second(name, 0);
    EXPECT_EQ(first.Answer() + second.Answer(), "00");
    EXPECT_EQ(Check(0), 0);
    EXPECT_EQ(Check(2), 1);
}

TEST_F(InstanceManager, WithoutANameTheProgramFileIsTheName) {
    COXInstanceManager first(nullptr);
    first.SetMaxAllowedInstances(1);
    EXPECT_EQ(first.CheckMaxAllowedInstances(), 0);
    COXInstanceManager second(nullptr);
    second.SetMaxAllowedInstances(1);
    EXPECT_EQ(second.CheckMaxAllowedInstances(), 0) << "the same process";
    EXPECT_EQ(OtherInstance("", 1).Answer(), "1") << "another of the same program";
    EXPECT_EQ(OtherInstance(name, 1).Answer(), "0") << "one by another name";
}

}  // namespace
