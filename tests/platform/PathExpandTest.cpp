#include "platform/PathExpand.h"

#include <gtest/gtest.h>

#include <optional>

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

TEST(PathExpandTest, TextWithoutReferencesAsksNothing) {
    const FakeEnvironment environment;
    EXPECT_EQ(Expand(u"a/../b", environment, World::Wine), u"a/../b");
    EXPECT_EQ(Expand(u"\u00E9{}", environment, World::Wine), u"\u00E9{}");
    EXPECT_EQ(environment.Asked(), 0U);
}

// A value stands in memory once, however often it is named.
TEST(PathExpandTest, ALongValueThatIsNamedVeryOftenIsNotCopiedForEach) {
    std::u16string names;
    for (int i = 0; i < 40'000; ++i)
        names += u"$A";
    const FakeEnvironment environment{{u"A", std::u16string(1U << 17U, u'a')}, {u"B", names}};
    EXPECT_EQ(Expand(u"x$B", environment, World::Wine), u"x" + names);
    EXPECT_EQ(environment.Asked(), 2U);
}

TEST(PathExpandTest, AValueThatLeadsToACircleIsJudgedAlikeInAnyOrder) {
    const FakeEnvironment environment{{u"A", u"/$A"}, {u"TO", u"/t$A"}, {u"D", u"/d"}};
    EXPECT_EQ(Expand(u"x$TO", environment, World::Wine), u"x/t$A");
    EXPECT_EQ(Expand(u"x$A-y$TO", environment, World::Wine), u"x/$A-y/t$A");
    EXPECT_EQ(Expand(u"x$TO-y$A", environment, World::Wine), u"x/t$A-y/$A");
    EXPECT_EQ(Expand(u"x$A-y$D-z$TO", environment, World::Wine), u"/d-z/t$A");
}

/// The plain recursion over variables that may name one another in any way: nothing where it does not end,
/// which shows by its getting deeper than there are variables, `left` of them.
std::optional<bool> IsAbsoluteByRecursion(std::u16string_view value, const FakeEnvironment& environment,
                                          World world, std::size_t left) {
    if (left == 0) return std::nullopt;
    bool ends = true;
    const std::u16string expanded = vapp_text::ExpandEnvironmentReferences(
        vapp_platform::NormalizeUnits(value),
        [&](std::u16string_view name) -> std::optional<vapp_text::EnvironmentValue> {
            const auto found = environment.Variables().find(std::u16string(name));
            if (found == environment.Variables().end()) return std::nullopt;
            const auto isAbsolute = IsAbsoluteByRecursion(found->second, environment, world, left - 1);
            ends = ends && isAbsolute.has_value();
            return vapp_text::EnvironmentValue{found->second, isAbsolute.value_or(false)};
        });
    return ends ? std::optional(vapp_platform::IsAbsoluteForm(expanded, world)) : std::nullopt;
}

std::u16string ExpandByRecursion(std::u16string_view text, const FakeEnvironment& environment, World world) {
    return vapp_text::ExpandEnvironmentReferences(
        text, [&](std::u16string_view name) -> std::optional<vapp_text::EnvironmentValue> {
            const auto found = environment.Variables().find(std::u16string(name));
            if (found == environment.Variables().end()) return std::nullopt;
            const auto isAbsolute =
                IsAbsoluteByRecursion(found->second, environment, world, environment.Variables().size());
            return vapp_text::EnvironmentValue{found->second, isAbsolute.value_or(false)};
        });
}

/// Values of at most five pieces, each with a name among its pieces or none.
FakeEnvironment RandomEnvironment(std::mt19937& random) {
    static constexpr std::u16string_view pieces[] = {u"a",   u"/",   u"\\",     u"C:\\",  u"..",   u"\\\\s\\",
                                                     u"%",   u"./",  u"$",      u"${V0}", u"%V1%", u"$V2",
                                                     u"$V3", u"$V4", u"${V1}/", u"$V0"};
    std::map<std::u16string, std::u16string> variables;
    for (int i = 0; i < 5; ++i) {
        std::u16string& value = variables[Numbered(u"V", i)];
        for (std::size_t left = UpTo(random, 4); left > 0; --left)
            value += OneOf(random, pieces);
    }
    return FakeEnvironment(std::move(variables));
}

TEST(PathExpandTest, TheAnswerIsThatOfThePlainRecursionWhateverValuesName) {
    std::mt19937 random = text_test::SeededRandom();
    std::size_t endless = 0;
    for (int round = 0; round < 800; ++round) {
        const FakeEnvironment environment = RandomEnvironment(random);
        for (const World world : cnWorlds) {
            for (const auto& [name, value] : environment.Variables())
                endless += IsAbsoluteByRecursion(value, environment, world, 5) ? 0U : 1U;
            const std::u16string text = u"x$V0/$V1-$V2\\$V3+$V4";
            ASSERT_EQ(Expand(text, environment, world), ExpandByRecursion(text, environment, world))
                << NameOf(world);
            const std::u16string turned = u"x$V4/$V3-$V2\\$V1+$V0";
            ASSERT_EQ(Expand(turned, environment, world), ExpandByRecursion(turned, environment, world))
                << NameOf(world);
            ASSERT_LE(environment.Asked(), 1000U);
        }
    }
    EXPECT_GT(endless, 30U) << "the samples lead to circles too";
}

}  // namespace
