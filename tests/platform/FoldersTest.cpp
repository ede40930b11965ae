#include "platform/Folders.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <thread>
#include <vector>

#include "platform/ErrorText.h"
#include "platform/FileWalk.h"
#include "platform/Files.h"
#include "platform/World.h"
#include "tests/platform/SystemEnvironment.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

using platform_test::TTemporaryFolder;
using testing::UnorderedElementsAre;

struct FoldersTest : testing::Test {
    ~FoldersTest() override { vapp_platform::SetWineAnswer(std::nullopt); }
    TTemporaryFolder folder;
};

// The drive or "/" that the test's folder is on.
CStringU Root(const TTemporaryFolder& folder) {
    return CStringU(std::u16string_view(folder.Native().root_path().u16string()));
}

// A drive without a disk; on Linux any, for there a drive is a missing folder.
CStringU PathOfMissingRoot() {
    for (const char* root : {"Q:\\", "R:\\", "K:\\"}) {
        if (!gDirectoryExists(root)) return root;
    }
    return {};
}

TEST_F(FoldersTest, AFolderExistsAndAFileIsNone) {
    folder.MakeFile("inv.sch").MakeFolder("lib");
    EXPECT_TRUE(gDirectoryExists(folder.Path("lib")));
    EXPECT_TRUE(gDirectoryExists(folder.Path("lib") + '\\'));
    EXPECT_FALSE(gDirectoryExists(folder.Path("inv.sch")));
    EXPECT_FALSE(gDirectoryExists(folder.Path("inv.sch") + '\\'));
    EXPECT_FALSE(gDirectoryExists(folder.Path("missing")));
    EXPECT_FALSE(gDirectoryExists(""));
    EXPECT_FALSE(gDirectoryExists("\\\\no-such-server-anywhere"));
}

TEST_F(FoldersTest, ARootExistsWhereItHasEntries) {
    EXPECT_TRUE(gDirectoryExists(Root(folder)));
    EXPECT_FALSE(gIsDirectoryEmpty(Root(folder)));
}

TEST_F(FoldersTest, AFolderRightBelowARootIsAskedForItsEntries) {
    const auto top = folder.Native().root_path() / *folder.Native().relative_path().begin();
    EXPECT_TRUE(gDirectoryExists(CStringU(std::u16string_view(top.u16string()))));
    EXPECT_FALSE(gDirectoryExists(Root(folder) + "no-such-folder-there"));
}

// A path that is asked for its entries is joined, and so has its references replaced; one that is looked up
// by its name has not.
TEST_F(FoldersTest, RootsAndWhatLiesBelowThemAreNotLookedUpByTheirNames) {
    const std::u16string top = folder.Native().relative_path().begin()->u16string();
    const path_test::VariableGuard guard(u"VAPP_TEST_NAME", top);
    EXPECT_TRUE(gDirectoryExists(Root(folder) + "$VAPP_TEST_NAME"));
    const path_test::VariableGuard below(u"VAPP_TEST_NAME", u"lib");
    folder.MakeFolder("lib");
    EXPECT_FALSE(gDirectoryExists(folder.Path("$VAPP_TEST_NAME")));
}

TEST_F(FoldersTest, ASeparatorAloneIsNothing) {
    EXPECT_FALSE(gDirectoryExists("\\"));
    EXPECT_FALSE(gIsDirectoryEmpty(folder.Path("missing") + '\\'));
}

TEST_F(FoldersTest, OnlyPathsThatGoUpOrStartHereAreTakenFromTheFolder) {
    folder.MakeFolder("a/b").MakeFolder("c");
    EXPECT_TRUE(gDirectoryExistsIn("..\\c", folder.Path("a")));
    EXPECT_TRUE(gDirectoryExistsIn("../c", folder.Path("a")));
    EXPECT_TRUE(gDirectoryExistsIn("./b", folder.Path("a")));
    EXPECT_FALSE(gDirectoryExistsIn("./missing", folder.Path("a")));
    EXPECT_TRUE(gDirectoryExistsIn(folder.Path("c"), folder.Path("a")));
    // These two are seen from the current folder.
    EXPECT_FALSE(gDirectoryExistsIn("b", folder.Path("a")));
    EXPECT_FALSE(gDirectoryExistsIn(".\\b", folder.Path("a")));
}

