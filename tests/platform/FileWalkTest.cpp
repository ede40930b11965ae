#include "platform/FileWalk.h"

#include <gmock/gmock.h>

#include <atomic>
#include <string>
#include <thread>

#include "platform/Files.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

using platform_test::TTemporaryFolder;
using testing::ElementsAre;
using testing::IsEmpty;

struct FileWalkTest : testing::Test {
    // The paths without the folder in front, with `/`, for short expectations.
    [[nodiscard]] std::vector<std::string> Below(const std::vector<CStringU>& paths) const {
        std::vector<std::string> below;
        const std::string front(folder.Path().PayloadView());
        for (const CStringU& path : paths) {
            std::string text(path.PayloadView());
            EXPECT_TRUE(text.starts_with(front)) << text;
            text.erase(0, front.size() + 1);
            std::replace(text.begin(), text.end(), '\\', '/');
            below.push_back(text);
        }
        return below;
    }
    [[nodiscard]] std::vector<std::string> Collect(const char* extensions, bool folders = false) const {
        return Below(gCollectFiles(folder.Path(), extensions, folders));
    }
    TTemporaryFolder folder;
};

TEST_F(FileWalkTest, WhatLiesBelowComesFirstThenTheFoldersOwn) {
    folder.MakeFolder("b/x").MakeFolder("a");
    folder.MakeFile("z.sch")
        .MakeFile("a/one.sch")
        .MakeFile("b/two.sch")
        .MakeFile("b/x/three.sch")
        .MakeFile("c.sch");
    EXPECT_THAT(Collect(""), ElementsAre("a/one.sch", "b/x/three.sch", "b/two.sch", "c.sch", "z.sch"));
}

TEST_F(FileWalkTest, NamesAreInNaturalOrder) {
    for (const char* name : {"bank10", "Bank2", "bank02", "bank1"})
        folder.MakeFile(name);
    EXPECT_THAT(Collect(""), ElementsAre("bank1", "Bank2", "bank02", "bank10"));
}

TEST_F(FileWalkTest, TheListOfExtensionsChooses) {
    folder.MakeFolder("d.sym");
    for (const char* name : {"a.sch", "b.sym", "c.SYM", "noextension", "e.sch.bak", "d.sym/f.sym", ".sym"})
        folder.MakeFile(name);
    EXPECT_THAT(Collect("sym"), ElementsAre("d.sym/f.sym", ".sym", "b.sym"));
    EXPECT_THAT(Collect("sch;bak"), ElementsAre("a.sch", "e.sch.bak"));
    EXPECT_THAT(Collect(" sch, bak\t"), ElementsAre("a.sch", "e.sch.bak"));
    EXPECT_EQ(Collect("").size(), 7U);
    EXPECT_EQ(Collect("*").size(), 7U);
    EXPECT_EQ(Collect("sch *").size(), 7U);
    EXPECT_THAT(Collect("cdl"), IsEmpty());
}

TEST_F(FileWalkTest, ASetOfExtensionsChoosesTheSame) {
    folder.MakeFile("a.sch").MakeFile("b.sym").MakeFile("c");
    EXPECT_THAT(Below(gCollectFiles(folder.Path(), std::set<CStringU>{"sym", ""}, false)),
                ElementsAre("b.sym", "c"));
    EXPECT_EQ(gCollectFiles(folder.Path(), std::set<CStringU>(), false).size(), 3U);
}

TEST_F(FileWalkTest, FoldersAreCollectedOnRequestByTheSameRule) {
    folder.MakeFolder("lib/inv").MakeFolder("x.lib").MakeFile("lib/f").MakeFile("g.lib");
    EXPECT_THAT(Collect("", true), ElementsAre("lib/f", "lib/inv", "g.lib", "lib", "x.lib"));
    EXPECT_THAT(Collect("lib", true), ElementsAre("g.lib", "x.lib"));
}

TEST_F(FileWalkTest, NothingIsCollectedWhereThereIsNoFolder) {
    folder.MakeFile("file.sch").MakeFolder("empty");
    EXPECT_THAT(gCollectFiles(folder.Path("file.sch"), "", true), IsEmpty());
    EXPECT_THAT(gCollectFiles(folder.Path("missing"), "", true), IsEmpty());
    EXPECT_THAT(gCollectFiles(folder.Path("empty"), "", true), IsEmpty());
    EXPECT_THAT(gCollectFiles("", "", true), IsEmpty());
    EXPECT_THAT(gCollectFiles(folder.Path("missing.lnk"), "", true), IsEmpty());
}

