/// @file
/// Which clipboard is taken, what it is given, and what becomes of a failure. Where the system has a
/// clipboard of its own, that one is taken whatever the toolkit has; its own tests stand with it.
#include "vapp/toolkit/Clipboard.h"

#include <gtest/gtest.h>

#include "tests/toolkit/RecordingPeers.h"
#include "text/PlatformClipboard.h"
#include "text/PlatformText.h"
#include "toolkit/MemoryClipboard.h"
#include "vapp/text/ActiveCodePage.h"

namespace {

class FailingClipboard final : public ClipboardPeer {
public:
    [[nodiscard]] bool SetText(std::u16string_view /*wide*/,
                               std::optional<std::string_view> /*narrow*/) override {
        ++attempts;
        return false;
    }
    [[nodiscard]] std::u16string GetText() const override { return {}; }
    int attempts = 0;
};

class PeersWithClipboard : public RecordingPeers {
public:
    explicit PeersWithClipboard(ClipboardPeer& clipboard) : m_clipboard(clipboard) {}
    [[nodiscard]] ClipboardPeer* GetClipboard() override { return &m_clipboard; }

private:
    ClipboardPeer& m_clipboard;
};

class CodePage {
public:
    explicit CodePage(unsigned number) { gSetActiveCodePage(number); }
    ~CodePage() { gSetActiveCodePage(0); }
    CodePage(const CodePage&) = delete;
    CodePage& operator=(const CodePage&) = delete;
};

class ClipboardTest : public testing::Test {
protected:
    void SetUp() override {
        if (vapp_platform::HasSystemClipboard()) GTEST_SKIP() << "the system has a clipboard of its own";
    }
};

TEST(ClipboardOfAnySystem, ATextComesBackAsItWas) {
    ASSERT_EQ(PeerFactory::Installed(), nullptr);
    if (!SetClipboardText(CStringU())) {
        ASSERT_TRUE(vapp_platform::HasSystemClipboard()) << "memory takes every text";
        GTEST_SKIP() << "no clipboard can be opened here";
    }
    for (const char16_t* text : {u"inv", u"a\u00e9\u4e2d", u"\u00e9", u"\xd83d", u"line\r\nline\n", u""}) {
        EXPECT_TRUE(SetClipboardText(CStringU(text)));
        EXPECT_EQ(GetClipboardText().Stored(), CStringU(text).Stored());
    }
}

TEST_F(ClipboardTest, AToolkitWithoutAClipboardChangesNothing) {
    EXPECT_TRUE(SetClipboardText("before"));
    const RecordingPeers peers;
    EXPECT_EQ(GetClipboardText(), CStringU("before"));
    EXPECT_TRUE(SetClipboardText("x"));
    EXPECT_EQ(GetClipboardText(), CStringU("x"));
}

// The narrow form is for other programs: what the host has set for its own texts is none of their business.
TEST_F(ClipboardTest, TheToolkitsClipboardGetsBothForms) {
    const unsigned ofSystem = vapp_platform::SystemCodePage();
    const CStringU text(u"a\u00e9\u4e2d");
    MemoryClipboard clipboard;
    const PeersWithClipboard peers(clipboard);
    for (const unsigned active : {0U, 1252U, 1251U, cnUtf8CodePage, 4711U}) {
        const CodePage page(active);
        EXPECT_TRUE(SetClipboardText(text));
        EXPECT_EQ(clipboard.GetText(), u"a\u00e9\u4e2d");
        EXPECT_EQ(clipboard.GetNarrowText(), text.ToAnsi(ofSystem).View()) << active;
        EXPECT_FALSE(clipboard.GetNarrowText().empty()) << active;
        EXPECT_EQ(GetClipboardText(), text);
    }
}

TEST_F(ClipboardTest, OnlyTheUnicodeFormIsRead) {
    MemoryClipboard clipboard;
    const PeersWithClipboard peers(clipboard);
    ASSERT_TRUE(clipboard.SetText(u"wide", "narrow"));
    EXPECT_EQ(GetClipboardText(), CStringU("wide"));
}

TEST_F(ClipboardTest, ATextCanGoAsUnicodeAlone) {
    MemoryClipboard clipboard;
    const PeersWithClipboard peers(clipboard);
    ASSERT_TRUE(SetClipboardText("old"));
    EXPECT_TRUE(SetClipboardUnicodeText("new"));
    EXPECT_EQ(GetClipboardText(), CStringU("new"));
    EXPECT_EQ(clipboard.GetNarrowText(), "");
}

TEST_F(ClipboardTest, ATextEndsAtItsFirstNul) {
    MemoryClipboard clipboard;
    const PeersWithClipboard peers(clipboard);
    ASSERT_TRUE(clipboard.SetText(std::u16string_view(u"a\0b", 3), ""));
    EXPECT_EQ(GetClipboardText(), CStringU("a"));
}

TEST_F(ClipboardTest, AFailureIsToldAndNotMadeUpFor) {
    EXPECT_TRUE(SetClipboardText("in the process"));
    FailingClipboard failing;
    const PeersWithClipboard peers(failing);
    EXPECT_FALSE(SetClipboardText("x"));
    EXPECT_EQ(failing.attempts, 1);
    EXPECT_EQ(GetClipboardText(), CStringU());
}

}  // namespace
