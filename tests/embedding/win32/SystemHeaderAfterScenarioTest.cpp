// Ours first, the system's header behind them, in its narrow alphabet.
// clang-format off
#include "embedding/ExportedHeaders.h"
#include <windows.h>
// clang-format on

#include <gtest/gtest.h>

#include "tests/embedding/MessageWindow.h"

namespace {

TEST(SystemHeaderAfter, OurMembersAndTheSystemsCallsHoldSideBySide) {
    EXPECT_STREQ(embedding_test::UseSharedNames().GetString(), "5 title 7 text");
    EXPECT_EQ(SendMessage(nullptr, WM_NULL, 0, 0), 0);
    EXPECT_EQ(GetProfileInt("no such section", "number", 7), 7U);
}

}  // namespace
