#include <gmock/gmock.h>

#include <string>

#include "platform/FileSystem.h"
#include "platform/FileWalk.h"
#include "platform/Files.h"
#include "tests/platform/ShellLinkBytes.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

using platform_test::ShellLinkBytes;
using platform_test::TShellLinkParts;
using platform_test::TTemporaryFolder;
using testing::ElementsAre;
namespace fs = std::filesystem;

struct ShortcutTest : testing::Test {
    void MakeShortcut(std::string_view below, const TShellLinkParts& parts) const {
        folder.MakeFile(below, ShellLinkBytes(parts));
    }
    TTemporaryFolder folder;
};

TEST_F(ShortcutTest, ARelativePathIsSeenFromTheShortcutsFolder) {
    folder.MakeFolder("lib").MakeFolder("links").MakeFile("lib/inv.sch");
    MakeShortcut("links/s.lnk", {.relativePath = u"..\\lib\\inv.sch"});
    EXPECT_EQ(gResolveShortcut(folder.Path("links/s.lnk")), folder.Path("lib/inv.sch"));
}

TEST_F(ShortcutTest, NamesThatLookLikeVariablesStayInTheFolder) {
    folder.MakeFolder("$HOME").MakeFile("$HOME/%PATH%");
    MakeShortcut("$HOME/s.lnk", {.relativePath = u".\\%PATH%"});
    EXPECT_EQ(gResolveShortcut(folder.Path("$HOME/s.lnk")), folder.Path("$HOME/%PATH%"));
}

TEST_F(ShortcutTest, OfSeveralPlacesTheFirstThatExistsCounts) {
    folder.MakeFile("here").MakeFile("there");
    const std::u16string here = folder.Path("here").ToWide();
    MakeShortcut("both.lnk", {.localBaseWide = here, .relativePath = u".\\there"});
    EXPECT_EQ(gResolveShortcut(folder.Path("both.lnk")), folder.Path("here"));
    MakeShortcut("copied.lnk",
                 {.localBase = "C:\\gone", .share = "\\\\gone\\too", .relativePath = u".\\there"});
    EXPECT_EQ(gResolveShortcut(folder.Path("copied.lnk")), folder.Path("there"));
}

TEST_F(ShortcutTest, OfPlacesThatAreAllMissingTheFirstIsTold) {
    MakeShortcut("s.lnk",
                 {.localBase = "\\gone\\a", .share = "\\\\gone\\share", .suffix = "b", .relativePath = u"c"});
    EXPECT_EQ(gResolveShortcut(folder.Path("s.lnk")), "//gone/share/b");
    MakeShortcut("t.lnk", {.localBase = "\\gone\\a"});
    EXPECT_EQ(gResolveShortcut(folder.Path("t.lnk")), "/gone/a");
}

TEST_F(ShortcutTest, AShortcutThatNamesNothingIsItself) {
    MakeShortcut("s.lnk", {});
    EXPECT_EQ(gResolveShortcut(folder.Path("s.lnk")), folder.Path("s.lnk"));
}

TEST_F(ShortcutTest, AShortcutIsKnownByItsBytesNotByItsName) {
    folder.MakeFile("inv.sch");
    MakeShortcut("shortcut", {.relativePath = u".\\inv.sch"});
    EXPECT_EQ(gResolveShortcut(folder.Path("shortcut")), folder.Path("inv.sch"));
}

TEST_F(ShortcutTest, ASymbolicLinkLeadsToItsEnd) {
    folder.MakeFolder("lib").MakeFile("lib/inv.sch");
    fs::create_symlink("lib/inv.sch", folder.Native("one"));
    fs::create_symlink("one", folder.Native("two"));
    fs::create_symlink("nowhere", folder.Native("none"));
    fs::create_symlink("loop", folder.Native("loop"));
    const CStringU end(std::u16string_view(fs::canonical(folder.Native("lib/inv.sch")).u16string()));
    EXPECT_EQ(gResolveShortcut(folder.Path("one")), end);
    EXPECT_EQ(gResolveShortcut(folder.Path("two")), end);
    EXPECT_EQ(gResolveShortcut(folder.Path("none")), folder.Path("none"));
    EXPECT_EQ(gResolveShortcut(folder.Path("loop")), folder.Path("loop"));
    EXPECT_EQ(gResolveShortcut(folder.Path("lib")), folder.Path("lib"));
}

