/// @file
/// Knows its own place, below which the tests work.
#include <gtest/gtest.h>

#include "tests/platform/ChildRoles.h"

int main(int count, char** arguments) {
    platform_test::PlayChildRole(count, arguments);
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
