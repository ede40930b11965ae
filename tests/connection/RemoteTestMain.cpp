/// @file
/// The tests with the real PuTTY programs, which the build lays below the folder of this program.
#include <gtest/gtest.h>

#include "tests/connection/LoginProxy.h"
#include "tests/platform/ChildRoles.h"

int main(int count, char** arguments) {
    connection_test::AddLoginProxyRole();
    platform_test::PlayChildRole(count, arguments);
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
