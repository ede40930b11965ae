#include "platform/posix/SmallFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/platform/TemporaryFolder.h"

namespace {

using vapp_platform::ReadSmallFile;

TEST(SmallFileTest, GivesTheFirstBytesOfAFileAndNothingElse) {
    const platform_test::TTemporaryFolder folder;
    folder.MakeFile("file", "abc").MakeFile("empty").MakeFolder("lib");
    ASSERT_EQ(mkfifo(folder.Native("pipe").c_str(), 0600), 0);
    EXPECT_EQ(ReadSmallFile(folder.Native("file"), 100), "abc");
    EXPECT_EQ(ReadSmallFile(folder.Native("file"), 2), "ab");
    EXPECT_EQ(ReadSmallFile(folder.Native("empty"), 100), "");
    EXPECT_EQ(ReadSmallFile(folder.Native("lib"), 100), std::nullopt);
    EXPECT_EQ(ReadSmallFile(folder.Native("missing"), 100), std::nullopt);
    EXPECT_EQ(ReadSmallFile(folder.Native("pipe"), 100), std::nullopt) << "a pipe would be waited for";
}

}  // namespace
