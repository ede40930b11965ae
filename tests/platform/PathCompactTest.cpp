#include "platform/PathCompact.h"

#include <gtest/gtest.h>

#include <climits>

#include "platform/PathNames.h"
#include "tests/platform/PathSamples.h"

namespace {

using namespace path_test;
using vapp_platform::CompactPath;

struct CompactCase {
    const char* name;
    const char* path;
    int maximum;
    const char* expected;
};

void PrintTo(const CompactCase& row, std::ostream* out) {
    *out << row.name;
}

class PathCompactTest : public testing::TestWithParam<CompactCase> {};

TEST_P(PathCompactTest, ShortensAsTold) {
    EXPECT_EQ(Bytes(CompactPath(Utf8(GetParam().path), GetParam().maximum, true)), GetParam().expected);
}

constexpr CompactCase cnCompactCases[] = {
    {"ThatFitsStays", "C:\\dir\\sub\\file", 15, "C:\\dir\\sub\\file"},
    {"OneTooLongLosesFolders", "C:\\dir\\folder\\file", 17, "C:\\dir\\...\\file"},
    {"AsManyLastPartsAsFit", "C:\\dir\\folder\\a\\b\\file", 19, "C:\\dir\\...\\a\\b\\file"},
    {"OnePartLessThanThat", "C:\\dir\\folder\\a\\b\\file", 18, "C:\\dir\\...\\b\\file"},
    {"RootAndNameJustFit", "C:\\dir\\folder\\a\\b\\file", 15, "C:\\dir\\...\\file"},
    {"RootAndNameDoNotFit", "C:\\dir\\folder\\a\\b\\file", 14, "file"},
    {"NameJustFits", "C:\\dir\\folder\\a\\b\\file", 4, "file"},
    {"NameDoesNotFit", "C:\\dir\\folder\\a\\b\\file", 3, "file"},
    {"NoRoomAtAll", "C:\\dir\\file", 0, "file"},
    {"Negative", "C:\\dir\\file", -5, "file"},
    {"MostNegative", "C:\\dir\\file", INT_MIN, "file"},
    {"DriveRootOnlyNeverGetsDots", "C:\\a-long-file-name", 18, "a-long-file-name"},
    {"ShareKeepsMachineAndShare", "\\\\srv\\share\\dir\\sub\\file", 21, "\\\\srv\\share\\...\\file"},
    {"ShareWithMoreRoom", "\\\\srv\\share\\dir\\sub\\file", 23, "\\\\srv\\share\\...\\file"},
    {"ShareWithRoomForAPart", "\\\\srv\\share\\folder\\sub\\file", 24, "\\\\srv\\share\\...\\sub\\file"},
    {"UnixKeepsItsFirstFolder", "/home/me/folder/sub/file", 14, "/home/.../file"},
    {"UnixWithRoomForAPart", "/home/me/folder/sub/file", 18, "/home/.../sub/file"},
    {"UnixBelowTheFolder", "./folder/sub/file", 13, "./.../file"},
    {"UnixAboveTheFolder", "../folder/sub/file", 13, "../.../file"},
    {"RelativeRootReachesBehindTwoCharacters", "folder\\sub\\dir\\file", 17, "folder\\...\\file"},
    {"UnixShareHasNoBackslashToSkipTo", "//srv/share/folder/sub/file", 24, "file"},
    {"ShareKeepsAllUpToABackslash", "\\\\srv/share\\dir\\folder\\file", 24, "\\\\srv/share\\dir\\...\\file"},
    {"QuotedUnixPathKeepsItsQuotes", "\"/home/me/folder/sub/file\"", 15, "\"/.../sub/file\""},
    {"FolderAlone", "C:\\dir\\folder\\sub\\", 14, "C:\\dir\\...\\"},
    {"NameBehindAColonHasNoSeparator", "C:\\dir\\folder:name", 16, "name"},
    {"CharactersAreCountedNotBytes", "C:\\\xC3\xA9\xC3\xA9\\\xE4\xB8\xAD\xE4\xB8\xAD\\\xC3\xA9", 10,
     "C:\\\xC3\xA9\xC3\xA9\\\xE4\xB8\xAD\xE4\xB8\xAD\\\xC3\xA9"},
    {"CharactersAreLeftOut",
     "C:\\\xC3\xA9\xC3\xA9\\\xE4\xB8\xAD\xE4\xB8\xAD\xE4\xB8\xAD\xE4\xB8\xAD\\\xC3\xA9", 11,
     "C:\\\xC3\xA9\xC3\xA9\\...\\\xC3\xA9"},
    {"AsciiIsLeft", "C:\\dir\\\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\\file", 15, "C:\\dir\\...\\file"},
    {"DriveBeyondAscii", "\xC3\xA9:\\dir\\folder\\file", 15, "\xC3\xA9:\\dir\\...\\file"},
};

INSTANTIATE_TEST_SUITE_P(Cases, PathCompactTest, testing::ValuesIn(cnCompactCases),
                         [](const auto& row) { return row.param.name; });

TEST(PathCompactNameTest, ANameThatDoesNotFitIsKeptOnlyIfAsked) {
    EXPECT_EQ(Bytes(CompactPath("C:\\dir\\file", 3, true)), "file");
    EXPECT_EQ(Bytes(CompactPath("C:\\dir\\file", 3, false)), "");
    EXPECT_EQ(Bytes(CompactPath("C:\\dir\\file", 4, false)), "file");
    EXPECT_EQ(Bytes(CompactPath("", -1, true)), "");
    EXPECT_EQ(Bytes(CompactPath(text_test::Raw("\x80"), 0, true)), "");
}

TEST(PathCompactPropertyTest, OnlyAKeptNameIsTooLong) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 10000; ++round) {
        const CStringU path{std::u16string_view(RandomPath(random))};
        const int length = path.GetCharCount();
        const int maximum = static_cast<int>(UpTo(random, 40)) - 2;
        const CStringU name = vapp_platform::GetFileName(path);
        for (const bool keepName : {false, true}) {
            const CStringU compact = CompactPath(path, maximum, keepName);
            const std::string shown = Bytes(path) + " to " + std::to_string(maximum) + ": " + Bytes(compact);
            ASSERT_TRUE(text_test::HoldsMarkerInvariant(compact));
            if (length <= maximum) {
                ASSERT_EQ(compact, path) << shown;
            } else if (name.GetCharCount() > maximum) {
                ASSERT_EQ(compact, keepName ? name : CStringU()) << shown;
            } else {
                ASSERT_LE(compact.GetCharCount(), maximum) << shown;
                ASSERT_TRUE(compact.EndsWith(name)) << shown;
            }
        }
    }
}

