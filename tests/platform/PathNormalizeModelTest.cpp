// The normal form beside a slow one that goes step by step over lists of parts, and what holds of it for
// random paths.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "platform/PathExpand.h"
#include "platform/PathNormalize.h"
#include "tests/platform/PathSamples.h"

namespace {

using namespace path_test;
using vapp_platform::IsAbsolutePath;
using vapp_platform::NormalizePath;

std::vector<std::u16string> PartsOf(const std::u16string& text) {
    std::vector<std::u16string> parts;
    std::u16string part;
    for (const char16_t unit : text + u"/") {
        if (unit != u'/') {
            part += unit;
        } else if (!part.empty()) {
            parts.push_back(std::exchange(part, {}));
        }
    }
    return parts;
}

std::vector<std::u16string> Reduced(const std::vector<std::u16string>& parts, bool rooted) {
    std::vector<std::u16string> stack;
    int names = 0;
    for (const std::u16string& part : parts) {
        if (part == u".") continue;
        if (part != u"..") {
            stack.push_back(part);
            ++names;
        } else if (!rooted && names == 0) {
            stack.push_back(part);
        } else if (!stack.empty()) {
            if (stack.back() != u"..") --names;
            stack.pop_back();
        }
    }
    return stack;
}

std::u16string ModelNormalize(std::u16string text, const PathRules& rules) {
    std::replace(text.begin(), text.end(), u'\\', u'/');
    std::u16string result;
    if (text.starts_with(u"//")) {
        const std::size_t third = text.find(u'/', 2);
        if (third != std::u16string::npos) result = text.substr(0, third);
    } else if (text.size() >= 2 && text[1] == u':') {
        result = text.substr(0, 2);
    }
    const std::u16string left = text.substr(result.size());
    const bool rooted = left.starts_with(u"/");
    if (rooted) result += u'/';
    bool first = true;
    for (const std::u16string& part : Reduced(PartsOf(left), rooted)) {
        if (!std::exchange(first, false)) result += u'/';
        result += part;
    }
    std::replace(result.begin(), result.end(), u'/', u'\\');
    result = vapp_platform::ExpandEnvironment(result, rules);
    const auto separates = [](char16_t unit) { return unit == u'\\' || unit == u'/'; };
    const bool drive = result.size() > 2 && result[1] == u':' && separates(result[2]);
    const bool share = result.size() > 1 && separates(result[0]) && separates(result[1]);
    if (rules.world == World::Wine && !drive && !share)
        std::replace(result.begin(), result.end(), u'\\', u'/');
    return result;
}

bool ModelIsAbsolute(const std::u16string& path, const PathRules& rules) {
    const std::u16string normal = ModelNormalize(path, rules) + std::u16string(3, u'\0');
    const auto separates = [](char16_t unit) { return unit == u'\\' || unit == u'/'; };
    if (separates(normal[0])) return rules.world == World::Wine || separates(normal[1]);
    return normal[0] != u'\0' && normal[1] == u':' && separates(normal[2]);
}

std::u16string RandomPathWithReferences(std::mt19937& random) {
    static constexpr std::u16string_view parts[] = {u"a",       u"..",      u".",     u"$HOME", u"%DRIVE%",
                                                    u"${NAME}", u"$NO",     u"%",     u"$",     u"${",
                                                    u"\u00E9",  u"$ACCENT", u"%UNC%", u"C:",    u"b}"};
    return RandomPathOf(random, parts);
}

const FakeEnvironment& ModelEnvironment() {
    static const FakeEnvironment environment{{u"HOME", u"/home/me"},
                                             {u"DRIVE", u"D:\\x"},
                                             {u"NAME", u"n/../m"},
                                             {u"ACCENT", u"\u00E9"},
                                             {u"UNC", u"\\\\s\\sh\\"}};
    return environment;
}

TEST(PathNormalizeModelTest, AgreesWithTheModelStepByStep) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 10000; ++round) {
        const std::u16string path = round % 2 == 0 ? RandomPath(random) : RandomPathWithReferences(random);
        for (const World world : cnWorlds) {
            const PathRules rules = ModelEnvironment().RulesOf(world);
            const CStringU text{std::u16string_view(path)};
            ASSERT_EQ(Bytes(NormalizePath(text, rules)), text_test::Bytes(ModelNormalize(path, rules)))
                << NameOf(world) << ' ' << Bytes(text);
            ASSERT_EQ(IsAbsolutePath(text, rules), ModelIsAbsolute(path, rules))
                << NameOf(world) << ' ' << Bytes(text);
        }
    }
}

/// A name such as "D:." that comes to the start only when the parts before it go: then "D:" is a drive, and
/// the dot behind it a part that goes the next time.
bool UncoversADrive(const CStringU& path, const CStringU& normal) {
    const std::u16string before = path.ToWide();
    const std::u16string after = normal.ToWide();
    return after.size() >= 2 && after[1] == u':' && (before.size() < 2 || before[1] != u':');
}

TEST(PathNormalizeModelTest, NormalisingTwiceIsNormalisingOnce) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 10000; ++round) {
        const CStringU path{std::u16string_view(RandomPath(random))};
        for (const World world : cnWorlds) {
            const PathRules rules = ModelEnvironment().RulesOf(world);
            const CStringU once = NormalizePath(path, rules);
            const CStringU twice = NormalizePath(once, rules);
            ASSERT_TRUE(text_test::HoldsMarkerInvariant(once));
            if (!UncoversADrive(path, once)) {
                ASSERT_EQ(Bytes(twice), Bytes(once)) << NameOf(world) << ' ' << Bytes(path);
            }
            ASSERT_EQ(Bytes(NormalizePath(NormalizePath(twice, rules), rules)),
                      Bytes(NormalizePath(twice, rules)));
        }
    }
}

TEST(PathNormalizeModelTest, ADriveThatIsUncoveredChangesTheSecondTime) {
    const PathRules rules = ModelEnvironment().RulesOf(World::Windows);
    EXPECT_EQ(Bytes(NormalizePath("./D:.", rules)), "D:.");
    EXPECT_EQ(Bytes(NormalizePath("D:.", rules)), "D:");
}

TEST(PathNormalizeModelTest, AValueIsNormalisedTheSecondTime) {
    const PathRules rules = ModelEnvironment().RulesOf(World::Windows);
    EXPECT_EQ(Bytes(NormalizePath("$NAME/x", rules)), "n/../m\\x");
    EXPECT_EQ(Bytes(NormalizePath("n/../m\\x", rules)), "m\\x");
}

TEST(PathNormalizeModelTest, TheNormalFormIsAbsoluteWhereThePathIs) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 6000; ++round) {
        const CStringU path{std::u16string_view(RandomPath(random))};
        for (const World world : cnWorlds) {
            const PathRules rules = ModelEnvironment().RulesOf(world);
            const CStringU normal = NormalizePath(path, rules);
            if (UncoversADrive(path, normal)) continue;
            ASSERT_EQ(IsAbsolutePath(normal, rules), IsAbsolutePath(path, rules)) << Bytes(path);
        }
    }
}

}  // namespace
