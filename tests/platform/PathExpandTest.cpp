#include "platform/PathExpand.h"

#include <gtest/gtest.h>

#include <chrono>

#include "platform/PathNormalize.h"
#include "tests/platform/PathSamples.h"

namespace {

using namespace path_test;
using vapp_platform::ExpandEnvironment;
using vapp_platform::IsAbsolutePath;

std::u16string Expand(std::u16string_view text, const FakeEnvironment& environment, World world) {
    return ExpandEnvironment(text, environment.RulesOf(world));
}

TEST(PathExpandTest, AnAbsoluteValueDropsWhatIsInFrontOfItsReference) {
    const FakeEnvironment environment{{u"DRIVE", u"D:\\x"}, {u"HOME", u"/home"}, {u"NAME", u"n"}};
    EXPECT_EQ(Expand(u"a\\$DRIVE\\b", environment, World::Windows), u"D:\\x\\b");
    EXPECT_EQ(Expand(u"a/$HOME/b", environment, World::Windows), u"a//home/b");
    EXPECT_EQ(Expand(u"a/$HOME/b", environment, World::Wine), u"/home/b");
    EXPECT_EQ(Expand(u"a/$NAME/b", environment, World::Wine), u"a/n/b");
}

TEST(PathExpandTest, AValueIsJudgedWithItsOwnReferencesReplaced) {
    const FakeEnvironment environment{{u"DRIVE", u"D:\\x"}, {u"NAMES_IT", u"sub\\$DRIVE"}};
    EXPECT_EQ(Expand(u"a\\$NAMES_IT\\b", environment, World::Windows), u"sub\\$DRIVE\\b");
}

TEST(PathExpandTest, AValueThatNamesItselfIsNotAbsolute) {
    const FakeEnvironment environment{{u"SELF", u"$SELF"}, {u"ROOTED", u"/x$ROOTED"}};
    EXPECT_EQ(Expand(u"a$SELF", environment, World::Wine), u"a$SELF");
    EXPECT_EQ(Expand(u"a$ROOTED", environment, World::Wine), u"a/x$ROOTED");
    EXPECT_TRUE(IsAbsolutePath("/x$SELF", environment.RulesOf(World::Wine)));
}

TEST(PathExpandTest, ValuesThatNameOneAnotherAreNotAbsolute) {
    const FakeEnvironment environment{
        {u"A", u"/$B"}, {u"B", u"/$C"}, {u"C", u"/$A"}, {u"TO", u"/$A"}, {u"D", u"/d"}};
    for (const std::u16string_view name : {u"A", u"B", u"C", u"TO"}) {
        const std::u16string text = u"x$" + std::u16string(name) + u"-y$D";
        EXPECT_EQ(Expand(u"x$" + std::u16string(name), environment, World::Wine),
                  u"x" + environment.Variables().at(std::u16string(name)));
        EXPECT_EQ(Expand(text, environment, World::Wine), u"/d");
    }
}

TEST(PathExpandTest, OtherValuesAreJudgedAsEverBesideOnesThatNameThemselves) {
    const FakeEnvironment environment{{u"SELF", u"/$SELF$D"}, {u"D", u"/d"}};
    EXPECT_EQ(Expand(u"x$SELF", environment, World::Wine), u"x/$SELF$D");
    EXPECT_EQ(Expand(u"x$SELF$D", environment, World::Wine), u"/d");
}

std::u16string Numbered(const char16_t* front, int number) {
    std::u16string name(front);
    for (const char digit : std::to_string(number))
        name += static_cast<char16_t>(digit);
    return name;
}

TEST(PathExpandTest, EachValueIsJudgedOnceHoweverOftenItIsNamed) {
    std::map<std::u16string, std::u16string> variables{{u"V0", u"/end"}};
    for (int i = 1; i <= 60; ++i) {
        const std::u16string below = Numbered(u"$V", i - 1) + u"-";
        variables[Numbered(u"V", i)] = below + below + below;
    }
    const FakeEnvironment environment(std::move(variables));
    EXPECT_EQ(Expand(u"x$V60", environment, World::Wine), u"x" + environment.Variables().at(u"V60"));
    EXPECT_LT(environment.Asked(), 1000U);  // 3 to the power of 60 without a memory
}

TEST(PathExpandTest, AChainOfThirtyThousandValuesNeedsNoStack) {
    std::map<std::u16string, std::u16string> variables{{u"V0", u"/end"}};
    for (int i = 1; i <= 30'000; ++i)
        variables[Numbered(u"V", i)] = Numbered(u"$V", i - 1);
    const FakeEnvironment environment(std::move(variables));
    EXPECT_EQ(Expand(u"x$V30000", environment, World::Wine), u"x$V29999");
}

TEST(PathExpandTest, TextWithoutReferencesIsItself) {
    const FakeEnvironment environment;
    EXPECT_EQ(Bytes(ExpandEnvironment(CStringU("a/../b"), environment.RulesOf(World::Wine))), "a/../b");
    EXPECT_EQ(Bytes(ExpandEnvironment(Utf8("\xC3\xA9{}"), environment.RulesOf(World::Wine))), "\xC3\xA9{}");
    EXPECT_EQ(environment.Asked(), 0U);
}

TEST(PathExpandTest, TextsGetTheMarkerByTheirContent) {
    const FakeEnvironment environment{{u"ACCENT", u"\u00E9"}};
    const CStringU expanded = ExpandEnvironment(CStringU("a$ACCENT"), environment.RulesOf(World::Wine));
    EXPECT_EQ(Bytes(expanded), "a\xC3\xA9");
    EXPECT_TRUE(text_test::HoldsMarkerInvariant(expanded));
}

/// The plain recursion, which ends where no value leads back to itself.
bool IsAbsoluteByRecursion(std::u16string_view value, const FakeEnvironment& environment, World world) {
    const std::u16string expanded = vapp_text::ExpandEnvironmentReferences(
        vapp_platform::NormalizeUnits(value), environment.Lookup(),
        [&](std::u16string_view named) { return IsAbsoluteByRecursion(named, environment, world); });
    return vapp_platform::IsAbsoluteForm(expanded, world);
}

TEST(PathExpandTest, WhereThePlainRecursionEndsItsAnswerHolds) {
    std::mt19937 random = text_test::SeededRandom();
    static constexpr std::u16string_view pieces[] = {u"a",  u"/",       u"\\", u"C:\\",
                                                     u"..", u"\\\\s\\", u"%",  u"./"};
    for (int round = 0; round < 500; ++round) {
        // Each value names only variables of lower numbers.
        std::map<std::u16string, std::u16string> variables;
        for (int i = 0; i < 6; ++i) {
            std::u16string value;
            for (std::size_t left = UpTo(random, 4); left > 0; --left) {
                value += OneOf(random, pieces);
                if (i > 0 && UpTo(random, 1) == 0)
                    value +=
                        Numbered(u"${V", static_cast<int>(UpTo(random, static_cast<std::size_t>(i) - 1))) +
                        u"}";
            }
            variables[Numbered(u"V", i)] = value;
        }
        const FakeEnvironment environment(variables);
        for (const World world : cnWorlds) {
            const std::u16string text = u"x$V5-$V4/$V3";
            const std::u16string expected = vapp_text::ExpandEnvironmentReferences(
                text, environment.Lookup(),
                [&](std::u16string_view value) { return IsAbsoluteByRecursion(value, environment, world); });
            ASSERT_EQ(Expand(text, environment, world), expected);
        }
    }
}

TEST(PathExpandTest, ItEndsWhateverTheValuesName) {
    std::mt19937 random = text_test::SeededRandom();
    static constexpr std::u16string_view pieces[] = {u"/",   u"$V0", u"${V1}", u"%V2%",
                                                     u"$V3", u"a",   u"$",     u"%"};
    for (int round = 0; round < 2000; ++round) {
        std::map<std::u16string, std::u16string> variables;
        for (int i = 0; i < 4; ++i) {
            for (std::size_t left = UpTo(random, 4); left > 0; --left)
                variables[Numbered(u"V", i)] += OneOf(random, pieces);
        }
        const FakeEnvironment environment(variables);
        for (const World world : cnWorlds) {
            const std::u16string expanded = Expand(u"x$V0/$V1-$V2", environment, world);
            ASSERT_LT(expanded.size(), 100U);
            ASSERT_LT(environment.Asked(), 2000U);
        }
    }
}

}  // namespace
