// The system's whole header first, in its wide alphabet, with its macros min and max: a host that does not
// know of us.
#define UNICODE
#define _UNICODE
// clang-format off
#include <winsock2.h>
#include <windows.h>
#include "embedding/ExportedHeaders.h"
// clang-format on

#include <gtest/gtest.h>

#include <type_traits>

#include "tests/embedding/MessageWindow.h"

namespace {

TEST(SystemHeaderBefore, OurMembersAndTheSystemsCallsHoldSideBySide) {
    EXPECT_STREQ(embedding_test::UseSharedNames().GetString(), "5 title 7 text");
    EXPECT_EQ(SendMessage(nullptr, WM_NULL, 0, 0), 0);
    EXPECT_EQ(GetProfileInt(L"no such section", L"number", 7), 7U);
}

TEST(SystemHeaderBefore, TheBasicTypesAreTheSystems) {
    EXPECT_TRUE((std::is_same_v<decltype(::SendMessageW(nullptr, 0, 0, 0)), LRESULT>));
    EXPECT_TRUE((std::is_same_v<decltype(RGB(1, 2, 3)), COLORREF>));
}

}  // namespace
