#include "platform/PathNormalize.h"

#include <gtest/gtest.h>

#include "tests/platform/PathSamples.h"

namespace {

using namespace path_test;
using vapp_platform::IsAbsolutePath;
using vapp_platform::NormalizePath;

const FakeEnvironment& Environment() {
    static const FakeEnvironment environment{{u"HOME", u"/home/me"}, {u"DRIVE", u"D:\\base\\..\\x"},
                                             {u"NAME", u"n/../m"},   {u"ACCENT", u"\u00E9"},
                                             {u"UP", u".."},         {u"SELF", u"$SELF/x"}};
    return environment;
}

std::string Normal(const CStringU& path, World world) {
    const CStringU normal = NormalizePath(path, Environment().RulesOf(world));
    EXPECT_TRUE(text_test::HoldsMarkerInvariant(normal)) << text_test::Shown(Bytes(path));
    return Bytes(normal);
}

struct NormalCase {
    const char* name;
    const char* path;
    const char* windows;
    const char* wine;
};

void PrintTo(const NormalCase& row, std::ostream* out) {
    *out << row.name;
}

class PathNormalizeTest : public testing::TestWithParam<NormalCase> {};

TEST_P(PathNormalizeTest, GivesTheNormalFormOfEachWorld) {
    EXPECT_EQ(Normal(Utf8(GetParam().path), World::Windows), GetParam().windows);
    EXPECT_EQ(Normal(Utf8(GetParam().path), World::Wine), GetParam().wine);
}

constexpr NormalCase cnNormalCases[] = {
    {"EmptyStaysEmpty", "", "", ""},
    {"OneName", "a", "a", "a"},
    {"SeparatorsBecomeThoseOfTheWorld", "a/b\\c", "a\\b\\c", "a/b/c"},
    {"TrailingSeparatorGoes", "a/b/", "a\\b", "a/b"},
    {"EmptyPartsGo", "a//b\\\\/c", "a\\b\\c", "a/b/c"},
    {"DotGoes", "./a/./b/.", "a\\b", "a/b"},
    {"DotAloneIsEmpty", ".", "", ""},
    {"DotDotTakesTheNameBefore", "a/b/../c", "a\\c", "a/c"},
    {"DotDotIsKeptAtTheStartOfARelativePath", "a/../..", "..", ".."},
    {"SeveralDotDotsAreKept", "../../a/../b", "..\\..\\b", "../../b"},
    {"DotDotBehindAKeptOneIsKept", "../a/../..", "..\\..", "../.."},
    {"ThreeDotsAreAName", "a/.../..", "a", "a"},
    {"NamesBeginWithDots", ".a/..b", ".a\\..b", ".a/..b"},
    {"RootedStaysRooted", "/a", "\\a", "/a"},
    {"RootAlone", "/", "\\", "/"},
    {"NothingIsAboveARoot", "/../../a", "\\a", "/a"},
    {"RootIsLeft", "/a/../..", "\\", "/"},
    {"DriveRootKeepsWindowsSeparators", "C:/a/b", "C:\\a\\b", "C:\\a\\b"},
    {"NothingIsAboveADrive", "C:\\a\\..\\..", "C:\\", "C:\\"},
    {"DriveAlone", "C:", "C:", "C:"},
    {"DriveRelative", "C:a/b", "C:a\\b", "C:a/b"},
    {"DriveRelativeKeepsDotDot", "C:a/../..", "C:..", "C:.."},
    {"AnyCharacterIsADrive", "\xC3\xA9:/a", "\xC3\xA9:\\a", "\xC3\xA9:\\a"},
    {"ColonIsADriveToo", "::/a", "::\\a", "::\\a"},
    {"SeparatorIsADriveToo", "/:a", "\\:a", "/:a"},
    {"SeparatorAsDriveKeepsItsRoot", "/:/a", "\\:\\a", "\\:\\a"},
    {"ShareKeepsItsMachine", "\\\\a\\b\\..", "\\\\a\\", "\\\\a\\"},
    {"NothingIsAboveAShare", "//a/../../b", "\\\\a\\b", "\\\\a\\b"},
    {"ShareWithNothingLeftKeepsItsRoot", "//a/", "\\\\a\\", "\\\\a\\"},
    {"DotIsAMachine", "//./a", "\\\\.\\a", "\\\\.\\a"},
    {"TwoSeparatorsWithoutAThirdAreARoot", "//a", "\\a", "/a"},
    {"TwoSeparatorsAloneAreARoot", "\\\\", "\\", "/"},
    {"ThreeSeparatorsAreAShareWithoutMachine", "///a", "\\\\\\a", "\\\\\\a"},
    {"ThreeSeparatorsAlone", "///", "\\\\\\", "\\\\\\"},
    {"UncoveredDriveIsOne", "x/../C:/a", "C:\\a", "C:\\a"},
    {"BeyondAscii", "\xC3\xA9/../\xE4\xB8\xAD/./x", "\xE4\xB8\xAD\\x", "\xE4\xB8\xAD/x"},
    {"AsciiLeftOfBeyondAscii", "\xC3\xA9/../x", "x", "x"},
    {"SurrogatesStay", "a/\xED\xA0\xBD\xED\xB8\x80/", "a\\\xED\xA0\xBD\xED\xB8\x80",
     "a/\xED\xA0\xBD\xED\xB8\x80"},
    {"QuotesAreNoMatter", "\"/a/./b\"", "\"\\a\\b\"", "\"/a/b\""},
    {"ReferenceIsReplaced", "$NAME", "n/../m", "n/../m"},
    {"ValueIsNotNormalised", "a/$NAME/./b", "a\\n/../m\\b", "a/n/../m/b"},
    {"ReferencesAreReplacedLast", "a/${UP}/..", "a", "a"},
    {"PartsGoBeforeReferences", "$NAME/../b", "b", "b"},
    {"DotDotOfAValueIsNoPart", "a/$UP", "a\\..", "a/.."},
    {"AbsoluteValueDropsTheFront", "C:\\a\\$DRIVE\\b", "D:\\base\\..\\x\\b", "D:\\base\\..\\x\\b"},
    {"UnixValueIsAbsoluteUnderWineOnly", "C:\\a\\$HOME\\b", "C:\\a\\/home/me\\b", "/home/me/b"},
    {"ValueBeyondAsciiInAsciiPath", "a/%ACCENT%", "a\\\xC3\xA9", "a/\xC3\xA9"},
    {"UnsetReferenceStays", "a/$NO/b", "a\\$NO\\b", "a/$NO/b"},
    {"DotDotTakesTheStartOfAReference", "a/%x/../NAME%", "a\\NAME%", "a/NAME%"},
    {"ValueThatNamesItselfEnds", "$SELF", "$SELF/x", "$SELF/x"},
};

INSTANTIATE_TEST_SUITE_P(Cases, PathNormalizeTest, testing::ValuesIn(cnNormalCases),
                         [](const auto& row) { return row.param.name; });

struct AbsoluteCase {
    const char* path;
    bool windows;
    bool wine;
};

constexpr AbsoluteCase cnAbsoluteCases[] = {
    {"", false, false},
    {".", false, false},
    {"a", false, false},
    {"a/b", false, false},
    {"\\dir", false, true},
    {"/dir", false, true},
    {"/", false, true},
    {"/..", false, true},
    {"//", false, true},
    {"//a", false, true},
    {"\\\\a\\", true, true},
    {"\\/a/b", true, true},
    {"///", true, true},
    {"C:", false, false},
    {"C:dir", false, false},
    {"C:\\", true, true},
    {"C:/..", true, true},
    {"c:\\dir", true, true},
    {"\xC3\xA9:\\dir", true, true},
    {"\xC3\xA9:dir", false, false},
    {"::\\", true, true},
    {"/:x", false, true},
    {"/:/x", false, true},
    {"ab:\\", false, false},
    {"./C:/x", true, true},
    {"a/../C:/x", true, true},
    {"a/C:/x", false, false},
    {"./C:", false, false},
    {"$DRIVE", true, true},
    {"x/$DRIVE", true, true},
    {"$HOME", false, true},
    {"\\$HOME", true, true},
    {"$NAME/x", false, false},
    {"/$SELF", false, true},
    {"$SELF", false, false},
    {"\"/a\"", false, false},
};

TEST(PathIsAbsoluteTest, EachRowInBothWorlds) {
    for (const AbsoluteCase& row : cnAbsoluteCases) {
        const CStringU path = Utf8(row.path);
        EXPECT_EQ(IsAbsolutePath(path, Environment().RulesOf(World::Windows)), row.windows) << row.path;
        EXPECT_EQ(IsAbsolutePath(path, Environment().RulesOf(World::Wine)), row.wine) << row.path;
    }
}

TEST(PathNormalizeOddTextTest, AMarkerAloneIsEmpty) {
    EXPECT_TRUE(NormalizePath(text_test::Raw("\x80"), Environment().RulesOf(World::Wine)).IsEmpty());
    EXPECT_FALSE(IsAbsolutePath(text_test::Raw("\x80"), Environment().RulesOf(World::Wine)));
}

TEST(PathNormalizeOddTextTest, AnOverlongNulEndsThePath) {
    EXPECT_EQ(Normal(text_test::Raw("\x80/a/b\xC0\x80/../.."), World::Wine), "/a/b");
}

TEST(PathNormalizeOddTextTest, AMillionPartsAreNormalisedInOneWalk) {
    std::string path;
    for (int i = 0; i < 250'000; ++i)
        path += "a/";
    for (int i = 0; i < 250'000; ++i)
        path += "../";
    EXPECT_EQ(Normal(path.c_str(), World::Wine), "");
    EXPECT_EQ(Normal(("/\xC3\xA9/" + path).c_str(), World::Wine), Normal("/\xC3\xA9", World::Wine));
}

}  // namespace
