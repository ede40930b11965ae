#include "platform/FileSystem.h"

#include <gmock/gmock.h>
#include <windows.h>

#include <string>

#include "platform/ErrorText.h"
#include "platform/FileWalk.h"
#include "platform/Files.h"
#include "platform/Folders.h"
#include "platform/World.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

using platform_test::TTemporaryFolder;
using testing::ElementsAre;

struct Win32FileSystemTest : testing::Test {
    ~Win32FileSystemTest() override { vapp_platform::SetWineAnswer(std::nullopt); }
    TTemporaryFolder folder;
};

TEST_F(Win32FileSystemTest, WildcardsNameTheFirstHit) {
    folder.MakeFile("inv.sch").MakeFolder("lib");
    EXPECT_TRUE(gFileExists(folder.Path() + "\\*.sch"));
    EXPECT_FALSE(gFileExists(folder.Path() + "\\*.sym"));
    EXPECT_TRUE(gDirectoryExists(folder.Path() + "\\l?b"));
}

TEST_F(Win32FileSystemTest, RootsAndWhatLiesBelowAreAskedForTheirEntries) {
    EXPECT_TRUE(gDirectoryExists("C:\\"));
    EXPECT_TRUE(gDirectoryExists("C:"));
    EXPECT_TRUE(gDirectoryExists("C:\\windows"));
    EXPECT_TRUE(gDirectoryExists("C:/windows"));
    EXPECT_TRUE(gDirectoryExists("C:\\windows\\"));
    EXPECT_FALSE(gDirectoryExists("C:\\no-such-folder"));
    EXPECT_FALSE(gDirectoryExists("Q:\\"));
    EXPECT_FALSE(gDirectoryExists("\\\\no-such-server\\share"));
    // By its name this would be a hit.
    EXPECT_FALSE(gDirectoryExists("C:\\window?"));
    EXPECT_TRUE(gDirectoryExists("C:\\windows\\system3?"));
}

TEST_F(Win32FileSystemTest, AFolderNamedWithASlashAtItsEndIsNotFound) {
    folder.MakeFolder("lib/sub");
    EXPECT_TRUE(gDirectoryExists(folder.Path("lib/sub") + '\\'));
    EXPECT_FALSE(gDirectoryExists(folder.Path("lib/sub") + '/'));
}

TEST_F(Win32FileSystemTest, UnixPathsWorkUnderWine) {
    if (!gIsWine()) GTEST_SKIP() << "plain Windows has none";
    EXPECT_TRUE(gDirectoryExists("/"));
    EXPECT_TRUE(gDirectoryExists("/etc"));
    EXPECT_TRUE(gDirectoryExists("/usr/bin"));
    EXPECT_FALSE(gDirectoryExists("/no-such-folder"));
}

TEST_F(Win32FileSystemTest, NamesBeyondTheAnsiCodePageHaveNoSize) {
    const CStringU name = folder.Path() + '\\' + CStringU(u"\u56DE\u8DEF");
    ASSERT_TRUE(gCreateDirectories(name));
    EXPECT_TRUE(gDirectoryExists(name));
    EXPECT_EQ(gGetFileSize(name), -1);
}

// Windows refuses to make what is longer than 260 characters, Wine makes it. Either way the answers agree.
TEST_F(Win32FileSystemTest, PathsBeyond260CharactersAreMadeOrRefusedWithTheReason) {
    const std::string part = '\\' + std::string(100, 'd');
    const CStringU deep = folder.Path() + (part + part + part).c_str();
    CStringU text;
    std::uint32_t code = 0;
    const bool isMade = gCreateDirectories(deep, &text, &code);
    EXPECT_EQ(isMade, gIsWine());
    EXPECT_EQ(isMade, gDirectoryExists(deep));
    EXPECT_EQ(isMade, code == 0);
    EXPECT_EQ(text.IsEmpty(), code == 0);
    EXPECT_EQ(gCollectFiles(folder.Path(), "", true).size(), isMade ? 3U : 2U);
}

TEST_F(Win32FileSystemTest, ErrorTextsAreTheSystems) {
    EXPECT_TRUE(gGetErrorText(ERROR_FILE_NOT_FOUND).PayloadView().ends_with("\r\n"));
    SetLastError(ERROR_ACCESS_DENIED);
    std::uint32_t code = 0;
    const CStringU text = gGetLastErrorText("Can't open.", &code);
    EXPECT_EQ(code, std::uint32_t{ERROR_ACCESS_DENIED});
    EXPECT_EQ(text, CStringU("Can't open.\n") + gGetErrorText(ERROR_ACCESS_DENIED));
}

}  // namespace
