#include "platform/Files.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "tests/platform/TemporaryFolder.h"

namespace {

using platform_test::TTemporaryFolder;

TEST(FilesTest, AFileExistsAndAFolderIsNone) {
    const TTemporaryFolder folder;
    folder.MakeFile("inv.sch", "abc").MakeFolder("lib");
    EXPECT_TRUE(gFileExists(folder.Path("inv.sch")));
    EXPECT_FALSE(gFileExists(folder.Path("lib")));
    EXPECT_FALSE(gFileExists(folder.Path("inv.sym")));
    EXPECT_FALSE(gFileExists(folder.Path("inv.sch/below")));
    EXPECT_FALSE(gFileExists(""));
}

TEST(FilesTest, SizesAreThoseOfTheContent) {
    const TTemporaryFolder folder;
    folder.MakeFile("three", "abc").MakeFile("none").MakeFolder("lib");
    EXPECT_EQ(gGetFileSize(folder.Path("three")), 3);
    EXPECT_EQ(gGetFileSize(folder.Path("none")), 0);
    EXPECT_EQ(gGetFileSize(folder.Path("lib")), 0);
    EXPECT_EQ(gGetFileSize(folder.Path("missing")), -1);
    EXPECT_EQ(gGetFileSize(""), -1);
}

TEST(FilesTest, SizesBeyond32BitsAreWhole) {
    const TTemporaryFolder folder;
    folder.MakeFile("big");
    std::filesystem::resize_file(folder.Native("big"), std::uintmax_t{5} << 30U);  // sparse
    EXPECT_EQ(gGetFileSize(folder.Path("big")), std::int64_t{5} << 30U);
}

TEST(FilesTest, WriteTimesCountFromTheYear1601) {
    using std::chrono::file_clock;
    using std::chrono::seconds;
    using std::chrono::sys_seconds;
    const TTemporaryFolder folder;
    folder.MakeFile("inv.sch").MakeFolder("lib");
    std::filesystem::last_write_time(folder.Native("inv.sch"),
                                     file_clock::from_sys(sys_seconds(seconds(1000000000))));
    EXPECT_EQ(gGetFileWriteTime(folder.Path("inv.sch")), 126444736000000000U);
    EXPECT_GT(gGetFileWriteTime(folder.Path("lib")), 126444736000000000U);
    EXPECT_EQ(gGetFileWriteTime(folder.Path("missing")), 0U);
}

TEST(FilesTest, NamesOfAllScriptsAreFound) {
    const TTemporaryFolder folder;
    // The last one is beyond 16 bits: an inverter's sign, four bytes in a name on disk.
    for (const std::string name : {"M\xC3\xBCller.sch", "\xE5\x9B\x9E\xE8\xB7\xAF", "\xF0\x9D\x84\x9E.sym"}) {
        folder.MakeFile(name, "x");
        EXPECT_TRUE(gFileExists(folder.Path(name))) << name;
        EXPECT_NE(gGetFileWriteTime(folder.Path(name)), 0U) << name;
    }
}

TEST(FilesTest, ANameOf255BytesIsFound) {
    const TTemporaryFolder folder;
    // Short of the 260 characters that a whole path may have on Windows only without a folder in front of it.
    const std::string name(255, 'n');
    const auto old = std::filesystem::current_path();
    std::filesystem::current_path(folder.Native());
    std::ofstream(name) << "x";
    EXPECT_TRUE(gFileExists(name.c_str()));
    EXPECT_EQ(gGetFileSize(name.c_str()), 1);
    EXPECT_FALSE(gFileExists((name + "n").c_str()));
    std::filesystem::current_path(old);
}

TEST(FilesTest, WhatIsNoShortcutResolvesToItself) {
    const TTemporaryFolder folder;
    folder.MakeFile("text.lnk", "no shell link at all").MakeFile("empty.lnk").MakeFolder("folder.lnk");
    EXPECT_EQ(gResolveShortcut(""), CStringU());
    for (const char* name : {"text.lnk", "empty.lnk", "folder.lnk", "missing.lnk"}) {
        EXPECT_EQ(gResolveShortcut(folder.Path(name)), folder.Path(name)) << name;
    }
}

}  // namespace
