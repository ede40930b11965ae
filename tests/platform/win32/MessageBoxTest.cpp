#include "platform/MessageBox.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/win32/BoxText.h"

namespace {

TEST(Win32MessageBox, TheTextOfTheBoxIsInTheSystemsCodePage) {
    const CString text = vapp_platform::BoxText("Prozess l\xc3\xa4uft nicht");
    wchar_t shown[64] = {};
    MultiByteToWideChar(CP_ACP, 0, text, -1, shown, 64);
    if (GetACP() != 1252) GTEST_SKIP() << "the code page may lack the letter";
    EXPECT_STREQ(shown, L"Prozess l\u00e4uft nicht");
}

}  // namespace
