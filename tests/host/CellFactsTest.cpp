/// What is read from single files.

#include "host/CellFacts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/host/TempFolder.h"

namespace navigator {
namespace {

using navigator_test::SchematicOf;
using navigator_test::TempFolder;

TEST(CellFacts, TheStampTellsAChangedFileAndAMissingOne) {
    const TempFolder folder;
    const auto path = folder.Write("a.sym", "one");
    const FileStamp stamp = gStampOf(path);
    EXPECT_TRUE(stamp.exists);
    EXPECT_EQ(stamp, gStampOf(path));
    folder.Rewrite("a.sym", "two");
    EXPECT_NE(stamp, gStampOf(path));
    EXPECT_FALSE(gStampOf(folder.Path()).exists);
    EXPECT_FALSE(gStampOf(folder.Path() / "gone").exists);
}

TEST(CellFacts, AReadOnlyFileIsLockedForEveryUser) {
    const TempFolder folder;
    const auto path = folder.Write("a.sym", "x");
    EXPECT_FALSE(gIsLocked(path, gStampOf(path)));
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    EXPECT_TRUE(gIsLocked(path, gStampOf(path)));
    EXPECT_FALSE(gIsLocked(folder.Path() / "gone", FileStamp()));
}

TEST(CellFacts, TheLookForALockLeavesTheFileAsItWas) {
    const TempFolder folder;
    const auto path = folder.Write("a.sym", "content");
    const FileStamp before = gStampOf(path);
    gIsLocked(path, before);
    EXPECT_EQ(gStampOf(path), before);
    EXPECT_EQ(gReadFile(path, 100), "content");
}

TEST(CellFacts, ReadsAtMostTheLimitAndNoFolder) {
    const TempFolder folder;
    EXPECT_EQ(gReadFile(folder.Write("a", "abcdef"), 3), "abc");
    EXPECT_EQ(gReadFile(folder.Path(), 3), std::nullopt);
    EXPECT_EQ(gReadFile(folder.Path() / "gone", 3), std::nullopt);
}

TEST(CellFacts, TheHeadIsFoundBehindALongComment) {
    const TempFolder folder;
    FileFacts facts;
    gReadHead(folder.Write("a.sym", "v {" + std::string(20000, 'x') +
                                        "}\nK {type=stdvia hidden=true}\nL 4 0 0 1 1 {}\n"),
              facts);
    EXPECT_EQ(facts.type, "stdvia");
    EXPECT_TRUE(facts.isHidden);
    EXPECT_TRUE(facts.isHeadRead);
}

TEST(CellFacts, LinksNameEachReferenceOnceAndNoEmbeddedOne) {
    FileFacts facts;
    const Symbol symbol = gParseSymbol(SchematicOf("b", "a", "b", "c") + "[\nL 4 0 0 1 1 {}\n]\n");
    gTakeLinks(&symbol, facts);
    EXPECT_THAT(facts.references, testing::ElementsAre("a", "b"));
    EXPECT_FALSE(facts.isUnreadable);
    gTakeLinks(nullptr, facts);
    EXPECT_TRUE(facts.isUnreadable);
    EXPECT_TRUE(facts.references.empty());
}

}  // namespace
}  // namespace navigator
