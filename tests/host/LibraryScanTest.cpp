/// Which views a folder has: files, folders, links, and names of every kind.

#include "host/LibraryScan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/host/TempFolder.h"

namespace navigator {
namespace {

using navigator_test::TempFolder;
using testing::ElementsAre;

std::vector<std::string> Names(const Library& library) {
    std::vector<std::string> names;
    for (const ViewFile& file : library.files)
        names.push_back(file.cell + "/" + file.view);
    return names;
}

Library Scan(const TempFolder& folder) {
    return gScanLibrary("lib", folder.Path(), FolderCells::Yes);
}

TEST(LibraryScan, EachExtensionOfTheTableIsAView) {
    for (const ViewExtension& row : gViewExtensions()) {
        const TempFolder folder;
        folder.Write("a.b" + std::string(row.extension), "");
        const Library library = Scan(folder);
        ASSERT_EQ(library.files.size(), 1u) << row.extension;
        EXPECT_EQ(library.files[0].cell, "a.b");
        EXPECT_EQ(library.files[0].view, row.view);
        EXPECT_EQ(library.files[0].format, row.format);
    }
}

TEST(LibraryScan, FilesAndFoldersGiveTheViewsInByteOrder) {
    const TempFolder folder;
    for (const char* file :
         {"inv.sym", "inv.sch", "bank10.sym", "bank2.sym", "README.txt", ".hidden.sym", "plain",
          "pad/layout/rows.txt", "pad/symbol/pad.sym", "pad/notes.txt", "empty/readme", ".git/x/y"})
        folder.Write(file, "");
    EXPECT_THAT(Names(Scan(folder)), ElementsAre("bank10/symbol", "bank2/symbol", "inv/schematic",
                                                 "inv/symbol", "pad/layout", "pad/symbol"));
}

TEST(LibraryScan, FoldersAreNoCellsWhereTheyAreLibraries) {
    const TempFolder folder;
    folder.Write("lib/x/symbol/x.sym", "");
    folder.Write("own.sym", "");
    EXPECT_THAT(Names(gScanLibrary("d", folder.Path(), FolderCells::No)), ElementsAre("own/symbol"));
}

TEST(LibraryScan, OfSeveralFilesForAViewOneOpensAndTheOthersAreKept) {
    const TempFolder folder;
    for (const char* file : {"a.SYM", "a.sym", "a/symbol/a.sym", "a.sp", "a.spice"})
        folder.Write(file, "");
    const Library library = Scan(folder);
    EXPECT_THAT(Names(library), ElementsAre("a/spice", "a/symbol"));
    EXPECT_EQ(std::filesystem::path(library.files[0].file), "a.spice");
    EXPECT_FALSE(library.files[1].isFolder);
    EXPECT_EQ(library.shadowed.size(), 3u);
}

TEST(LibraryScan, NamesOfEveryKindAreKept) {
    const std::string names[] = {"a b",       "{",   "a}b", "\"q\"",  "line\nbreak",      "$x",
                                 "[exec ls]", "a;b", "\\",  "-count", "verst\xC3\xA4rker"};
    const TempFolder folder;
    for (const std::string& name : names)
        folder.Write(name + ".sym", "");
    const Library library = Scan(folder);
    for (const std::string& name : names)
        EXPECT_NE(library.Find(name, "symbol"), nullptr) << name;
    EXPECT_EQ(library.files.size(), std::size(names));
}

TEST(LibraryScan, NamesThatAreNoUtf8AreEscapedStayApartAndOpen) {
    const TempFolder folder;
    try {
        folder.Write("a\xFF.sym", "K {type=fab}\n");
    } catch (const std::filesystem::filesystem_error&) {
    }
    if (!std::filesystem::exists(folder.Path() / "a\xFF.sym"))
        GTEST_SKIP() << "the file system takes only valid names";
    folder.Write("a%FF.sym", "");
    folder.Write("a\xFF.sch", "");
    const Library library = Scan(folder);
    EXPECT_THAT(Names(library), ElementsAre("a%FF/symbol", "a%FF~2/schematic", "a%FF~2/symbol"));
    FileFacts facts;
    gReadHead(folder.Path() / std::filesystem::path(library.files[2].file), facts);
    EXPECT_EQ(facts.type, "fab");
}

TEST(LibraryScan, LoopsOfLinksAndDeadLinksEnd) {
    const TempFolder folder;
    folder.Write("a.sym", "");
    std::filesystem::create_directory_symlink(folder.Path(), folder.Path() / "loop");
    std::filesystem::create_symlink("self.sym", folder.Path() / "self.sym");
    std::filesystem::create_symlink("nowhere.sym", folder.Path() / "dead.sym");
    std::filesystem::create_symlink("a.sym", folder.Path() / "b.sym");
    EXPECT_THAT(Names(Scan(folder)), ElementsAre("a/symbol", "b/symbol", "loop/loop"));
}

TEST(LibraryScan, AFolderThatIsNotThereIsUnreadable) {
    const TempFolder folder;
    EXPECT_FALSE(gScanLibrary("x", folder.Path() / "gone", FolderCells::Yes).isReadable);
    EXPECT_FALSE(gScanLibrary("x", folder.Write("file", ""), FolderCells::Yes).isReadable);
    EXPECT_TRUE(Scan(folder).isReadable);
}

TEST(LibraryScan, FindsTheViewsOfACell) {
    const TempFolder folder;
    for (const char* file : {"in.sym", "inv.sym", "inv.sch", "inv.v", "invx.sym"})
        folder.Write(file, "");
    const Library library = Scan(folder);
    EXPECT_EQ(library.Cell("inv").size(), 3u);
    EXPECT_EQ(library.Cell("i").size(), 0u);
    EXPECT_EQ(library.Cell("zzz").size(), 0u);
    EXPECT_EQ(library.Find("inv", "layout"), nullptr);
}

}  // namespace
}  // namespace navigator
