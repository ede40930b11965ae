/// @file
/// The tests of deployment with a client that the tests steer; also that client.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <stdexcept>

#include "tests/connection/FtpProgram.h"
#include "tests/platform/ChildRoles.h"
#include "vapp/connection/RemoteDeployment.h"

namespace {

// What a program says that lies in a folder of its own.
int RunFtpThere(const std::vector<std::string>& /*arguments*/) {
    try {
        runFtp(
            "say:ran", "", [](const CStringU&) {}, false);
        std::cout << "done" << std::flush;
    } catch (const std::runtime_error& failure) {
        std::cout << failure.what() << std::flush;
    }
    return 0;
}

}  // namespace

int main(int count, char** arguments) {
    if (connection_test::IsFtpProgram(arguments[0])) {
        std::_Exit(connection_test::PlayFtpProgram({arguments + 1, arguments + count}));
    }
    platform_test::AddRole("ftp", RunFtpThere);
    platform_test::PlayChildRole(count, arguments);
    const std::filesystem::path own = platform_test::OwnProgram();
    connection_test::LayFtpProgram(own.string(), own.parent_path().string());
    platform_test::ShareLibraries();
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
