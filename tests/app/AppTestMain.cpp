/// @file
/// The tests of the application object; also the other instances in them.
#include <gtest/gtest.h>

#include "tests/app/InstanceRoles.h"
#include "tests/platform/ChildRoles.h"

int main(int count, char** arguments) {
    app_test::AddInstanceRoles();
    platform_test::PlayChildRole(count, arguments);
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
