#include "platform/Paths.h"

#include <gtest/gtest.h>

#include "platform/World.h"

namespace {

/// The exported names, each once, in the world that a test has switched to.
struct PathsTest : testing::Test {
    ~PathsTest() override { vapp_platform::SetWineAnswer(std::nullopt); }
};

TEST_F(PathsTest, RulesOfPlainWindowsHoldThere) {
    vapp_platform::SetWineAnswer(false);
    EXPECT_FALSE(gIsAbsolutePath("\\dir"));
    EXPECT_TRUE(gIsAbsolutePath("C:\\dir"));
    EXPECT_EQ(gNormalizePath("a/./b/../c/"), "a\\c");
    EXPECT_EQ(gJoinPath("C:\\a\\b", "\\c"), "C:\\c");
    EXPECT_EQ(gResolvePath("C:\\a", "b"), "C:\\a\\b");
    EXPECT_EQ(gMakeRelativePath("C:\\a\\b", "C:\\a\\c"), "..\\c");
    EXPECT_EQ(gRemoveExtension("a/b.c"), "a\\b");
    EXPECT_FALSE(gIsValidPath("C:x\\y"));
}

TEST_F(PathsTest, RulesOfWineHoldThere) {
    vapp_platform::SetWineAnswer(true);
    EXPECT_TRUE(gIsAbsolutePath("\\dir"));
    EXPECT_TRUE(gIsAbsolutePath("/dir"));
    EXPECT_EQ(gNormalizePath("a\\.\\b\\..\\c\\"), "a/c");
    EXPECT_EQ(gJoinPath("/a/b", "c"), "/a/b/c");
    EXPECT_EQ(gResolvePath("/a", "b"), "/a/b");
    EXPECT_EQ(gMakeRelativePath("/a/b", "/a/c"), "../c");
    EXPECT_EQ(gRemoveExtension("a\\b.c"), "a/b");
    EXPECT_TRUE(gIsValidPath("C:x\\y"));
}

TEST_F(PathsTest, NamesAreTakenApartAlikeInBothWorlds) {
    for (const bool wine : {false, true}) {
        vapp_platform::SetWineAnswer(wine);
        EXPECT_TRUE(gIsUnixPath("./x"));
        EXPECT_EQ(gGetFileName("a/b.c"), "b.c");
        EXPECT_EQ(gGetDirectory("a/b.c"), "a");
        EXPECT_EQ(gGetBaseName("a/b.c"), "b");
        EXPECT_TRUE(gHasExtension("a/b.c"));
        EXPECT_EQ(gGetExtension("a/b.c"), "c");
        EXPECT_EQ(gReplaceExtension("a/b.c", "d"), "a/b.d");
        EXPECT_EQ(gEnsureExtension("a/b.c", "d"), "a/b.c.d");
        EXPECT_EQ(gCompactPath("C:\\dir\\subfolder\\file", 16, true), "C:\\dir\\...\\file");
    }
}

TEST_F(PathsTest, AReferenceToAnUnsetVariableStays) {
    EXPECT_EQ(gExpandEnvironment("a${VAPP_NO_SUCH_VARIABLE}b"), "a${VAPP_NO_SUCH_VARIABLE}b");
}

}  // namespace
