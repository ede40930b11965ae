/// Files as texts to read.

#include "host/FileText.h"

#include <gtest/gtest.h>

#include "tests/host/TempFolder.h"

namespace navigator_test {
namespace {

using navigator::FileText;
using navigator::gReadFileText;

TEST(FileTextTest, AFileIsShownAsItIs) {
    const TempFolder folder;
    const FileText shown = gReadFileText(folder.Write("a.sch", "v {}\nT {\xC3\xA4} 0 0\n"));
    EXPECT_EQ(shown.text, "v {}\nT {\xC3\xA4} 0 0\n");
    EXPECT_EQ(shown.note, "");
}

TEST(FileTextTest, ALongFileIsShownInPart) {
    const TempFolder folder;
    const auto file = folder.Write("a.sch", "123456789");
    EXPECT_EQ(gReadFileText(file, 9).note, "");
    const FileText shown = gReadFileText(file, 8);
    EXPECT_EQ(shown.text, "12345678");
    EXPECT_EQ(shown.note, "Only the first 8 bytes are shown.");
}

TEST(FileTextTest, BytesThatAreNoTextCanBeSeen) {
    const TempFolder folder;
    const FileText shown = gReadFileText(folder.Write("a.sch", std::string("a\0b\xFF", 4)));
    EXPECT_EQ(shown.text,
              "a\xE2\x90\x80"
              "b%FF");
    EXPECT_EQ(shown.note, "The file is no plain text.");
}

TEST(FileTextTest, AFolderIsShownByItsNames) {
    const TempFolder folder;
    folder.Write("layout/b.txt", "x");
    folder.Write("layout/a.txt", "x");
    const FileText shown = gReadFileText(folder.Path() / "layout");
    EXPECT_EQ(shown.text, "a.txt\nb.txt\n");
    EXPECT_FALSE(shown.note.empty());
}

TEST(FileTextTest, WhatIsNotThereIsSaid) {
    const TempFolder folder;
    const FileText shown = gReadFileText(folder.Path() / "none");
    EXPECT_EQ(shown.text, "");
    EXPECT_EQ(shown.note, "The file can't be read.");
}

TEST(FileTextTest, AnEmptyFileIsAnEmptyText) {
    const TempFolder folder;
    const FileText shown = gReadFileText(folder.Write("a.sch", ""));
    EXPECT_EQ(shown.text + shown.note, "");
}

}  // namespace
}  // namespace navigator_test