TEST_F(FoldersTest, AFolderIsEmptyWithoutEntries) {
    folder.MakeFolder("empty").MakeFolder("full/lib").MakeFile("file");
    EXPECT_TRUE(gIsDirectoryEmpty(folder.Path("empty")));
    EXPECT_FALSE(gIsDirectoryEmpty(folder.Path("full")));
    EXPECT_FALSE(gIsDirectoryEmpty(folder.Path("file")));
    EXPECT_FALSE(gIsDirectoryEmpty(folder.Path("missing")));
    folder.MakeFile("empty/.hidden");
    EXPECT_FALSE(gIsDirectoryEmpty(folder.Path("empty")));
}

TEST_F(FoldersTest, ListsFilesAndFoldersByName) {
    folder.MakeFile("l/inv.sch")
        .MakeFolder("l/lib")
        .MakeFile("l/inv.sch")
        .MakeFile("l/.rc")
        .MakeFile("l/a b");
    EXPECT_THAT(gListFolder(folder.Path("l")), UnorderedElementsAre("inv.sch", "lib", ".rc", "a b"));
    EXPECT_TRUE(gListFolder(folder.Path("l/lib")).empty());
    EXPECT_TRUE(gListFolder(folder.Path("l/inv.sch")).empty());
    EXPECT_TRUE(gListFolder(folder.Path("missing")).empty());
}

TEST_F(FoldersTest, CreatesAFolderWithItsParents) {
    CStringU text = "unchanged";
    std::uint32_t code = 7;
    EXPECT_TRUE(gCreateDirectories(folder.Path("a/b/c"), &text, &code));
    EXPECT_TRUE(gDirectoryExists(folder.Path("a/b/c")));
    EXPECT_TRUE(gCreateDirectories(folder.Path("a/b/c"), &text, &code)) << "it exists already";
    EXPECT_EQ(text, "unchanged");
    EXPECT_EQ(code, 7U);
}

TEST_F(FoldersTest, CreatesWithEitherSeparatorAlsoAtTheEndAndDoubled) {
    CStringU text;
    EXPECT_TRUE(gCreateDirectories(folder.Path() + "/x\\y/", &text));
    EXPECT_TRUE(gDirectoryExists(folder.Path("x/y")));
    EXPECT_TRUE(gCreateDirectories(folder.Path() + "\\p//q\\\\r\\", &text));
    EXPECT_TRUE(gDirectoryExists(folder.Path("p/q/r")));
    EXPECT_EQ(text, CStringU());
}

TEST_F(FoldersTest, CreatesRelativePaths) {
    const auto old = std::filesystem::current_path();
    std::filesystem::current_path(folder.Native());
    EXPECT_TRUE(gCreateDirectories("rel/below"));
    EXPECT_TRUE(gDirectoryExists(folder.Path("rel/below")));
    std::filesystem::current_path(old);
}

TEST_F(FoldersTest, AFileInTheWayIsToldOnOneLineWithItsCode) {
    folder.MakeFile("file");
    CStringU text;
    std::uint32_t code = 0;
    EXPECT_FALSE(gCreateDirectories(folder.Path("file/a/b"), &text, &code));
    EXPECT_EQ(code, 183U);
    EXPECT_EQ(text, CStringU(" File with the name \"") + folder.Path("file") + "\" already exists. ");
}

TEST_F(FoldersTest, AFileInTheWayIsToldByItsNameInAnyScript) {
    const CStringU name = folder.Path("M\xC3\xBCller \xE5\x9B\x9E");
    folder.MakeFile("M\xC3\xBCller \xE5\x9B\x9E");
    CStringU text;
    EXPECT_FALSE(gCreateDirectories(name + "/a", &text));
    EXPECT_EQ(text, CStringU(" File with the name \"") + name + "\" already exists. ");
    EXPECT_TRUE(text.HasNonAscii());
}

