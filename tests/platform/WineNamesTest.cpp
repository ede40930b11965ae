#include "platform/WineNames.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "platform/PathNormalize.h"
#include "platform/World.h"
#include "tests/platform/ToldUnixSide.h"
#include "tests/text/HostileText.h"

namespace {

using vapp_platform::PathRules;
using vapp_platform::TNameWorld;
using vapp_platform::World;

CStringU Utf8(const std::string& bytes) {
    return {bytes.c_str(), TextEncoding::Utf8Auto};
}

std::string RandomPath(std::mt19937& random) {
    static const std::string pieces[] = {"\\",       "/",  ":", "C:\\", ".",  "..",   "a",
                                         "\xC3\xA9", "\"", "'", "%A%",  "$A", "\xFF", " "};
    std::string path;
    for (std::size_t left = random() % 12; left > 0; --left)
        path += pieces[random() % std::size(pieces)];
    return path;
}

// Both worlds over one told Unix side, and two variables: A, an absolute path, and L, a long name.
class WineNamesTest : public testing::Test {
protected:
    using TAsked = std::vector<std::string>;

    ~WineNamesTest() override { vapp_platform::SetWineAnswer(std::nullopt); }

    CStringU Dos(const char* path, World world) const { return vapp_platform::DosName(path, In(world)); }
    CString Unix(const CStringU& path, World world) const { return vapp_platform::UnixName(path, In(world)); }
    CStringU UnixU(const CStringU& path, World world) const {
        return vapp_platform::UnixNameU(path, In(world));
    }
    CStringU UnixPathOf(const CStringU& path, World world = World::Wine) const {
        return vapp_platform::UnixPathOf(path, In(world));
    }
    bool IsAbsolute(const CStringU& path) const { return vapp_platform::IsAbsolutePath(path, m_wine); }
    TAsked Asked() { return std::exchange(m_side.m_asked, {}); }

