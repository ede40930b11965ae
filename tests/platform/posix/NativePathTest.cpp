#include "platform/posix/NativePath.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "platform/Paths.h"
#include "tests/text/HostileText.h"

namespace {

using vapp_platform::FromNativePath;
using vapp_platform::ToNativePath;

TEST(NativePathTest, PlainNamesStayAsTheyAre) {
    EXPECT_EQ(FromNativePath("inv.sch"), "inv.sch");
    EXPECT_FALSE(FromNativePath("inv.sch").HasNonAscii());
    EXPECT_EQ(FromNativePath(""), CStringU());
    EXPECT_EQ(ToNativePath("lib/inv.sch"), "lib/inv.sch");
}

TEST(NativePathTest, BothSeparatorsBecomeTheSystems) {
    EXPECT_EQ(ToNativePath("a\\b/c"), "a/b/c");
    EXPECT_EQ(ToNativePath(CStringU(u"\u00FC\\b\xDC80\\c")), "\xC3\xBC/b\x80/c");
}

TEST(NativePathTest, CharactersBeyond16BitsAreAPairInTextAndFourBytesOnDisk) {
    const CStringU text = FromNativePath("\xF0\x9D\x84\x9E.sym");
    EXPECT_EQ(text.ToWide(), u"\xD834\xDD1E.sym");
    EXPECT_EQ(ToNativePath(text), "\xF0\x9D\x84\x9E.sym");
}

TEST(NativePathTest, BytesThatAreNoUtf8BecomeLoneHalves) {
    EXPECT_EQ(FromNativePath("a\xFFz").ToWide(), u"a\xDCFFz");
    EXPECT_EQ(FromNativePath("\x80").ToWide(), u"\xDC80");
    EXPECT_EQ(FromNativePath("\xED\xA0\x80").ToWide(), u"\xDCED\xDCA0\xDC80") << "a half that was encoded";
    EXPECT_EQ(FromNativePath("\xC0\xAF").ToWide(), u"\xDCC0\xDCAF") << "an overlong separator";
}

TEST(NativePathTest, ABackslashInANameIsNoSeparator) {
    const CStringU name = FromNativePath("a\\b");
    EXPECT_EQ(name.ToWide(),
              u"a\xDC5C"
              u"b");
    EXPECT_EQ(ToNativePath(name), "a\\b");
}

TEST(NativePathTest, HalvesThatStandForNoByteGoOutAsTheyAre) {
    EXPECT_EQ(ToNativePath(CStringU(u"\xD834z")), "\xED\xA0\xB4z");
    EXPECT_EQ(ToNativePath(CStringU(u"\xDC2F")), "\xED\xB0\xAF") << "never a separator, never a NUL";
    EXPECT_EQ(ToNativePath(CStringU(u"\xDC00")), "\xED\xB0\x80");
}

TEST(NativePathTest, RawBytesInATextGoOutAsTheyAre) {
    EXPECT_EQ(ToNativePath(CStringU("x\xFF\xED", TextEncoding::Utf8)), "x\xFF\xED");
}

TEST(NativePathTest, EveryNameComesBackAlsoThroughANormalisedPath) {
    std::mt19937 random = text_test::SeededRandom();
    const std::string_view pieces[] = {"a",    ".b",   "\xC3\xBC", "\xE5\x9B\x9E", "\xF0\x9D\x84\x9E",
                                       "\\",   "\x80", "\xED",     "\xA0",         "\xB2",
                                       "\x80", "\xFF", "\xC0",     "\xED\xB2\x80"};
    for (int i = 0; i < 20000; ++i) {
        std::string name = "n";
        if (i % 2 == 0) name.clear();
        for (auto n = random() % 7; n > 0; --n)
            name += pieces[random() % std::size(pieces)];
        const CStringU text = FromNativePath(name);
        ASSERT_EQ(ToNativePath(text), name);
        ASSERT_EQ(ToNativePath(CStringU(std::u16string_view(text.ToWide()))), name);
        if (!name.empty() && name != "." && name != "..") {
            ASSERT_EQ(ToNativePath(gJoinPath("/lib", text)), "/lib/" + name);
        }
    }
}

}  // namespace
