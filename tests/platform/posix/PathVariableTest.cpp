#include "platform/posix/PathVariable.h"

#include <gtest/gtest.h>

#include "tests/platform/InstanceFolder.h"

namespace {

using vapp_platform::PathVariable;

TEST(PathVariable, OnlyAnAbsolutePathCounts) {
    const struct {
        const char* value;
        const char* expected;
    } rows[] = {{"/run/user/7", "/run/user/7"}, {"/", "/"}, {"run", ""}, {"./run", ""}, {"", ""}};
    for (const auto& row : rows) {
        const platform_test::ScopedVariable variable("VAPP_TEST_FOLDER", row.value);
        EXPECT_EQ(PathVariable("VAPP_TEST_FOLDER"), row.expected) << row.value;
    }
    EXPECT_EQ(PathVariable("VAPP_NO_SUCH_VARIABLE"), "");
}

}  // namespace
