/// @file
/// The sample moves along with the program.
#include "host/SampleFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/host/TempFolder.h"

namespace navigator_test {
namespace {

namespace fs = std::filesystem;

TEST(SampleFolder, StandsWithTheProgramWhereverThatIs) {
    const TempFolder folder;
    for (const char* place : {"first", "moved"}) {
        const fs::path program = folder.Path() / place / "bin";
        const fs::path sample = (program / NAVIGATOR_SAMPLE_FROM_PROGRAM).lexically_normal();
        fs::create_directories(program);
        fs::create_directories(sample);
        EXPECT_EQ(navigator::gSampleFolder(program), sample);
    }
}

TEST(SampleFolder, OfAProgramThatIsNotInstalledIsThatOfTheSources) {
    const TempFolder folder;
    EXPECT_EQ(navigator::gSampleFolder(folder.Path()), fs::path(NAVIGATOR_SAMPLE_SOURCE));
    EXPECT_TRUE(fs::is_directory(NAVIGATOR_SAMPLE_SOURCE));
}

}  // namespace
}  // namespace navigator_test
