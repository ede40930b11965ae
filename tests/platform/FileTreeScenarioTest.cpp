// Random trees of files: every question about them against the standard library's answer.
#include <gmock/gmock.h>

#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/FileWalk.h"
#include "platform/Files.h"
#include "platform/Folders.h"
#include "platform/Paths.h"
#include "tests/platform/TemporaryFolder.h"
#include "tests/text/HostileText.h"

namespace {

using platform_test::TTemporaryFolder;
using text_test::UpTo;
namespace fs = std::filesystem;

// Some are folders in one place and files in another. The last is one of every ANSI code page of the West.
constexpr std::array<const char*, 10> cnNames = {"a",     "b.sch", "c.sym", "bank10",  "bank9",
                                                 "x.lib", "d e",   ".rc",   "two.a.b", "\xC3\xA9.sch"};

struct FileTreeScenarioTest : testing::Test {
    void MakeTree(std::mt19937& random) const {
        std::vector<std::string> folders = {""};
        for (int i = 0; i < 40; ++i) {
            const std::string path = folders[UpTo(random, folders.size() - 1)] + cnNames[UpTo(random, 9)];
            if (fs::exists(tree.Native(path))) continue;
            if (UpTo(random, 2) == 0) {
                tree.MakeFolder(path);
                folders.push_back(path + '/');
            } else {
                tree.MakeFile(path, std::string(UpTo(random, 3), 'x'));
            }
        }
    }
    // By the form in which the walk tells them.
    [[nodiscard]] CStringU TextOf(const fs::path& path) const {
        return CStringU(std::u16string_view(path.u16string()));
    }
    [[nodiscard]] std::multiset<CStringU> EntriesBelow(bool folders, const char* extension) const {
        std::multiset<CStringU> found;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(tree.Native())) {
            const CStringU path = TextOf(entry.path());
            const bool isTaken = folders || !entry.is_directory();
            if (isTaken && (extension == nullptr || gGetExtension(path) == extension)) found.insert(path);
        }
        return found;
    }
    static std::multiset<CStringU> AsSet(const std::vector<CStringU>& paths) {
        return {paths.begin(), paths.end()};
    }

    TTemporaryFolder tree;
};

TEST_F(FileTreeScenarioTest, WalksFindWhatTheStandardLibraryFinds) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 10; ++round) {
        MakeTree(random);
        for (const bool folders : {false, true}) {
            EXPECT_EQ(AsSet(gCollectFiles(tree.Path(), "", folders)), EntriesBelow(folders, nullptr));
            EXPECT_EQ(AsSet(gCollectFiles(tree.Path(), "sch", folders)), EntriesBelow(folders, "sch"));
        }
        std::multiset<CStringU> named;
        for (const CStringU& path : EntriesBelow(false, nullptr)) {
            if (gGetFileName(path) == "bank9") named.insert(path);
        }
        EXPECT_EQ(AsSet(gFindFiles(tree.Path(), "bank9")), named);
    }
}

TEST_F(FileTreeScenarioTest, WhatLiesBelowComesBeforeItsFolder) {
    std::mt19937 random = text_test::SeededRandom();
    MakeTree(random);
    std::map<CStringU, std::size_t> places;
    const std::vector<CStringU> found = gCollectFiles(tree.Path(), "", true);
    for (std::size_t i = 0; i < found.size(); ++i)
        places[found[i]] = i;
    for (const auto& [path, place] : places) {
        const auto folder = places.find(gGetDirectory(path));
        if (folder != places.end()) {
            EXPECT_LT(place, folder->second) << path.Payload();
        }
    }
}

TEST_F(FileTreeScenarioTest, EachEntryIsWhatTheStandardLibrarySays) {
    std::mt19937 random = text_test::SeededRandom();
    MakeTree(random);
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(tree.Native())) {
        const CStringU path = TextOf(entry.path());
        SCOPED_TRACE(path.Payload());
        EXPECT_EQ(gFileExists(path), entry.is_regular_file());
        EXPECT_EQ(gDirectoryExists(path), entry.is_directory());
        EXPECT_GT(gGetFileWriteTime(path), 0U);
        if (entry.is_directory()) {
            EXPECT_EQ(gIsDirectoryEmpty(path), fs::is_empty(entry.path()));
            std::multiset<CStringU> names;
            for (const fs::directory_entry& below : fs::directory_iterator(entry.path()))
                names.insert(TextOf(below.path().filename()));
            EXPECT_EQ(AsSet(gListFolder(path)), names);
        } else {
            EXPECT_EQ(gGetFileSize(path), static_cast<std::int64_t>(entry.file_size()));
            EXPECT_FALSE(gIsDirectoryEmpty(path));
            EXPECT_TRUE(gListFolder(path).empty());
            EXPECT_FALSE(gCreateDirectories(path + "/below"));
        }
        EXPECT_TRUE(gCreateDirectories(path)) << "it is there already";
    }
}

}  // namespace
