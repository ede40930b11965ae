/// @file
/// The tests of connections; also the worker in them, and the login program.
#include <gtest/gtest.h>

#include "tests/connection/Worker.h"
#include "tests/platform/ChildRoles.h"

int main(int count, char** arguments) {
    connection_test::AddWorkerRoles();
    if (connection_test::IsLoginProgram(arguments[0])) {
        std::_Exit(connection_test::PlayLoginProgram({arguments + 1, arguments + count}));
    }
    platform_test::PlayChildRole(count, arguments);
    connection_test::LayLoginProgram();
    platform_test::ShareLibraries();
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