TEST_F(ShortcutTest, WalksFollowShortcutsToFolders) {
    folder.MakeFolder("top")
        .MakeFolder("lib")
        .MakeFile("lib/inv.sch")
        .MakeFile("top/a.sch")
        .MakeFile("other.sch");
    MakeShortcut("top/lib.lnk", {.relativePath = u"..\\lib"});
    MakeShortcut("top/file.lnk", {.relativePath = u"..\\other.sch"});
    EXPECT_THAT(gCollectFiles(folder.Path("top"), "", false),
                ElementsAre(folder.Path("lib/inv.sch"), folder.Path("top/a.sch"), folder.Path("top/file.lnk"),
                            folder.Path("top/lib.lnk")));
    EXPECT_THAT(gCollectFiles(folder.Path("top/lib.lnk"), "", false),
                ElementsAre(folder.Path("lib/inv.sch")));
    EXPECT_THAT(gCollectFiles(folder.Path("top"), "lnk", false),
                ElementsAre(folder.Path("top/file.lnk"), folder.Path("top/lib.lnk")));
}

TEST_F(ShortcutTest, WalksFollowShortcutsToShortcuts) {
    folder.MakeFolder("lib").MakeFile("lib/inv.sch").MakeFolder("top");
    MakeShortcut("one.lnk", {.relativePath = u".\\two.lnk"});
    MakeShortcut("two.lnk", {.relativePath = u".\\lib"});
    MakeShortcut("top/one.lnk", {.relativePath = u"..\\one.lnk"});
    EXPECT_THAT(gCollectFiles(folder.Path("one.lnk"), "", false), ElementsAre(folder.Path("lib/inv.sch")));
    EXPECT_THAT(gCollectFiles(folder.Path("top"), "sch", false), ElementsAre(folder.Path("lib/inv.sch")));
    MakeShortcut("a.lnk", {.relativePath = u".\\b.lnk"});
    MakeShortcut("b.lnk", {.relativePath = u".\\a.lnk"});
    EXPECT_TRUE(gCollectFiles(folder.Path("a.lnk"), "", true).empty()) << "and none in a circle";
}

TEST_F(ShortcutTest, AFolderOfThatNameIsNoShortcutAndNotEntered) {
    folder.MakeFolder("lib.lnk").MakeFile("lib.lnk/inv.sch");
    EXPECT_TRUE(gCollectFiles(folder.Path("lib.lnk"), "", true).empty());
    EXPECT_THAT(gCollectFiles(folder.Path(), "", true), ElementsAre(folder.Path("lib.lnk")));
}

TEST_F(ShortcutTest, WalksEndOnShortcutsInACircle) {
    folder.MakeFolder("a").MakeFolder("b").MakeFile("a/f").MakeFile("b/g");
    MakeShortcut("a/b.lnk", {.relativePath = u"..\\b"});
    MakeShortcut("b/a.lnk", {.relativePath = u"..\\a"});
    MakeShortcut("b/self.lnk", {.relativePath = u".\\self.lnk"});
    EXPECT_THAT(gCollectFiles(folder.Path("a"), "", false),
                ElementsAre(folder.Path("b/a.lnk"), folder.Path("b/g"), folder.Path("b/self.lnk"),
                            folder.Path("a/b.lnk"), folder.Path("a/f")));
}

TEST_F(ShortcutTest, AChainOfShortcutsIsWalkedWithoutRecursion) {
    constexpr int cnLinks = 1000;
    for (int i = 0; i < cnLinks; ++i) {
        const std::string name = "d" + std::to_string(i);
        folder.MakeFolder(name);
        const std::string next = "..\\d" + std::to_string(i + 1);
        MakeShortcut(name + "/next.lnk", {.relativePath = std::u16string(next.begin(), next.end())});
    }
    EXPECT_EQ(gCollectFiles(folder.Path("d0"), "", false).size(), std::size_t{cnLinks});
}

}  // namespace
