/// The folders that were opened last: their order, folding, limits and place in the settings.

#include "host/RecentFolders.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "tests/host/TempFolder.h"
#include "vapp/toolkit/CWinAppEx.h"

namespace navigator_test {
namespace {

namespace fs = std::filesystem;
using navigator::gRecentFolderText;
using navigator::RecentFolders;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(RecentFolders, TheNewestStandsInFrontAndTheOldestGoes) {
    RecentFolders recent;
    for (int number = 1; number <= 10; ++number)
        recent.Add("/libs/" + std::to_string(number));
    ASSERT_EQ(RecentFolders::cnMostKept, recent.Paths().size());
    EXPECT_EQ("/libs/10", recent.Paths().front());
    EXPECT_EQ("/libs/3", recent.Paths().back());
    recent.Add("/libs/5");
    EXPECT_EQ("/libs/5", recent.Paths().front());
    EXPECT_EQ(RecentFolders::cnMostKept, recent.Paths().size());
}

TEST(RecentFolders, AFolderIsThereOnceHoweverItIsWritten) {
    const TempFolder folder;
    fs::create_directories(folder.Path() / "libs");
    fs::create_directory_symlink(folder.Path() / "libs", folder.Path() / "link");
    const std::string libs = (folder.Path() / "libs").string();
    RecentFolders recent;
    for (const fs::path& spelling :
         {folder.Path() / "libs", folder.Path() / "libs" / "", folder.Path() / "." / "link" / ".." / "libs",
          folder.Path() / "libs" / "." / "", folder.Path() / "link"})
        recent.Add(spelling);
    EXPECT_THAT(recent.Paths(), ElementsAre((folder.Path() / "link").string())) << "as it was written last";
    recent.Add(libs + "//");
    EXPECT_THAT(recent.Paths(), ElementsAre(libs));
    recent.Remove(folder.Path() / "link");
    EXPECT_THAT(recent.Paths(), IsEmpty());
}

TEST(RecentFolders, RelativePathsAreKeptAsAbsoluteOnes) {
    RecentFolders recent;
    recent.Add("some/where/../here");
    EXPECT_THAT(recent.Paths(), ElementsAre((fs::current_path() / "some/here").string()));
    recent.Add("");
    EXPECT_EQ(1u, recent.Paths().size());
    recent.Add("/");
    EXPECT_EQ("/", recent.Paths().front());
}

TEST(RecentFolders, AreKeptInTheSettings) {
    CWinAppEx app("test");
    RecentFolders recent;
    recent.Add("/libs/a & b");
    recent.Add("/libs/verst\xC3\xA4rker");
    recent.Store(app);
    EXPECT_EQ(CString("/libs/verst\xC3\xA4rker"), app.GetProfileString("RecentFolders", "Folder1"));
    RecentFolders read;
    read.Load(app);
    EXPECT_EQ(recent.Paths(), read.Paths());
    recent.Remove("/libs/a & b");
    recent.Store(app);
    read.Load(app);
    EXPECT_THAT(read.Paths(), ElementsAre("/libs/verst\xC3\xA4rker"));
}

TEST(RecentFolders, DoublesAndGapsInTheSettingsAreMended) {
    CWinAppEx app("test");
    app.WriteProfileString("RecentFolders", "Folder2", "/libs/a");
    app.WriteProfileString("RecentFolders", "Folder5", "/libs/./a/");
    app.WriteProfileString("RecentFolders", "Folder7", "/libs/b");
    app.WriteProfileInt("RecentFolders", "Folder8", 7);
    RecentFolders read;
    read.Load(app);
    EXPECT_THAT(read.Paths(), ElementsAre("/libs/a", "/libs/b"));
}

TEST(RecentFolders, ANameThatIsNoTextIsNotKept) {
    RecentFolders recent;
    recent.Add(std::string("/libs/\xFF\xFE"));
    EXPECT_THAT(recent.Paths(), IsEmpty());
}

TEST(RecentFolders, MenusShowPathsAsTheyAre) {
    EXPECT_EQ("&1  /libs/a && b", gRecentFolderText(1, "/libs/a & b"));
    EXPECT_EQ("&3  /libs/a?b?", gRecentFolderText(3, "/libs/a\tb\x7F"));
    EXPECT_EQ("&2  /&&&&", gRecentFolderText(2, "/&&"));
}

TEST(RecentFolders, ALongPathLosesItsMiddle) {
    std::string path = "/";
    for (int count = 0; count < 100; ++count)
        path += "\xC3\xA4";
    std::string shown = "&1  /";
    for (int count = 0; count < 19; ++count)
        shown += "\xC3\xA4";
    shown += "\xE2\x80\xA6";
    for (int count = 0; count < 39; ++count)
        shown += "\xC3\xA4";
    EXPECT_EQ(shown, gRecentFolderText(1, path));
    EXPECT_EQ("&1  " + std::string(60, 'x'), gRecentFolderText(1, std::string(60, 'x')));
}

}  // namespace
}  // namespace navigator_test
