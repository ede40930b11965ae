// The way between two paths beside a slow one that goes step by step over UTF-16, and what joining gives
// back.
#include <gtest/gtest.h>

#include <algorithm>

#include "platform/PathJoin.h"
#include "platform/PathNames.h"
#include "platform/PathNormalize.h"
#include "tests/platform/PathSamples.h"

namespace {

using namespace path_test;
using vapp_platform::IsAbsolutePath;
using vapp_platform::JoinPath;
using vapp_platform::MakeRelativePath;
using vapp_platform::NormalizePath;

bool Separates(char16_t unit) {
    return unit == u'\\' || unit == u'/';
}

char16_t ToUpper(char16_t unit) {
    return unit < 0x80 ? static_cast<char16_t>(std::toupper(unit)) : unit;
}

/// The bytes of the first units of a path: places are told in bytes.
std::size_t BytesBefore(const std::u16string& path, std::size_t place) {
    return text_test::Bytes(path.substr(0, place)).size();
}

std::u16string ModelWay(const std::u16string& base, const std::u16string& path, World world) {
    std::size_t same = 0;
    std::optional<std::size_t> lastCommon;
    int commonSeparators = 0;
    while (same < base.size() && same < path.size() && ToUpper(base[same]) == ToUpper(path[same])) {
        if (Separates(base[same])) {
            lastCommon = same;
            ++commonSeparators;
        }
        ++same;
    }
    if (same == base.size()) {
        if (Separates(base.back())) return path.substr(same);
        if (same < path.size() && Separates(path[same])) return path.substr(same + 1);
    }
    if (!lastCommon) return path;
    const std::size_t at = BytesBefore(base, *lastCommon);
    const bool onDrive = at >= 2 && base.size() >= 2 && base[1] == u':';
    const bool onUnix =
        world == World::Wine && at >= 2 && vapp_platform::IsUnixPath(CStringU(std::u16string_view(base)));
    const bool onShare =
        at > 4 && commonSeparators > 3 && base.size() >= 2 && Separates(base[0]) && Separates(base[1]);
    if (!onDrive && !onUnix && !onShare) return path;
    std::u16string way = path.substr(*lastCommon + 1);
    const std::u16string up = world == World::Wine ? u"../" : u"..\\";
    for (std::size_t i = *lastCommon + 1; i <= base.size(); ++i) {
        if (i < base.size() ? Separates(base[i]) : !Separates(base[i - 1])) way = up + way;
    }
    return way;
}

std::u16string ModelRelative(const std::u16string& base, const std::u16string& path, const PathRules& rules) {
    std::u16string way = path;
    if (!base.empty() && IsAbsolutePath(CStringU(std::u16string_view(path)), rules)) {
        way = ModelWay(base, path, rules.world);
    }
    if (rules.world == World::Wine) std::replace(way.begin(), way.end(), u'\\', u'/');
    return way;
}

/// A path that has much in common with another one.
std::u16string Neighbour(std::mt19937& random, const std::u16string& path) {
    const std::u16string other = RandomPath(random);
    const std::u16string front = path.substr(0, UpTo(random, path.size()));
    return UpTo(random, 3) == 0 ? other : front + other.substr(UpTo(random, other.size()));
}

TEST(PathJoinModelTest, TheWayAgreesWithTheModelStepByStep) {
    std::mt19937 random = text_test::SeededRandom();
    const FakeEnvironment environment;
    for (int round = 0; round < 10000; ++round) {
        const std::u16string base = RandomPath(random);
        std::u16string path = Neighbour(random, base);
        if (UpTo(random, 3) == 0) std::transform(path.begin(), path.end(), path.begin(), ToUpper);
        for (const World world : cnWorlds) {
            const PathRules rules = environment.RulesOf(world);
            const CStringU baseText{std::u16string_view(base)};
            const CStringU pathText{std::u16string_view(path)};
            const CStringU way = MakeRelativePath(baseText, pathText, rules);
            ASSERT_EQ(Bytes(way), text_test::Bytes(ModelRelative(base, path, rules)))
                << NameOf(world) << ' ' << Bytes(baseText) << " to " << Bytes(pathText);
            ASSERT_TRUE(text_test::HoldsMarkerInvariant(way));
        }
    }
}

/// A folder or file that is absolute in the world, by its normal form and with a name at least.
CStringU RandomAbsolute(std::mt19937& random, World world) {
    static constexpr std::u16string_view onWindows[] = {u"C:\\", u"D:\\", u"\\\\s\\sh\\", u"\\\\s\\other\\"};
    static constexpr std::u16string_view onWine[] = {u"/", u"/home/", u"C:\\", u"\\\\s\\sh\\"};
    static constexpr std::u16string_view names[] = {
        u"a", u"b", u"c.d", u"\u00E9t", u"\u4E2D", u"\xD83D\xDE00", u"e f"};
    std::u16string path(world == World::Windows ? OneOf(random, onWindows) : OneOf(random, onWine));
    const char16_t separator = path.starts_with(u'/') ? u'/' : u'\\';
    path += OneOf(random, names);
    for (std::size_t left = UpTo(random, 4); left > 0; --left)
        (path += separator) += OneOf(random, names);
    return CStringU(std::u16string_view(path));
}

TEST(PathJoinModelTest, AWayJoinedToItsBaseGivesThePathBack) {
    std::mt19937 random = text_test::SeededRandom();
    const FakeEnvironment environment;
    std::size_t ways = 0;
    for (int round = 0; round < 10000; ++round) {
        for (const World world : cnWorlds) {
            const PathRules rules = environment.RulesOf(world);
            const CStringU base = RandomAbsolute(random, world);
            const CStringU path = RandomAbsolute(random, world);
            const CStringU way = MakeRelativePath(base, path, rules);
            const CStringU back = JoinPath(base, way, rules);
            ASSERT_EQ(Bytes(back), Bytes(NormalizePath(path, rules)))
                << NameOf(world) << ' ' << Bytes(base) << " to " << Bytes(path) << " by " << Bytes(way);
            if (!IsAbsolutePath(way, rules)) ++ways;
        }
    }
    EXPECT_GT(ways, 2500U);
}

TEST(PathJoinModelTest, AFolderAndANameJoinedAreTakenApartAgain) {
    std::mt19937 random = text_test::SeededRandom();
    const FakeEnvironment environment;
    static constexpr std::u16string_view names[] = {u"n", u"n.x", u".n", u"\u00E9.\u4E2D", u"n.x.y", u"n "};
    for (int round = 0; round < 6000; ++round) {
        for (const World world : cnWorlds) {
            const PathRules rules = environment.RulesOf(world);
            const CStringU folder = NormalizePath(RandomAbsolute(random, world), rules);
            const CStringU name{OneOf(random, names)};
            const CStringU path = JoinPath(folder, name, rules);
            ASSERT_EQ(Bytes(vapp_platform::GetFileName(path)), Bytes(name));
            ASSERT_EQ(Bytes(vapp_platform::GetDirectory(path)), Bytes(folder));
            const CStringU base = vapp_platform::GetBaseName(path);
            const CStringU extension = vapp_platform::GetExtension(path);
            if (vapp_platform::HasExtension(path)) {
                ASSERT_EQ(Bytes(base) + "." + Bytes(extension), Bytes(name));
                ASSERT_EQ(Bytes(vapp_platform::ReplaceExtension(path, extension)), Bytes(path));
            } else {
                ASSERT_EQ(Bytes(base), Bytes(name));
            }
            ASSERT_EQ(Bytes(vapp_platform::RemoveExtension(path, rules)),
                      Bytes(JoinPath(folder, base, rules)));
        }
    }
}

TEST(PathJoinModelTest, JoiningGivesANormalForm) {
    std::mt19937 random = text_test::SeededRandom();
    const FakeEnvironment environment;
    for (int round = 0; round < 6000; ++round) {
        const CStringU base{std::u16string_view(RandomPath(random))};
        const CStringU relative{std::u16string_view(RandomPath(random))};
        for (const World world : cnWorlds) {
            const PathRules rules = environment.RulesOf(world);
            const CStringU joined = JoinPath(base, relative, rules);
            ASSERT_TRUE(text_test::HoldsMarkerInvariant(joined));
            // But for a drive that comes to the start only now; a separator in front of a colon counts as one
            // too, also behind a base that begins so.
            const bool isOddDrive = joined.PayloadView().starts_with("/:");
            if (vapp_platform::DriveBytes(joined) > 0 && (vapp_platform::DriveBytes(base) == 0 || isOddDrive))
                continue;
            ASSERT_EQ(Bytes(NormalizePath(joined, rules)), Bytes(joined))
                << NameOf(world) << ' ' << Bytes(base) << " + " << Bytes(relative);
        }
    }
}

}  // namespace
