/// @file
/// The tests with the real PuTTY programs. They lie below the folder of this program, which is therefore one
/// of its own.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/platform/ChildRoles.h"

int main(int count, char** arguments) {
    platform_test::PlayChildRole(count, arguments);
    namespace fs = std::filesystem;
    const fs::path place = fs::path(platform_test::OwnProgram()).parent_path() / "putty" / "bin";
    fs::create_directories(place);
    for (const char* name : {"plink", "psftp"}) {
        std::error_code there;
        fs::create_symlink(fs::path("/usr/bin") / name, place / (std::string(name) + ".exe"), there);
    }
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
