#include "platform/PathRules.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/Paths.h"
#include "platform/WineNames.h"
#include "platform/World.h"
#include "tests/platform/PathSamples.h"

namespace {

using namespace vapp_platform;
using path_test::Utf8;

TEST(PathRulesTest, TheRulesOfTheProcessAreThoseOfItsWorld) {
    for (const bool wine : {false, true}) {
        SetWineAnswer(wine);
        EXPECT_EQ(CurrentPathRules().world, wine ? World::Wine : World::Windows);
        EXPECT_EQ(CurrentPathRules().environment(u"VAPP_NO_SUCH_VARIABLE"), std::nullopt);
    }
    SetWineAnswer(std::nullopt);
}

TEST(PathRulesTest, ADriveIsOneCharacterBeforeAColon) {
    EXPECT_EQ(DriveBytes("C:x"), 2U);
    EXPECT_EQ(DriveBytes("C:"), 2U);
    EXPECT_EQ(DriveBytes(Utf8("\xC3\xA9:\\x")), 3U);
    EXPECT_EQ(DriveBytes(""), 0U);
    EXPECT_EQ(DriveBytes(":"), 0U);
    EXPECT_EQ(DriveBytes("CC:"), 0U);
    EXPECT_EQ(DriveBytes("C"), 0U);
}

TEST(PathRulesTest, TheThirdCharacterBeginsBehindTwoOrAtTheEnd) {
    EXPECT_EQ(StartOfThird("abc"), 2U);
    EXPECT_EQ(StartOfThird("a"), 1U);
    EXPECT_EQ(StartOfThird(""), 0U);
    EXPECT_EQ(StartOfThird(Utf8("a\xC3\xA9z")), 3U);
}

TEST(PathRulesTest, SeparatorsAreBothSlashes) {
    EXPECT_TRUE(IsSeparator('\\') && IsSeparator('/') && IsSeparator(u'\\') && IsSeparator(u'/'));
    EXPECT_FALSE(IsSeparator(':') || IsSeparator(u':'));
    EXPECT_TRUE(StartsWithSeparator("/a") && EndsWithSeparator("a\\") && StartsWithTwoSeparators("\\/"));
    EXPECT_FALSE(StartsWithSeparator("") || EndsWithSeparator("") || StartsWithTwoSeparators("/"));
}

TEST(PathRulesTest, PiecesHaveTheMarkerByTheirOwnContent) {
    const CStringU path = Utf8("a/\xC3\xA9");
    EXPECT_FALSE(PieceOf(path, path.PayloadView().substr(0, 1)).HasNonAscii());
    EXPECT_TRUE(PieceOf(path, path.PayloadView().substr(1)).HasNonAscii());
    EXPECT_TRUE(PieceOf(path, {}).IsEmpty());
    EXPECT_TRUE(text_test::HoldsMarkerInvariant(TextOf("a/\xC3\xA9")));
}

/// Asks about a path when everything else of the process has ended already: it began before all of it.
struct AskerAtTheEnd {
    ~AskerAtTheEnd() {
        if (asks) std::_Exit(gJoinPath("a", "$VAPP_NO_SUCH_VARIABLE").IsEmpty() ? 1 : 0);
    }
    bool asks = false;
};
AskerAtTheEnd gAsker;

TEST(PathRulesDeathTest, PathsCanBeAskedAboutWhileTheProcessEnds) {
    EXPECT_EXIT(
        {
            static_cast<void>(gJoinPath("a", "$VAPP_NO_SUCH_VARIABLE"));
            static_cast<void>(gGetUnixPathOf("C:\\no\\such"));
            gAsker.asks = true;
            std::exit(2);
        },
        testing::ExitedWithCode(0), "");
}

}  // namespace
