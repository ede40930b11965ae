// Walks over folders that lead back into themselves.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "platform/FileWalk.h"
#include "platform/posix/NativePath.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

using platform_test::TTemporaryFolder;
using testing::ElementsAre;
namespace fs = std::filesystem;

struct LinkLoopScenarioTest : testing::Test {
    [[nodiscard]] std::vector<std::string> Collect() const {
        std::vector<std::string> below;
        for (const CStringU& path : gCollectFiles(folder.Path(), "", false)) {
            below.push_back(vapp_platform::ToNativePath(path).substr(folder.Native().string().size() + 1));
        }
        return below;
    }
    TTemporaryFolder folder;
};

TEST_F(LinkLoopScenarioTest, ALinkToItsOwnFolderIsNotEntered) {
    folder.MakeFile("f");
    fs::create_directory_symlink(".", folder.Native("self"));
    EXPECT_THAT(Collect(), ElementsAre("f"));
}

TEST_F(LinkLoopScenarioTest, ALinkToAFolderAboveIsNotEntered) {
    folder.MakeFolder("a/b").MakeFile("a/b/f").MakeFile("g");
    fs::create_directory_symlink("../..", folder.Native("a/b/up"));
    EXPECT_THAT(Collect(), ElementsAre("a/b/f", "g"));
}

TEST_F(LinkLoopScenarioTest, TwoFoldersThatLinkToEachOtherAreSeenFromBothSides) {
    folder.MakeFolder("a").MakeFolder("b").MakeFile("a/f").MakeFile("b/g");
    fs::create_directory_symlink("../b", folder.Native("a/toB"));
    fs::create_directory_symlink("../a", folder.Native("b/toA"));
    EXPECT_THAT(Collect(), ElementsAre("a/toB/g", "a/f", "b/toA/f", "b/g"));
}

TEST_F(LinkLoopScenarioTest, LinksWithoutALoopAreFollowedEachTime) {
    folder.MakeFolder("real").MakeFile("real/f");
    for (int i = 0; i < 150; ++i)
        fs::create_directory_symlink("real", folder.Native("l" + std::to_string(i)));
    const auto found = Collect();
    EXPECT_EQ(found.size(), 151U);
    EXPECT_EQ(found.front(), "l0/f");
    EXPECT_EQ(found.back(), "real/f");
}

TEST_F(LinkLoopScenarioTest, LinksInACircleOfNamesLeadNowhere) {
    fs::create_symlink("b", folder.Native("a"));
    fs::create_symlink("a", folder.Native("b"));
    folder.MakeFile("f");
    EXPECT_THAT(Collect(), ElementsAre("f"));
}

TEST_F(LinkLoopScenarioTest, FoldersThatAllLinkToOneAnotherAreWalkedInBoundedTime) {
    constexpr int cnFolders = 14;  // more than ten thousand million ways through them
    for (int i = 0; i < cnFolders; ++i) {
        folder.MakeFolder(std::to_string(i)).MakeFile(std::to_string(i) + "/f");
    }
    for (int i = 0; i < cnFolders; ++i) {
        for (int j = 0; j < cnFolders; ++j) {
            fs::create_directory_symlink("../" + std::to_string(j),
                                         folder.Native(std::to_string(i) + "/to" + std::to_string(j)));
        }
    }
    const auto found = Collect();
    EXPECT_LE(found.size(), std::size_t{cnFolders * 100});
    for (int i = 0; i < cnFolders; ++i) {
        const std::string name = "/to" + std::to_string(i) + "/f";
        EXPECT_TRUE(std::any_of(found.begin(), found.end(), [&](const std::string& path) {
            return path.ends_with(name) || path == std::to_string(i) + "/f";
        })) << i;
    }
}

}  // namespace
