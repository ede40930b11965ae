#include "platform/PathNames.h"

#include <gtest/gtest.h>

#include "tests/platform/PathSamples.h"

namespace {

using namespace path_test;
using namespace vapp_platform;

TEST(PathNamesTest, UnixPathsAreToldByTheirStart) {
    for (const char* path :
         {"/", "/a", "../", "../a", "./", "./a", "\"/a\"", "'./a'", "\"'/a'\"", "\"\"\"/\"\"\""})
        EXPECT_TRUE(IsUnixPath(path)) << path;
    for (const char* path : {"", "a", ".", "..", "...", "\\", "..\\a", ".\\a", "C:/a", "\"", "\"\"", "\"/a",
                             "a\"", "\"/a'", "\"a\"", "\"\"\"\"", "~/a", ".a/"})
        EXPECT_FALSE(IsUnixPath(path)) << path;
    EXPECT_TRUE(IsUnixPath(Utf8("/\xC3\xA9")));
    EXPECT_FALSE(IsUnixPath(Utf8("\xC3\xA9/")));
    EXPECT_FALSE(IsUnixPath(text_test::Raw("\x80")));
}

TEST(PathNamesTest, AMillionQuotesAreTakenOff) {
    const std::string quotes(1'000'000, '"');
    EXPECT_TRUE(IsUnixPath((quotes + "/" + quotes).c_str()));
    EXPECT_FALSE(IsUnixPath((quotes + quotes).c_str()));
}

struct SplitCase {
    const char* path;
    const char* directory;
    const char* name;
    const char* base;
    const char* extension;
    bool hasExtension;
};

constexpr SplitCase cnSplits[] = {
    {"", "", "", "", "", false},
    {"a", "", "a", "a", "", false},
    {"a.b", "", "a.b", "a", "b", true},
    {"a.b.c", "", "a.b.c", "a.b", "c", true},
    {"a.", "", "a.", "a", "", true},
    {".a", "", ".a", "", "a", true},
    {".", "", ".", "", "", true},
    {"..", "", "..", ".", "", true},
    {"C:\\x", "C:\\", "x", "x", "", false},
    {"C:/x.y", "C:/", "x.y", "x", "y", true},
    {"C:\\a\\x", "C:\\a", "x", "x", "", false},
    {"C:x", "C:", "x", "x", "", false},
    {"C:", "C:", "", "", "", false},
    {"C:\\", "C:\\", "", "", "", false},
    {"\\x", "", "x", "x", "", false},
    {"/x.y", "", "x.y", "x", "y", true},
    {"a\\b", "a", "b", "b", "", false},
    {"a/b/", "a/b", "", "", "", false},
    {"a//b", "a/", "b", "b", "", false},
    {"dir.d\\file", "dir.d", "file", "file", "", false},
    {"dir.d/file.e", "dir.d", "file.e", "file", "e", true},
    {"a.b:c", "a.b:", "c", "c", "", false},
    {"a::/b", "a::/", "b", "b", "", false},
    {"\\\\s\\sh\\x.y", "\\\\s\\sh", "x.y", "x", "y", true},
    {"\xC3\xA9/b\xC3\xA9.\xE4\xB8\xAD", "\xC3\xA9", "b\xC3\xA9.\xE4\xB8\xAD", "b\xC3\xA9", "\xE4\xB8\xAD",
     true},
    {"a\xC3\xA9/b", "a\xC3\xA9", "b", "b", "", false},
    {"\xC3\xA9:x", "\xC3\xA9:", "x", "x", "", false},
};

TEST(PathNamesTest, EachRowIsTakenApart) {
    for (const SplitCase& row : cnSplits) {
        const CStringU path = Utf8(row.path);
        EXPECT_EQ(Bytes(GetDirectory(path)), row.directory) << row.path;
        EXPECT_EQ(Bytes(GetFileName(path)), row.name) << row.path;
        EXPECT_EQ(Bytes(GetBaseName(path)), row.base) << row.path;
        EXPECT_EQ(Bytes(GetExtension(path)), row.extension) << row.path;
        EXPECT_EQ(HasExtension(path), row.hasExtension) << row.path;
        for (const CStringU& piece :
             {GetDirectory(path), GetFileName(path), GetBaseName(path), GetExtension(path)})
            EXPECT_TRUE(text_test::HoldsMarkerInvariant(piece)) << row.path;
    }
}

TEST(PathNamesTest, TheFolderOfADriveRootKeepsItsSeparator) {
    EXPECT_EQ(Bytes(GetDirectory("C:\\x")), "C:\\");
    EXPECT_EQ(Bytes(GetDirectory("C:\\a\\x")), "C:\\a");
}

TEST(PathNamesTest, AnExtensionIsReplacedOrPutBehind) {
    EXPECT_EQ(Bytes(ReplaceExtension("dir.d\\file", "txt")), "dir.d\\file.txt");
    EXPECT_EQ(Bytes(ReplaceExtension("", "txt")), ".txt");
    EXPECT_EQ(Bytes(ReplaceExtension("", "")), ".");
    EXPECT_EQ(Bytes(ReplaceExtension("a.b", "txt")), "a.txt");
    EXPECT_EQ(Bytes(ReplaceExtension("a.b", "")), "a.");
    EXPECT_EQ(Bytes(ReplaceExtension("a.", "txt")), "a.txt");
    EXPECT_EQ(Bytes(ReplaceExtension("a", "txt")), "a.txt");
    EXPECT_EQ(Bytes(ReplaceExtension("a.b.c", "d.e")), "a.b.d.e");
    EXPECT_EQ(Bytes(ReplaceExtension("C:\\a\\", "txt")), "C:\\a\\.txt");
    EXPECT_EQ(Bytes(ReplaceExtension("a.b", Utf8("x\xC3\xA9"))), "a.x\xC3\xA9");
    EXPECT_TRUE(text_test::HoldsMarkerInvariant(ReplaceExtension("a.b", Utf8("x\xC3\xA9"))));
    EXPECT_TRUE(text_test::HoldsMarkerInvariant(ReplaceExtension(Utf8("a.\xC3\xA9"), "x")));
}

TEST(PathNamesTest, AnExtensionIsEnsuredBehindTheOldOne) {
    EXPECT_EQ(Bytes(EnsureExtension("a.b", "c")), "a.b.c");
    EXPECT_EQ(Bytes(EnsureExtension("a.b", "b")), "a.b");
    EXPECT_EQ(Bytes(EnsureExtension("a.b", "B")), "a.b.B");
    EXPECT_EQ(Bytes(EnsureExtension("a", "c")), "a.c");
    EXPECT_EQ(Bytes(EnsureExtension("a.b.c", "b.c")), "a.b.c.b.c");
    EXPECT_EQ(Bytes(EnsureExtension("d.c/a", "c")), "d.c/a.c");
    EXPECT_EQ(Bytes(EnsureExtension("", "c")), ".c");
    EXPECT_EQ(Bytes(EnsureExtension("a", "")), "a");
    EXPECT_EQ(Bytes(EnsureExtension("a.", "")), "a.");
    EXPECT_EQ(Bytes(EnsureExtension(Utf8("a.\xC3\xA9"), Utf8("\xC3\xA9"))), "a.\xC3\xA9");
}

TEST(PathNamesTest, RemovingAnExtensionJoinsAndSoNormalises) {
    const FakeEnvironment environment;
    const auto removed = [&](const char* path, World world) {
        return Bytes(RemoveExtension(Utf8(path), environment.RulesOf(world)));
    };
    EXPECT_EQ(removed("C:\\a\\b.c", World::Windows), "C:\\a\\b");
    EXPECT_EQ(removed("C:/a/../b.c.d", World::Windows), "C:\\b.c");
    EXPECT_EQ(removed("C:b.c", World::Windows), "C:b");
    EXPECT_EQ(removed("C:\\b.c", World::Wine), "C:\\b");
    EXPECT_EQ(removed("a/b", World::Wine), "a/b");
    EXPECT_EQ(removed("a/b.c", World::Windows), "a\\b");
    EXPECT_EQ(removed("/home/x.y", World::Wine), "/home/x");
    EXPECT_EQ(removed("", World::Wine), "");
    EXPECT_EQ(removed("a/.b", World::Wine), "a");
}

TEST(PathNamesTest, RemovingAnExtensionLosesABareRoot) {
    const FakeEnvironment environment;
    EXPECT_EQ(Bytes(RemoveExtension("/x.y", environment.RulesOf(World::Wine))), "x");
    EXPECT_EQ(Bytes(RemoveExtension("\\x.y", environment.RulesOf(World::Windows))), "x");
}

}  // namespace