TEST_F(FileWalkTest, ASeparatorAtTheEndIsNotDoubled) {
    folder.MakeFile("a");
    EXPECT_THAT(Below(gCollectFiles(folder.Path() + '/', "", false)), ElementsAre("a"));
    EXPECT_THAT(Below(gCollectFiles(folder.Path() + '\\', "", false)), ElementsAre("a"));
}

TEST_F(FileWalkTest, NamesThatLookLikeVariablesStayInTheFolder) {
    folder.MakeFolder("$HOME").MakeFile("$HOME/a").MakeFolder("%PATH%").MakeFile("%PATH%/b");
    EXPECT_THAT(Collect(""), ElementsAre("$HOME/a", "%PATH%/b"));
}

TEST_F(FileWalkTest, FindsFilesByName) {
    folder.MakeFolder("a/inv.sch").MakeFolder("b");
    folder.MakeFile("inv.sch").MakeFile("b/inv.sch").MakeFile("a/inv.sch/inv.sch").MakeFile("b/inv.sch.bak");
    EXPECT_THAT(Below(gFindFiles(folder.Path(), "inv.sch")),
                ElementsAre("a/inv.sch/inv.sch", "b/inv.sch", "inv.sch"));
    EXPECT_THAT(gFindFiles(folder.Path(), "INV.sch"), IsEmpty());
    EXPECT_THAT(gFindFiles(folder.Path(), "."), IsEmpty());
    EXPECT_THAT(gFindFiles(folder.Path("missing"), "inv.sch"), IsEmpty());
}

TEST_F(FileWalkTest, EveryPathThatIsCollectedOpens) {
    folder.MakeFolder("M\xC3\xBCller/\xE5\x9B\x9E");
    folder.MakeFile("M\xC3\xBCller/\xE5\x9B\x9E/\xF0\x9D\x84\x9E")
        .MakeFile("a b.c d")
        .MakeFile("M\xC3\xBCller/..x");
    const std::vector<CStringU> paths = gCollectFiles(folder.Path(), "*", false);
    EXPECT_EQ(paths.size(), 3U);
    for (const CStringU& path : paths)
        EXPECT_TRUE(gFileExists(path)) << path.Payload();
}

TEST_F(FileWalkTest, FoldersMayVanishDuringTheWalk) {
    for (int i = 0; i < 100; ++i) {
        const std::string name = "d" + std::to_string(i);
        folder.MakeFolder(name + "/e").MakeFile(name + "/e/f").MakeFile(name + "/g");
    }
    std::atomic<bool> isGone = false;
    std::thread remover([&] {
        for (int i = 99; i >= 0; --i) {
            std::error_code inUse;  // Windows doesn't remove what is being read
            std::filesystem::remove_all(folder.Native("d" + std::to_string(i)), inUse);
        }
        isGone = true;
    });
    std::size_t fewest = 200;
    do {
        fewest = std::min(fewest, gCollectFiles(folder.Path(), "", false).size());
    } while (!isGone);
    remover.join();
    EXPECT_LE(gCollectFiles(folder.Path(), "", false).size(), fewest);
}

TEST_F(FileWalkTest, ADeepTreeIsWalkedToItsEnd) {
    const auto old = std::filesystem::current_path();
    std::filesystem::current_path(folder.Native());
    std::string path = "t";
    for (int i = 0; i < 60; ++i)
        path += "/d";
    std::filesystem::create_directories(path);
    std::ofstream(path + "/f") << "x";
    const auto found = gCollectFiles("t", "", false);
    std::filesystem::current_path(old);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].GetByteLength(), static_cast<int>(path.size()) + 2);
}

// Wine looks at every name of a folder to make one more, so that there a hundred thousand take hours.
constexpr bool cnMakesFilesSlowly = std::filesystem::path::preferred_separator == '\\';

TEST_F(FileWalkTest, AFolderOfVeryManyEntries) {
    constexpr std::size_t cnFiles = cnMakesFilesSlowly ? 3000 : 100000;
    folder.MakeFolder("many");
    for (std::size_t i = 0; i < cnFiles; ++i)
        folder.MakeFile("many/f" + std::to_string(i) + (i % 2 == 0 ? ".sch" : ".sym"));
    const auto all = Collect("");
    ASSERT_EQ(all.size(), cnFiles);
    EXPECT_EQ(all.front(), "many/f0.sch");
    EXPECT_EQ(all[99], "many/f99.sym");
    EXPECT_EQ(all.back(), "many/f" + std::to_string(cnFiles - 1) + ".sym");
    EXPECT_EQ(Collect("sym").size(), cnFiles / 2);
    EXPECT_EQ(gFindFiles(folder.Path(), "f1711.sym").size(), 1U);
}

}  // namespace
