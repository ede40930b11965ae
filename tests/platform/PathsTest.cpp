#include "platform/Paths.h"

#include <gtest/gtest.h>

#include "platform/World.h"
#include "tests/platform/SystemEnvironment.h"

namespace {

using path_test::VariableGuard;

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

TEST_F(PathsTest, VariablesAreThoseOfTheProcess) {
    const VariableGuard root(u"VAPP_TEST_ROOT", u"D:\\r\u00E9");
    const VariableGuard name(u"VAPP_TEST_NAME", u"n");
    for (const bool wine : {false, true}) {
        vapp_platform::SetWineAnswer(wine);
        EXPECT_EQ(gExpandEnvironment("a-$VAPP_TEST_NAME-%VAPP_TEST_NAME%"), "a-n-n");
        EXPECT_EQ(gExpandEnvironment("a/${VAPP_TEST_ROOT}/b"), CStringU(u"D:\\r\u00E9/b"));
        EXPECT_EQ(gNormalizePath("x/../$VAPP_TEST_ROOT/./b"), CStringU(u"D:\\r\u00E9\\b"));
        EXPECT_TRUE(gIsAbsolutePath("a/%VAPP_TEST_ROOT%"));
        EXPECT_FALSE(gIsAbsolutePath("a/%VAPP_TEST_NAME%"));
        EXPECT_EQ(gJoinPath("C:\\a", "$VAPP_TEST_NAME"), "C:\\a\\n");
        EXPECT_EQ(gJoinPath("C:\\a", "$VAPP_TEST_ROOT"), CStringU(u"D:\\r\u00E9"));
        EXPECT_EQ(gResolvePath("C:\\a", "$VAPP_TEST_ROOT\\b"), CStringU(u"D:\\r\u00E9\\b"));
        EXPECT_EQ(gRemoveExtension("$VAPP_TEST_ROOT\\b.c"), CStringU(u"D:\\r\u00E9\\b"));
        EXPECT_EQ(gMakeRelativePath("C:\\a", "C:\\a\\$VAPP_TEST_NAME"), "$VAPP_TEST_NAME")
            << "texts are compared as they stand";
    }
    vapp_platform::SetWineAnswer(true);
    const VariableGuard home(u"VAPP_TEST_ROOT", u"/home/me");
    EXPECT_EQ(gNormalizePath("a\\$VAPP_TEST_ROOT\\b"), "/home/me/b");
    EXPECT_TRUE(gIsAbsolutePath("a/$VAPP_TEST_ROOT"));
    vapp_platform::SetWineAnswer(false);
    EXPECT_FALSE(gIsAbsolutePath("a/$VAPP_TEST_ROOT"));
}

TEST_F(PathsTest, AVariableThatIsSetToNothingVanishesWhereItCanBe) {
    const VariableGuard nothing(u"VAPP_TEST_NAME", u"");
    EXPECT_EQ(gExpandEnvironment("a${VAPP_TEST_NAME}b"),
              path_test::cnValuesMayBeEmpty ? "ab" : "a${VAPP_TEST_NAME}b");
}

}  // namespace
