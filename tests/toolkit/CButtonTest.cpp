/// @file
/// The push button.
#include "vapp/toolkit/CButton.h"

#include <gtest/gtest.h>

#include "tests/toolkit/RecordingParent.h"
#include "tests/toolkit/RecordingPeers.h"

TEST(CButton, DisabledButtonCannotBePressed) {
    RecordingParent parent;
    CButton button;
    button.Click();
    ASSERT_TRUE(button.Create(&parent, 7));
    button.Click();
    button.EnableWindow(false);
    button.Click();
    ASSERT_EQ(parent.Count(cnButtonClicked), 1);
    EXPECT_EQ(parent.heard[0].id, 7u);
}

TEST(CButton, AnotherImageIsToldToThePeer) {
    RecordingPeers peers;
    CButton button;
    ASSERT_TRUE(button.Create(nullptr, 7));
    peers.ForgetAll();
    button.SetImageResource(9);
    button.SetImageResource(9);
    EXPECT_EQ(button.GetImageResource(), 9u);
    EXPECT_EQ(peers.Of(button).changes, std::vector<UINT>{cnChangeLook});
}