TEST_F(FoldersTest, AMessageOfTheSystemIsOnOneLineToo) {
    CStringU text;
    std::uint32_t code = 0;
    const std::string longer(300, 'n');
    EXPECT_FALSE(gCreateDirectories(folder.Path("a/" + longer), &text, &code));
    EXPECT_TRUE(gDirectoryExists(folder.Path("a"))) << "what stands in front of the failure is made";
    EXPECT_NE(code, 0U);
    std::string expected(gGetErrorText(code).PayloadView());
    std::replace(expected.begin(), expected.end(), '\n', ' ');
    std::replace(expected.begin(), expected.end(), '\r', ' ');
    EXPECT_EQ(text.PayloadView(), expected);
    EXPECT_FALSE(text.IsEmpty());
}

TEST_F(FoldersTest, ARootThatIsNotThereCanNotBeCreated) {
    if (PathOfMissingRoot().IsEmpty()) GTEST_SKIP() << "every drive has a disk";
    CStringU text;
    std::uint32_t code = 0;
    EXPECT_FALSE(gCreateDirectories(PathOfMissingRoot() + "a", &text, &code));
    EXPECT_NE(code, 0U);
    EXPECT_FALSE(text.IsEmpty());
}

TEST_F(FoldersTest, ThreadsMayMakeFoldersSideBySide) {
    std::vector<std::jthread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([this, i] {
            for (int j = 0; j < 20; ++j) {
                const CStringU path = folder.Path("t" + std::to_string(i) + "/" + std::to_string(j));
                EXPECT_TRUE(gCreateDirectories(path));
                EXPECT_TRUE(gIsDirectoryEmpty(path));
            }
            EXPECT_EQ(gListFolder(folder.Path("t" + std::to_string(i))).size(), 20U);
        });
    }
}

TEST_F(FoldersTest, TheReasonIsLeftOutWhereNobodyAsksForIt) {
    folder.MakeFile("file");
    CStringU text;
    std::uint32_t code = 0;
    EXPECT_FALSE(gCreateDirectories(folder.Path("file/a"), nullptr, &code));
    EXPECT_EQ(code, 183U);
    EXPECT_FALSE(gCreateDirectories(folder.Path("file/a"), &text, nullptr));
    EXPECT_FALSE(text.IsEmpty());
    EXPECT_FALSE(gCreateDirectories(folder.Path("file/a")));
}

TEST_F(FoldersTest, AFileAtTheVeryEndExistsAndThatIsEnough) {
    folder.MakeFile("file");
    CStringU text;
    EXPECT_TRUE(gCreateDirectories(folder.Path("file"), &text));
    EXPECT_EQ(text, CStringU());
}

TEST_F(FoldersTest, NothingCanNotBeCreatedAndTheSystemSaysWhy) {
    CStringU text;
    std::uint32_t code = 0;
    EXPECT_FALSE(gCreateDirectories("", &text, &code));
    EXPECT_NE(code, 0U);
    EXPECT_FALSE(text.IsEmpty());
    EXPECT_EQ(text.PayloadView().find_first_of("\r\n"), std::string_view::npos);
}

TEST_F(FoldersTest, NamesOfAllScriptsComeBackAsTheyWereMade) {
    const CStringU name(u"M\u00FCller");
    EXPECT_TRUE(gCreateDirectories(folder.Path() + '/' + name + '/' + "lib"));
    EXPECT_TRUE(gDirectoryExists(folder.Path() + '/' + name));
    EXPECT_THAT(gListFolder(folder.Path()), UnorderedElementsAre(name));
}

TEST_F(FoldersTest, TheAnswersAreTheSameInBothWorlds) {
    folder.MakeFolder("a/b").MakeFile("a/f");
    for (const bool isWine : {true, false}) {
        SCOPED_TRACE(isWine);
        vapp_platform::SetWineAnswer(isWine);
        EXPECT_TRUE(gDirectoryExists(folder.Path("a")));
        EXPECT_TRUE(gDirectoryExistsIn("./b", folder.Path("a")));
        EXPECT_TRUE(gIsDirectoryEmpty(folder.Path("a/b")));
        EXPECT_FALSE(gIsDirectoryEmpty(folder.Path("a")));
        EXPECT_THAT(gListFolder(folder.Path("a")), UnorderedElementsAre("b", "f"));
        EXPECT_TRUE(gCreateDirectories(folder.Path(isWine ? "new/wine" : "new/windows")));
        const auto found = gCollectFiles(folder.Path("a"), "", false);
        ASSERT_EQ(found.size(), 1U);
        EXPECT_TRUE(gFileExists(found[0]));
    }
}

}  // namespace