/// The rule step by step, over UTF-16.
std::u16string ModelCompact(const std::u16string& path, std::size_t maximum, bool keepName) {
    const auto isSeparator = [](char16_t unit) { return unit == u'\\' || unit == u'/'; };
    const auto next = [&](std::size_t from) {
        while (from < path.size() && !isSeparator(path[from]))
            ++from;
        return from;
    };
    if (path.size() <= maximum) return path;
    const std::size_t nameStart = path.find_last_of(u"\\/:") + 1;
    const std::u16string name = path.substr(nameStart);
    if (maximum < name.size()) return keepName ? name : u"";
    const bool unixPath = vapp_platform::IsUnixPath(CStringU(std::u16string_view(path)));
    std::size_t root = unixPath ? 0 : std::min<std::size_t>(2, path.size());
    if (path.size() >= 2 && isSeparator(path[0]) && isSeparator(path[1])) {
        root = std::min(path.find(u'\\', root), path.size());
    }
    if (nameStart > 3) root = std::min(next(root + 1), path.size());
    if (maximum < root + name.size() + 5) return name;
    std::size_t rest = root;
    while (rest < path.size() && root + 4 + (path.size() - rest) > maximum)
        rest = next(rest + 1);
    if (rest == path.size()) return name;
    return path.substr(0, root) + (unixPath ? u"/..." : u"\\...") + path.substr(rest);
}

TEST(PathCompactPropertyTest, AgreesWithTheModelStepByStep) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 10000; ++round) {
        const std::u16string path = RandomPath(random);
        const std::size_t maximum = UpTo(random, 40);
        const bool keepName = UpTo(random, 1) == 0;
        ASSERT_EQ(
            Bytes(CompactPath(CStringU(std::u16string_view(path)), static_cast<int>(maximum), keepName)),
            text_test::Bytes(ModelCompact(path, maximum, keepName)))
            << text_test::Bytes(path) << " to " << maximum;
    }
}

}  // namespace