    TToldUnixSide m_side;

private:
    [[nodiscard]] TNameWorld In(World world) const {
        return {.rules = world == World::Wine ? m_wine : m_windows, .unixSide = m_side};
    }
    vapp_text::EnvironmentLookup m_environment = [](std::u16string_view name) {
        if (name == u"A") return std::optional<std::u16string>(u"C:\\root");
        return name == u"L" ? std::optional(std::u16string(50'000, u'l')) : std::nullopt;
    };
    PathRules m_wine{.world = World::Wine, .environment = m_environment};
    PathRules m_windows{.world = World::Windows, .environment = m_environment};
};

TEST_F(WineNamesTest, OnWindowsTheDosNameOnlyTurnsItsSeparators) {
    m_side.m_dosNames["/var/x"] = "Z:\\var\\x";
    EXPECT_EQ(Dos("/var/x", World::Windows), "\\var\\x");
    EXPECT_EQ(Dos("C:/x", World::Windows), "C:\\x");
    EXPECT_EQ(Dos("", World::Windows), "");
    EXPECT_EQ(Dos(nullptr, World::Windows), "");
    EXPECT_EQ(Asked(), TAsked());
}

TEST_F(WineNamesTest, UnderWineTheDosNameIsWines) {
    m_side.m_dosNames = {{"/var/x", "Z:\\var\\x"}, {"a/b", "Z:\\here\\a\\b"}, {"/\xC3\xA9", "Z:\\\xC3\xA9"}};
    EXPECT_EQ(Dos("/var/x", World::Wine), "Z:\\var\\x");
    EXPECT_EQ(Dos("a/b", World::Wine), "Z:\\here\\a\\b");
    EXPECT_EQ(Dos("/\xC3\xA9", World::Wine), Utf8("Z:\\\xC3\xA9"));
    EXPECT_EQ(Asked(), (TAsked{"/var/x", "a/b", "/\xC3\xA9"}));
}

TEST_F(WineNamesTest, ADosPathIsNotAskedOfWine) {
    EXPECT_EQ(Dos("C:/x", World::Wine), "C:\\x");
    EXPECT_EQ(Dos("\\a/b", World::Wine), "\\a\\b");
    EXPECT_EQ(Dos("::/x", World::Wine), "::\\x");
    EXPECT_EQ(Dos("", World::Wine), "");
    EXPECT_EQ(Dos(nullptr, World::Wine), "");
    EXPECT_EQ(Asked(), TAsked());
}

TEST_F(WineNamesTest, APathOfOneCharacterIsAsked) {
    m_side.m_dosNames["/"] = "Z:\\";
    EXPECT_EQ(Dos("/", World::Wine), "Z:\\");
    EXPECT_EQ(Asked(), (TAsked{"/"}));
}

TEST_F(WineNamesTest, ADosNameThatWineDoesNotKnowIsEmpty) {
    EXPECT_EQ(Dos("/nowhere", World::Wine), "");
}

TEST_F(WineNamesTest, AWineWithoutTheServiceGivesThePlainDosName) {
    m_side.m_hasNames = false;
    EXPECT_EQ(Dos("/var/x", World::Wine), "\\var\\x");
}

TEST_F(WineNamesTest, OnWindowsTheUnixNameIsTheTextItself) {
    for (const char* path : {"C:\\x", "C:/x", "a\\b", "\\a\\b", "/a/b", ""}) {
        EXPECT_EQ(Unix(path, World::Windows), path);
    }
    EXPECT_EQ(Asked(), TAsked());
}

TEST_F(WineNamesTest, UnderWineTheUnixNameOfAnAbsolutePathIsWines) {
    m_side.m_unixNames = {{"C:\\x", "/home/c/x"}, {"\\srv\\x", "/srv/x"}};
    EXPECT_EQ(Unix("C:\\x", World::Wine), "/home/c/x");
    EXPECT_EQ(Unix("\\srv\\x", World::Wine), "/srv/x");
    EXPECT_EQ(Unix("C:\\missing", World::Wine), "");
    EXPECT_EQ(Asked(), (TAsked{"C:\\x", "\\srv\\x", "C:\\missing"}));
}

TEST_F(WineNamesTest, ARelativePathTranslatesToItselfWithSlashes) {
    EXPECT_EQ(Unix("a\\b", World::Wine), "a/b");
    EXPECT_EQ(Unix("..\\a", World::Wine), "../a");
    EXPECT_EQ(Unix("C:", World::Wine), "C:");
    EXPECT_EQ(Unix("C:a\\b", World::Wine), "C:a/b");
    EXPECT_EQ(Unix("", World::Wine), "");
    EXPECT_EQ(Unix(Utf8("a\\\xC3\xA9"), World::Wine), "a/\xC3\xA9");
    EXPECT_EQ(Asked(), TAsked());
}

TEST_F(WineNamesTest, AWineWithoutTheServiceLeavesAnAbsolutePathAlone) {
    m_side.m_hasNames = false;
    EXPECT_EQ(Unix("C:\\x", World::Wine), "C:\\x");
    EXPECT_EQ(Unix(Utf8("C:\\\xC3\xA9"), World::Wine), "C:\\\xC3\xA9");
}

TEST_F(WineNamesTest, TheUnixNameAsATextTakesEitherSeparator) {
    m_side.m_unixNames["C:\\x\\\xC3\xA9"] = "/c/x/\xC3\xA9";
    EXPECT_EQ(UnixU(Utf8("C:/x/\xC3\xA9"), World::Wine), Utf8("/c/x/\xC3\xA9"));
    EXPECT_TRUE(UnixU(Utf8("C:/x/\xC3\xA9"), World::Wine).HasNonAscii());
    EXPECT_EQ(UnixU("a/b", World::Wine), "a/b");
    EXPECT_EQ(UnixU("a/b", World::Windows), "a\\b");
}

TEST_F(WineNamesTest, AnEmptyTranslationIsNoName) {
    EXPECT_EQ(UnixU("C:/missing", World::Wine), "");
    EXPECT_EQ(UnixU("", World::Wine), "");
    EXPECT_EQ(UnixU("", World::Windows), "");
    EXPECT_EQ(Asked(), (TAsked{"C:\\missing"}));
}

TEST_F(WineNamesTest, AUnixPathStaysAsItIs) {
    for (const char* path : {"/a/b", "./a\\b", "../a", "\"/a b\"", "'../a'"}) {
        EXPECT_EQ(UnixPathOf(path), path);
        EXPECT_EQ(UnixPathOf(path, World::Windows), path);
    }
    EXPECT_EQ(Asked(), TAsked());
}

TEST_F(WineNamesTest, AnExistingPathIsTranslatedWhole) {
    m_side.m_unixNames["C:\\a\\b"] = "/c/a/b";
    EXPECT_EQ(UnixPathOf("C:\\a\\b"), "/c/a/b");
    EXPECT_EQ(UnixPathOf("C:/a/b"), "/c/a/b");
}

TEST_F(WineNamesTest, PartsThatDoNotExistFollowTheTranslatedHead) {
    m_side.m_unixNames["C:\\a"] = "/c/a";
    EXPECT_EQ(UnixPathOf("C:\\a\\new\\newer"), "/c/a/new/newer");
    EXPECT_EQ(Asked(), (TAsked{"C:\\a\\new\\newer", "C:\\a\\new", "C:\\a"}));
    EXPECT_EQ(UnixPathOf(Utf8("C:\\a\\\xC3\xA9\\n/m")), Utf8("/c/a/\xC3\xA9/n/m"));
}

// A drive alone counts as relative, and translates to itself.
TEST_F(WineNamesTest, ADriveWithoutANameKeepsItsLetter) {
    EXPECT_EQ(UnixPathOf("C:\\a\\b"), "C:/a/b");
}

TEST_F(WineNamesTest, OnlyBackslashesAreCutAt) {
    m_side.m_unixNames["C:\\a"] = "/c/a";
    EXPECT_EQ(UnixPathOf("C:/a/new"), "");
    EXPECT_EQ(UnixPathOf("C:/a\\new"), "/c/a/new");
}

TEST_F(WineNamesTest, AHeadThatComesToNothingLeavesTheTail) {
    EXPECT_EQ(UnixPathOf("\\a\\b"), "/a/b");
    EXPECT_EQ(UnixPathOf("\\"), "");
    EXPECT_EQ(UnixPathOf(""), "");
}

TEST_F(WineNamesTest, ASeparatorAtTheEndIsDroppedWhereTheHeadIsFound) {
    m_side.m_unixNames["C:\\a"] = "/c/a";
    EXPECT_EQ(UnixPathOf("C:\\a\\"), "/c/a");
    EXPECT_EQ(UnixPathOf("C:\\a\\\\b"), "/c/a//b");
}

TEST_F(WineNamesTest, RelativePathsAndWindowsTranslateAtOnce) {
    EXPECT_EQ(UnixPathOf("a\\b"), "a/b");
    EXPECT_EQ(UnixPathOf("C:\\a/b", World::Windows), "C:\\a\\b");
    EXPECT_EQ(Asked(), TAsked());
    m_side.m_hasNames = false;
    EXPECT_EQ(UnixPathOf("C:\\a/b"), "C:\\a\\b");
}

// What is not absolute comes back with slashes, and nobody is asked.
TEST_F(WineNamesTest, ExactlyTheAbsolutePathsAreAskedFor) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 3000; ++round) {
        const CStringU path = Utf8(RandomPath(random));
        const CString name = Unix(path, World::Wine);
        EXPECT_EQ(Asked().size(), IsAbsolute(path) ? 1u : 0u) << path.Payload() << " " << name.GetString();
    }
}

// Heads that Linux could have no name for are passed over, all but the whole.
TEST_F(WineNamesTest, APathOfVeryManyPartsEnds) {
    const std::string part = "\\" + std::string(99, 'a');
    std::string path = "C:";
    for (int i = 0; i < 20'000; ++i)
        path += part;
    m_side.m_unixNames["C:" + part] = "/c/found";
    const std::string answer = UnixPathOf(path.c_str()).Payload();
    EXPECT_TRUE(answer.starts_with("/c/found/aaa"));
    EXPECT_EQ(answer.size(), path.size() - 2 - part.size() + 8);
    const TAsked asked = Asked();
    EXPECT_EQ(asked.size(), 1 + 4096 / part.size());
    EXPECT_EQ(asked.front().size(), path.size());
    EXPECT_LE(asked.at(1).size(), 4096u);
}

TEST_F(WineNamesTest, LengthsOfHeadsAreCharacters) {
    const std::string sign = "\xE4\xB8\xAD";
    std::string name;
    for (int i = 0; i < 4093; ++i)
        name += sign;
    m_side.m_unixNames["C:\\" + name] = "/c/found";
    EXPECT_EQ(UnixPathOf(Utf8("C:\\" + name + "\\new")), "/c/found/new");
    m_side.m_unixNames.clear();
    m_side.m_unixNames["C:\\a"] = "/c/a";
    static_cast<void>(Asked());
    EXPECT_EQ(UnixPathOf(Utf8("C:\\a\\" + name + "\\new")), Utf8("/c/a/" + name + "/new"));
    EXPECT_EQ(Asked().size(), 2U) << "the head that ends behind the name is one of 4098 characters";
}

TEST_F(WineNamesTest, SeparatorsInARowAreNotAllAskedFor) {
    m_side.m_unixNames["C:\\a"] = "/c/a";
    EXPECT_EQ(UnixPathOf("C:\\a\\\\\\\\b"), "/c/a////b");
    EXPECT_EQ(Asked(), (TAsked{"C:\\a\\\\\\\\b", "C:\\a\\\\\\", "C:\\a"}));
    EXPECT_EQ(UnixPathOf("C:\\a\\\\\\\\"), "/c/a////");
    m_side.m_unixNames["C:\\a\\"] = "/c/a";
    EXPECT_EQ(UnixPathOf("C:\\a\\\\b"), "/c/a/b");
}

// Judging a head makes no more of the values in it than tells whether it is absolute.
TEST_F(WineNamesTest, AnUnknownPathOfManyLongValuesEnds) {
    std::string path = "C:";
    for (int i = 0; i < 1000; ++i)
        path += "\\$L";
    EXPECT_EQ(UnixPathOf(path.c_str()).GetByteLength(), static_cast<int>(path.size()));
    EXPECT_EQ(Asked().size(), 1000U);
}

TEST_F(WineNamesTest, AnyTextEnds) {
    std::mt19937 random = text_test::SeededRandom();
    for (int round = 0; round < 3000; ++round) {
        const std::string path = RandomPath(random);
        SCOPED_TRACE(path);
        const CStringU text = Utf8(path);
        for (const World world : {World::Wine, World::Windows}) {
            for (const bool hasNames : {true, false}) {
                m_side.m_hasNames = hasNames;
                const CStringU answer = UnixPathOf(text, world);
                // Nothing here has a name, so that a character is lost or turned, and never won.
                EXPECT_LE(answer.GetByteLength(), text.GetByteLength());
            }
        }
    }
}

TEST_F(WineNamesTest, ToWindowsSeparatorsTurnsEverySlashInEitherWorld) {
    for (const bool isWine : {false, true}) {
        vapp_platform::SetWineAnswer(isWine);
        EXPECT_EQ(gToWindowsSeparators("/a/b\\c/"), "\\a\\b\\c\\");
        EXPECT_EQ(gToWindowsSeparators(Utf8("\xC3\xA9/x")), Utf8("\xC3\xA9\\x"));
        EXPECT_EQ(gToWindowsSeparators(""), "");
    }
}

// The process's own operations in the world of plain Windows, which every system can stand for.
TEST_F(WineNamesTest, PlainWindowsHasPlainNames) {
    vapp_platform::SetWineAnswer(false);
    EXPECT_EQ(gGetDosName("/var/x"), "\\var\\x");
    EXPECT_EQ(gGetUnixName("C:\\x"), "C:\\x");
    EXPECT_EQ(gGetUnixNameU("C:/x"), "C:\\x");
    EXPECT_EQ(gGetUnixPathOf("C:/x/y"), "C:\\x\\y");
    EXPECT_EQ(gGetUnixPathOf("/x/y"), "/x/y");
}

TEST_F(WineNamesTest, InTheWorldOfWineADriveNeedsNoAsking) {
    vapp_platform::SetWineAnswer(true);
    EXPECT_EQ(gGetDosName("C:/x"), "C:\\x");
    EXPECT_EQ(gGetUnixName("a\\b"), "a/b");
}

}  // namespace
