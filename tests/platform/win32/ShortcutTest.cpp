// Shortcuts by the shell's own link object, and our reader beside it.
#include <gmock/gmock.h>
#include <objbase.h>
#include <shlobj.h>
#include <windows.h>

#include <fstream>
#include <iterator>
#include <string>

#include "platform/FileSystem.h"
#include "platform/FileWalk.h"
#include "platform/Files.h"
#include "platform/ShellLinkFile.h"
#include "tests/platform/ShellLinkBytes.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

using platform_test::TTemporaryFolder;
using testing::ElementsAre;

struct ShortcutTest : testing::Test {
    ShortcutTest() { EXPECT_TRUE(SUCCEEDED(CoInitialize(nullptr))); }
    ~ShortcutTest() override { CoUninitialize(); }

    void MakeShortcut(std::string_view below, const CStringU& target) const {
        IShellLinkW* link = nullptr;
        IPersistFile* file = nullptr;
        ASSERT_TRUE(SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER,
                                               IID_IShellLinkW, reinterpret_cast<void**>(&link))));
        EXPECT_TRUE(SUCCEEDED(link->SetPath(target.ToStdWstring().c_str())));
        EXPECT_TRUE(SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file))));
        EXPECT_TRUE(SUCCEEDED(file->Save(folder.Path(below).ToStdWstring().c_str(), TRUE)));
        file->Release();
        link->Release();
    }
    [[nodiscard]] std::string Bytes(std::string_view below) const {
        std::ifstream file(folder.Native(below), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    TTemporaryFolder folder;
};

TEST_F(ShortcutTest, LeadsToItsTarget) {
    folder.MakeFolder("lib").MakeFile("lib/inv.sch");
    MakeShortcut("s.lnk", folder.Path("lib/inv.sch"));
    MakeShortcut("l.lnk", folder.Path("lib"));
    EXPECT_TRUE(gResolveShortcut(folder.Path("s.lnk")).EqualsNoCase(folder.Path("lib/inv.sch")));
    EXPECT_TRUE(gResolveShortcut(folder.Path("l.lnk")).EqualsNoCase(folder.Path("lib")));
}

TEST_F(ShortcutTest, OurReaderReadsWhatTheShellWrites) {
    folder.MakeFolder("lib").MakeFile("lib/inv.sch");
    MakeShortcut("s.lnk", folder.Path("lib/inv.sch"));
    const auto link = vapp_platform::ReadShellLink(Bytes("s.lnk"));
    ASSERT_TRUE(link.has_value());
    EXPECT_TRUE(link->localPath.EqualsNoCase(folder.Path("lib/inv.sch"))) << link->localPath.Payload();
}

TEST_F(ShortcutTest, TheShellReadsWhatOurTestsWrite) {
    folder.MakeFile("inv.sch");
    const CString target = folder.Path("inv.sch").ToAnsi(GetACP());
    folder.MakeFile("made.lnk",
                    platform_test::ShellLinkBytes({.localBase = std::string(target.GetString())}));
    EXPECT_TRUE(gResolveShortcut(folder.Path("made.lnk")).EqualsNoCase(folder.Path("inv.sch")))
        << gResolveShortcut(folder.Path("made.lnk")).Payload();
}

TEST_F(ShortcutTest, WalksFollowShortcutsAndEndOnCircles) {
    folder.MakeFolder("a").MakeFolder("b").MakeFile("a/f").MakeFile("b/g");
    MakeShortcut("a/b.lnk", folder.Path("b"));
    MakeShortcut("b/a.lnk", folder.Path("a"));
    const auto found = gCollectFiles(folder.Path("a"), "", false);
    ASSERT_EQ(found.size(), 4U);
    EXPECT_TRUE(found[0].EqualsNoCase(folder.Path("b/a.lnk")));
    EXPECT_TRUE(found[1].EqualsNoCase(folder.Path("b/g")));
    EXPECT_EQ(found[2], folder.Path("a/b.lnk"));
    EXPECT_EQ(found[3], folder.Path("a/f"));
}

TEST_F(ShortcutTest, WalksFollowShortcutsToShortcuts) {
    folder.MakeFolder("lib").MakeFile("lib/inv.sch");
    MakeShortcut("two.lnk", folder.Path("lib"));
    MakeShortcut("one.lnk", folder.Path("two.lnk"));
    const auto found = gCollectFiles(folder.Path("one.lnk"), "", false);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_TRUE(found[0].EqualsNoCase(folder.Path("lib/inv.sch"))) << found[0].Payload();
}

TEST(ShortcutWithoutComTest, IsItself) {
    EXPECT_EQ(gResolveShortcut("C:\\any.lnk"), "C:\\any.lnk");
}

}  // namespace
