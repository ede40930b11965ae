/// @file
/// The clipboard of the window station, looked at by the system's own calls. Where a process may not open it
/// (a service has none), nothing can be tested, and the tests say so.
#include "text/PlatformClipboard.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <string>
#include <vector>

#include "tests/text/TextHelpers.h"
#include "vapp/toolkit/Clipboard.h"

namespace {

using vapp_platform::GetSystemClipboardText;
using vapp_platform::SetSystemClipboardText;

class PlatformClipboardTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(vapp_platform::HasSystemClipboard());
        if (OpenClipboard(nullptr) == 0) GTEST_SKIP() << "no clipboard can be opened here";
        CloseClipboard();
    }

    /// All bytes of the block of a format.
    static std::string BytesOf(UINT format) {
        std::string bytes;
        if (OpenClipboard(nullptr) == 0) return bytes;
        if (const HGLOBAL block = GetClipboardData(format)) {
            bytes.assign(static_cast<const char*>(GlobalLock(block)), GlobalSize(block));
            GlobalUnlock(block);
        }
        CloseClipboard();
        return bytes;
    }

    static bool PutBytes(UINT format, const std::string& bytes) {
        if (OpenClipboard(nullptr) == 0) return false;
        EmptyClipboard();
        const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
        std::memcpy(GlobalLock(block), bytes.data(), bytes.size());
        GlobalUnlock(block);
        const bool taken = SetClipboardData(format, block) != nullptr;
        CloseClipboard();
        return taken;
    }
};

// Blocks may be larger than asked for: what is asked for stands at their front, with its NUL.
TEST_F(PlatformClipboardTest, BothFormatsEndWithANul) {
    ASSERT_TRUE(SetSystemClipboardText(u"a\u00e9\u4e2d", "a\xE9?"));
    const std::string wide = BytesOf(CF_UNICODETEXT);
    const std::string narrow = BytesOf(CF_TEXT);
    ASSERT_GE(wide.size(), 8U);
    ASSERT_GE(narrow.size(), 4U);
    EXPECT_EQ(std::memcmp(wide.data(), u"a\u00e9\u4e2d", 8), 0);
    EXPECT_EQ(std::memcmp(narrow.data(), "a\xE9?", 4), 0);
    EXPECT_EQ(GetSystemClipboardText(), u"a\u00e9\u4e2d");
}

// No memory is as large as the second form says it is: the first is taken, and the whole still fails.
TEST_F(PlatformClipboardTest, ASecondFormThatIsNotTakenFails) {
    const std::string_view tooLong("narrow", static_cast<std::size_t>(PTRDIFF_MAX) / 2);
    EXPECT_FALSE(SetSystemClipboardText(u"wide", tooLong));
    EXPECT_EQ(GetSystemClipboardText(), u"wide");
    const std::u16string_view tooWide(u"wide", static_cast<std::size_t>(PTRDIFF_MAX) / 4);
    EXPECT_FALSE(SetSystemClipboardText(tooWide, "narrow"));
    EXPECT_EQ(BytesOf(CF_TEXT).substr(0, 7), std::string("narrow\0", 7));
}

TEST_F(PlatformClipboardTest, TextsMayBeNoneAtAll) {
    ASSERT_TRUE(SetSystemClipboardText({}, {}));
    EXPECT_EQ(GetSystemClipboardText(), u"");
    ASSERT_GE(BytesOf(CF_TEXT).size(), 1U);
    EXPECT_EQ(BytesOf(CF_TEXT)[0], '\0');
}

// What other programs paste, by the whole way from a text.
TEST_F(PlatformClipboardTest, TheNarrowFormIsInTheSystemsCodePage) {
    const CStringU text(u"a\u00e9");
    const CString expected = text.ToAnsi(GetACP());
    for (const unsigned active : {0U, 65001U, 1251U, 4711U}) {
        const text_test::TCodePageGuard guard(active);
        ASSERT_TRUE(SetClipboardText(text));
        EXPECT_STREQ(BytesOf(CF_TEXT).c_str(), expected.GetString()) << active;
    }
}

TEST_F(PlatformClipboardTest, ASecondTextReplacesTheFirst) {
    ASSERT_TRUE(SetSystemClipboardText(u"first text", "first text"));
    ASSERT_TRUE(SetSystemClipboardText(u"", ""));
    EXPECT_EQ(GetSystemClipboardText(), u"");
    ASSERT_TRUE(SetSystemClipboardText(u"2", "2"));
    EXPECT_EQ(GetSystemClipboardText(), u"2");
}

TEST_F(PlatformClipboardTest, OtherFormatsGo) {
    ASSERT_TRUE(PutBytes(CF_OEMTEXT, std::string("old\0", 4)));
    ASSERT_TRUE(SetSystemClipboardText(u"new", "new"));
    ASSERT_NE(OpenClipboard(nullptr), 0);
    const UINT first = EnumClipboardFormats(0);
    CloseClipboard();
    EXPECT_TRUE(first == CF_UNICODETEXT || first == CF_TEXT) << first;
    EXPECT_EQ(GetSystemClipboardText(), u"new");
}

TEST_F(PlatformClipboardTest, ATextWithoutItsNulEndsWithItsBlock) {
    const std::u16string text(100, u'x');
    const std::string bytes(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t));
    ASSERT_TRUE(PutBytes(CF_UNICODETEXT, bytes));
    // The system may put the missing NUL in place of the last character.
    EXPECT_EQ(GetSystemClipboardText().substr(0, 99), text.substr(0, 99));
}

TEST_F(PlatformClipboardTest, NoTextIsEmptyText) {
    ASSERT_NE(OpenClipboard(nullptr), 0);
    EmptyClipboard();
    CloseClipboard();
    EXPECT_EQ(GetSystemClipboardText(), u"");
}

TEST_F(PlatformClipboardTest, AClipboardHeldByAnotherThreadFails) {
    struct THolder {
        HANDLE held = CreateEventA(nullptr, TRUE, FALSE, nullptr);
        HANDLE release = CreateEventA(nullptr, TRUE, FALSE, nullptr);
        static DWORD WINAPI Run(void* self) {
            const auto* const holder = static_cast<const THolder*>(self);
            // A clipboard opened without a window belongs to nobody, and anybody may open it too.
            const HWND window =
                CreateWindowExA(0, "STATIC", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
            const BOOL open = OpenClipboard(window);
            SetEvent(holder->held);
            WaitForSingleObject(holder->release, INFINITE);
            if (open != 0) CloseClipboard();
            if (window != nullptr) DestroyWindow(window);
            return open != 0 && window != nullptr ? 1 : 0;
        }
    } holder;
    const HANDLE thread = CreateThread(nullptr, 0, &THolder::Run, &holder, 0, nullptr);
    ASSERT_NE(thread, nullptr);
    WaitForSingleObject(holder.held, INFINITE);
    const bool put = SetSystemClipboardText(u"x", "x");
    const std::u16string got = GetSystemClipboardText();
    SetEvent(holder.release);
    WaitForSingleObject(thread, INFINITE);
    DWORD wasHeld = 0;
    GetExitCodeThread(thread, &wasHeld);
    for (const HANDLE handle : {thread, holder.held, holder.release})
        CloseHandle(handle);
    if (wasHeld == 0) GTEST_SKIP() << "no window can be made here to hold the clipboard";
    EXPECT_FALSE(put);
    EXPECT_EQ(got, u"");
}

}  // namespace
