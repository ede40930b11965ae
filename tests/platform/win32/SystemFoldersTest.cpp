#include "platform/SystemFolders.h"

#include <gtest/gtest.h>

#include "platform/Folders.h"
#include "platform/KnownFolders.h"
#include "platform/Paths.h"
#include "platform/World.h"

namespace {

TEST(SystemFoldersTest, TheDocumentsFolderExists) {
    EXPECT_TRUE(gDirectoryExists(gGetDocumentsFolder())) << gGetDocumentsFolder().Payload();
}

TEST(SystemFoldersTest, TheSuitesFolderHasNoBlankOnTheUnixSide) {
    vapp_platform::SetWineAnswer(true);
    EXPECT_EQ(gGetFileName(gGetUserDataFolder()), "Vornex_EDA");
    vapp_platform::SetWineAnswer(false);
    EXPECT_EQ(gGetFileName(gGetUserDataFolder()), "Vornex EDA");
    vapp_platform::SetWineAnswer(std::nullopt);
    EXPECT_TRUE(gDirectoryExists(gGetDirectory(gGetUserDataFolder())));
}

}  // namespace
