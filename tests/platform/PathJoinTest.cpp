#include "platform/PathJoin.h"

#include <gtest/gtest.h>

#include "tests/platform/PathSamples.h"

namespace {

using namespace path_test;
using vapp_platform::JoinPath;
using vapp_platform::MakeRelativePath;
using vapp_platform::ResolvePath;

const FakeEnvironment& JoinEnvironment() {
    static const FakeEnvironment environment{{u"HOME", u"/home/me"}, {u"DRIVE", u"D:\\x"}, {u"NAME", u"n"}};
    return environment;
}

struct PathPairCase {
    const char* name;
    const char* base;
    const char* path;
    const char* windows;
    const char* wine;
};

void PrintTo(const PathPairCase& row, std::ostream* out) {
    *out << row.name;
}

std::string NameOfCase(const testing::TestParamInfo<PathPairCase>& row) {
    return row.param.name;
}

class PathJoinTest : public testing::TestWithParam<PathPairCase> {};

TEST_P(PathJoinTest, JoinsInEachWorld) {
    const CStringU base = Utf8(GetParam().base);
    const CStringU path = Utf8(GetParam().path);
    EXPECT_EQ(Bytes(JoinPath(base, path, JoinEnvironment().RulesOf(World::Windows))), GetParam().windows);
    EXPECT_EQ(Bytes(JoinPath(base, path, JoinEnvironment().RulesOf(World::Wine))), GetParam().wine);
    EXPECT_EQ(Bytes(ResolvePath(base, path, JoinEnvironment().RulesOf(World::Windows))), GetParam().windows);
    EXPECT_EQ(Bytes(ResolvePath(base, path, JoinEnvironment().RulesOf(World::Wine))), GetParam().wine);
}

constexpr PathPairCase cnJoins[] = {
    {"Names", "a", "b", "a\\b", "a/b"},
    {"BaseEndsInASeparator", "a/", "b", "a\\b", "a/b"},
    {"EmptyBase", "", "b/../c", "c", "c"},
    {"EmptyBaseAndRooted", "", "\\c", "\\c", "/c"},
    {"EmptyRelative", "a/./b", "", "a\\b", "a/b"},
    {"EmptyBoth", "", "", "", ""},
    {"DriveAndName", "C:\\a", "b", "C:\\a\\b", "C:\\a\\b"},
    {"BareDriveAndNameStayDriveRelative", "C:", "dir", "C:dir", "C:dir"},
    {"ColonAtTheEndOfAnyBase", "C:\\x:", "dir", "C:\\x:dir", "C:\\x:dir"},
    {"RootedLandsOnTheDrive", "C:\\a\\b", "\\c", "C:\\c", "/c"},
    {"RootedLandsOnAnyDrive", "\xC3\xA9:\\a", "/c", "\xC3\xA9:\\c", "/c"},
    {"RootedLandsOnTheDriveOfADriveRelative", "C:a", "/c", "C:\\c", "/c"},
    {"RootedLandsOnTheShare", "\\\\s\\sh\\x", "\\c", "\\\\s\\sh\\c", "/c"},
    {"RootedLandsOnAMixedShare", "//s/sh/x/y", "/c", "\\\\s\\sh\\c", "/c"},
    {"RootedBehindAShareWithNothingBehind", "\\\\s\\sh", "\\c", "\\\\s\\sh\\c", "/c"},
    {"RootedBehindAMachineAlone", "\\\\s", "\\c", "\\\\s\\c", "/c"},
    {"ShareBeginsBehindTheThirdCharacter", "\\\\\\a\\b\\c", "\\d", "\\\\\\a\\b\\d", "/d"},
    {"RootedBehindARelativeBase", "a/b", "\\c", "a\\b\\c", "/c"},
    {"RootedBehindASeparator", "a/b/", "/c", "a\\b\\c", "/c"},
    {"RootedBehindARootedBase", "/a", "/c", "\\a\\c", "/c"},
    {"DotDotGoesUp", "C:\\a\\b", "..\\c", "C:\\a\\c", "C:\\a\\c"},
    {"DotDotStopsAtTheRoot", "/a", "../../../c", "\\c", "/c"},
    {"AbsoluteStandsAlone", "C:\\a", "D:/b/.", "D:\\b", "D:\\b"},
    {"ShareStandsAlone", "C:\\a", "//s/sh", "\\\\s\\sh", "\\\\s\\sh"},
    {"DriveRelativeIsAppended", "C:\\a", "D:b", "C:\\a\\D:b", "C:\\a\\D:b"},
    {"AbsoluteValueStandsAlone", "C:\\a", "$DRIVE/b", "D:\\x\\b", "D:\\x\\b"},
    {"AbsoluteValueInTheBaseDropsItsFront", "a/$DRIVE", "b", "D:\\x\\b", "D:\\x\\b"},
    {"UnixValueIsAbsoluteUnderWine", "a", "$HOME", "a\\/home/me", "/home/me"},
    {"BeyondAscii", "\xC3\xA9", "b\xE4\xB8\xAD", "\xC3\xA9\\b\xE4\xB8\xAD", "\xC3\xA9/b\xE4\xB8\xAD"},
    {"AsciiBaseAndRestBeyond", "a", "\xC3\xA9", "a\\\xC3\xA9", "a/\xC3\xA9"},
};

INSTANTIATE_TEST_SUITE_P(Cases, PathJoinTest, testing::ValuesIn(cnJoins), NameOfCase);

class PathRelativeTest : public testing::TestWithParam<PathPairCase> {};

TEST_P(PathRelativeTest, TellsTheWayInEachWorld) {
    const CStringU base = Utf8(GetParam().base);
    const CStringU path = Utf8(GetParam().path);
    EXPECT_EQ(Bytes(MakeRelativePath(base, path, JoinEnvironment().RulesOf(World::Windows))),
              GetParam().windows);
    EXPECT_EQ(Bytes(MakeRelativePath(base, path, JoinEnvironment().RulesOf(World::Wine))), GetParam().wine);
}

constexpr PathPairCase cnWays[] = {
    {"BelowTheBaseWhateverTheCase", "C:\\A\\b", "c:\\a\\B\\d", "d", "d"},
    {"OtherDriveHasNoWay", "C:\\A\\b", "D:\\x", "D:\\x", "D:/x"},
    {"EmptyBase", "", "C:\\x\\y", "C:\\x\\y", "C:/x/y"},
    {"RelativePath", "C:\\A", "x\\y", "x\\y", "x/y"},
    {"BaseWithASeparatorAtItsEnd", "C:\\a\\", "C:\\a\\b\\c", "b\\c", "b/c"},
    {"BaseWithASeparatorAtItsEndAndItself", "C:\\a\\", "C:\\a\\", "", ""},
    {"BesideTheBase", "C:\\a\\b", "C:\\a\\c", "..\\c", "../c"},
    {"BesideABaseWithASeparatorAtItsEnd", "C:\\a\\b\\", "C:\\a\\c", "..\\c", "../c"},
    {"ItselfIsBesideItself", "C:\\a\\b", "C:\\a\\b", "..\\b", "../b"},
    {"NameThatBeginsWithTheBases", "C:\\a\\b", "C:\\a\\bc", "..\\bc", "../bc"},
    {"AboveTheBase", "C:\\a\\b\\c", "C:\\a", "..\\..\\..\\a", "../../../a"},
    {"OnlyTheDriveInCommon", "C:\\a", "C:\\b", "..\\b", "../b"},
    {"DriveRootAsBase", "C:\\", "C:\\b", "b", "b"},
    {"SeparatorsMustBeTheSame", "C:/a/b", "C:\\a\\c", "C:\\a\\c", "C:/a/c"},
    {"UnixPathsHaveAWayUnderWineOnly", "/a/b", "/a/c", "/a/c", "../c"},
    {"UnixPathsMustShareAFolder", "/a/b", "/c/d", "/c/d", "/c/d"},
    {"AQuoteIsACharacterOfThePath", "\"/a/b\"", "/a/c", "/a/c", "/a/c"},
    {"AQuotedUnixBaseIsOne", "\"/a/b\"", "\"/a/$HOME", "\"/a/$HOME", "../$HOME"},
    {"UnixPathsBelowOneAnother", "/a", "/a/b/c", "/a/b/c", "b/c"},
    {"ShareInCommon", "\\\\s\\sh\\a\\b", "\\\\s\\sh\\a\\c", "..\\c", "../c"},
    {"MachineInCommonOnly", "\\\\s\\sh\\b", "\\\\s\\other\\c", "\\\\s\\other\\c", "//s/other/c"},
    {"ShareInCommonOnly", "\\\\s\\sh\\b", "\\\\s\\sh\\c", "..\\c", "../c"},
    {"ShortSharesNeedMoreThanFourCharacters", "\\\\\\\\b", "\\\\\\\\c", "\\\\\\\\c", "////c"},
    {"BelowAMachine", "\\\\s", "\\\\s\\x", "x", "x"},
    {"EmptyPartsOfTheBaseCount", "C:\\a\\b\\\\c", "C:\\a\\x", "..\\..\\..\\x", "../../../x"},
    {"CaseOfOtherLettersCounts", "C:\\\xC3\x89\\b", "C:\\\xC3\xA9\\c", "..\\..\\\xC3\xA9\\c",
     "../../\xC3\xA9/c"},
    {"BeyondAsciiInCommon", "C:\\\xC3\xA9\\b", "C:\\\xC3\xA9\\c", "..\\c", "../c"},
    {"NothingButAsciiIsLeft", "C:\\\xC3\xA9", "C:\\\xC3\xA9\\c", "c", "c"},
    {"CharactersWithACommonFirstByte", "C:\\a\\\xC3\xA9", "C:\\a\\\xC3\xA8", "..\\\xC3\xA8", "../\xC3\xA8"},
    {"AnyCharacterIsADrive", "\xC3\xA9:\\a", "\xC3\xA9:\\b", "..\\b", "../b"},
    {"BackslashesOfARelativeUnixPathTurn", "", "a\\b", "a\\b", "a/b"},
};

INSTANTIATE_TEST_SUITE_P(Cases, PathRelativeTest, testing::ValuesIn(cnWays), NameOfCase);

}  // namespace
