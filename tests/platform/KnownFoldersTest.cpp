#include "platform/KnownFolders.h"

#include <gtest/gtest.h>

#include "platform/Files.h"
#include "platform/Folders.h"
#include "platform/Paths.h"

namespace {

TEST(KnownFoldersTest, TheProgramAndTheModuleAreFiles) {
    EXPECT_TRUE(gFileExists(gGetExePath())) << gGetExePath().Payload();
    EXPECT_TRUE(gFileExists(gGetModulePath())) << gGetModulePath().Payload();
    EXPECT_TRUE(gIsAbsolutePath(gGetModulePath()));
}

TEST(KnownFoldersTest, TheirFoldersAreThePathsWithoutTheName) {
    EXPECT_EQ(gGetExeFolder(), gGetDirectory(gGetExePath()));
    EXPECT_EQ(gGetModuleFolder(), gGetDirectory(gGetModulePath()));
    EXPECT_TRUE(gDirectoryExists(gGetExeFolder()));
    EXPECT_TRUE(gDirectoryExists(gGetModuleFolder()));
}

}  // namespace
