#include "platform/ShellLinkFile.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tests/platform/ShellLinkBytes.h"
#include "tests/text/HostileText.h"
#include "text/PlatformText.h"

namespace {

using platform_test::Number16;
using platform_test::Number32;
using platform_test::ShellLinkBytes;
using platform_test::ShellLinkHeader;
using platform_test::TShellLinkParts;
using vapp_platform::ReadShellLink;
using vapp_platform::TShellLink;

struct ShellLinkFileTest : testing::Test {
    ~ShellLinkFileTest() override { vapp_platform::SetActiveCodePage(0); }

    static TShellLink Read(const TShellLinkParts& parts) {
        return ReadShellLink(ShellLinkBytes(parts)).value();
    }
};

TEST_F(ShellLinkFileTest, ALocalTarget) {
    const TShellLink link = Read({.localBase = "C:\\lib\\inv.sch"});
    EXPECT_EQ(link.localPath, "C:\\lib\\inv.sch");
    EXPECT_EQ(link.networkPath, CStringU());
    EXPECT_EQ(link.relativePath, CStringU());
}

TEST_F(ShellLinkFileTest, ATargetOnAShare) {
    EXPECT_EQ(Read({.share = "\\\\server\\share", .suffix = "lib\\inv.sch"}).networkPath,
              "\\\\server\\share\\lib\\inv.sch");
    EXPECT_EQ(Read({.share = "\\\\server\\share"}).networkPath, "\\\\server\\share");
}

TEST_F(ShellLinkFileTest, AMappedShareHasBothPaths) {
    const TShellLink link = Read({.localBase = "Z:\\", .share = "\\\\server\\share", .suffix = "inv.sch"});
    EXPECT_EQ(link.localPath, "Z:\\inv.sch");
    EXPECT_EQ(link.networkPath, "\\\\server\\share\\inv.sch");
}

TEST_F(ShellLinkFileTest, TheRelativePathStandsBehindTheName) {
    const TShellLink link = Read({.ids = "any bytes of the shell's",
                                  .localBase = "C:\\x",
                                  .name = u"an inverter",
                                  .relativePath = u"..\\lib\\inv.sch"});
    EXPECT_EQ(link.localPath, "C:\\x");
    EXPECT_EQ(link.relativePath, "..\\lib\\inv.sch");
    EXPECT_EQ(Read({.narrowRelativePath = "..\\a"}).relativePath, "..\\a");
}

TEST_F(ShellLinkFileTest, WideTextsOutweighNarrowOnes) {
    const TShellLink link = Read({.localBase = "C:\\??\\",
                                  .localBaseWide = u"C:\\\u56DE\u8DEF\\",
                                  .share = "\\\\s\\??",
                                  .shareWide = u"\\\\s\\\u00FC",
                                  .suffix = "?",
                                  .suffixWide = u"\U0001D11E"});
    EXPECT_EQ(link.localPath.ToWide(), u"C:\\\u56DE\u8DEF\\\U0001D11E");
    EXPECT_EQ(link.networkPath.ToWide(), u"\\\\s\\\u00FC\\\U0001D11E");
}

TEST_F(ShellLinkFileTest, NarrowTextsAreInTheCodePageOfWindowsMachines) {
    const TShellLinkParts parts{.localBase = "C:\\M\xFCller", .narrowRelativePath = "M\xFCller"};
    vapp_platform::SetActiveCodePage(65001);
    EXPECT_EQ(Read(parts).localPath.ToWide(), u"C:\\M\u00FCller");
    EXPECT_EQ(Read(parts).relativePath.ToWide(), u"M\u00FCller");
    vapp_platform::SetActiveCodePage(1251);
    EXPECT_EQ(Read(parts).localPath.ToWide(), u"C:\\M\u044Cller");
}

TEST_F(ShellLinkFileTest, InformationToBeIgnoredIsIgnored) {
    const TShellLink link = Read({.localBase = "C:\\x", .relativePath = u"y", .moreFlags = 0x100});
    EXPECT_EQ(link.localPath, CStringU());
    EXPECT_EQ(link.relativePath, "y");
}

TEST_F(ShellLinkFileTest, WhatIsNoShortcutIsNone) {
    EXPECT_EQ(ReadShellLink(""), std::nullopt);
    EXPECT_EQ(ReadShellLink("[InternetShortcut]\r\nURL=https://example.org/\r\n"), std::nullopt);
    std::string bytes = ShellLinkBytes({.localBase = "C:\\x"});
    EXPECT_EQ(ReadShellLink(bytes.substr(0, 75)), std::nullopt);
    bytes[4] = 2;  // another class of objects
    EXPECT_EQ(ReadShellLink(bytes), std::nullopt);
}

TEST_F(ShellLinkFileTest, AShortcutMayNameNothing) {
    const TShellLink link = ReadShellLink(ShellLinkHeader(0x80)).value();
    EXPECT_TRUE(link.localPath.IsEmpty() && link.networkPath.IsEmpty() && link.relativePath.IsEmpty());
}

TEST_F(ShellLinkFileTest, AFileThatIsCutOffGivesWhatStoodBeforeTheCut) {
    const std::string whole = ShellLinkBytes({.localBase = "C:\\lib", .relativePath = u"lib"});
    for (std::size_t length = 76; length < whole.size(); ++length) {
        const std::string bytes = whole.substr(0, length);
        const TShellLink link = ReadShellLink(bytes).value();
        EXPECT_TRUE(CStringU("C:\\lib").PayloadView().starts_with(link.localPath.PayloadView())) << length;
        EXPECT_TRUE(CStringU("lib").PayloadView().starts_with(link.relativePath.PayloadView())) << length;
    }
}

TEST_F(ShellLinkFileTest, SizesAndOffsetsThatLieGiveEmptyTexts) {
    for (const std::uint32_t lie : {0U, 1U, 75U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFF0U, 0xFFFFFFFFU}) {
        for (std::size_t at = 76; at + 4 <= 76 + 28; at += 4) {
            std::string bytes =
                ShellLinkBytes({.localBase = "C:\\l", .share = "\\\\s\\h", .relativePath = u"r"});
            bytes.replace(at, 4, Number32(lie));
            EXPECT_LE(ReadShellLink(bytes)->localPath.GetByteLength(), 200) << at << ' ' << lie;
        }
    }
    const std::string ids = ShellLinkHeader(0x89) + Number16(0xFFFF) + "ids";
    EXPECT_EQ(ReadShellLink(ids)->relativePath, CStringU());
    const std::string text = ShellLinkHeader(0x88) + Number16(0xFFFF) + platform_test::Wide(u"cut");
    EXPECT_EQ(ReadShellLink(text)->relativePath, "cut");
}

TEST_F(ShellLinkFileTest, RandomDamageNeverReadsOutside) {
    std::mt19937 random = text_test::SeededRandom();
    const std::string whole = ShellLinkBytes({.ids = "id",
                                              .localBase = "C:\\",
                                              .localBaseWide = u"C:\\",
                                              .share = "\\\\s\\h",
                                              .shareWide = u"\\\\s\\h",
                                              .suffix = "x",
                                              .suffixWide = u"x",
                                              .name = u"n",
                                              .relativePath = u"r"});
    for (int i = 0; i < 5000; ++i) {
        std::string bytes = whole;
        for (int n = 0; n < 3; ++n)
            bytes[20 + random() % (bytes.size() - 20)] = static_cast<char>(random());
        ASSERT_TRUE(ReadShellLink(std::string_view(bytes)).has_value());
    }
}

}  // namespace
