/// @file
/// The edit control.
#include "vapp/toolkit/CEdit.h"

#include <gtest/gtest.h>

#include "tests/toolkit/RecordingParent.h"
#include "tests/toolkit/RecordingPeers.h"

TEST(CEdit, OfSeveralPastedLinesASingleLineTakesTheFirst) {
    RecordingParent parent;
    CEdit edit;
    ASSERT_TRUE(edit.Create(&parent, 7));
    for (const char* pasted : {"inv\nnand\n", "inv\r\n", "inv\r", "inv"}) {
        edit.SetWindowText("");
        edit.EditedByUser(pasted);
        EXPECT_EQ(edit.GetWindowText(), "inv") << pasted;
    }
    edit.EditedByUser("inv\n");
    EXPECT_EQ(parent.Count(cnEditChanged), 4) << "nothing that counts was added";
    edit.EditedByUser("\ninv");
    EXPECT_EQ(edit.GetWindowText(), "");
    CEdit text;
    text.SetMultiLine(true);
    ASSERT_TRUE(text.Create(&parent, 8));
    text.EditedByUser("a\r\nb");
    EXPECT_EQ(text.GetWindowText(), "a\r\nb");
}

TEST(CEdit, OnlyTheUsersTextIsToldToTheParent) {
    RecordingPeers peers;
    RecordingParent parent;
    CEdit edit;
    ASSERT_TRUE(edit.Create(&parent, 7));
    peers.ForgetAll();
    edit.SetWindowText("inv");
    EXPECT_TRUE(parent.heard.empty());
    edit.EditedByUser("inv");
    EXPECT_TRUE(parent.heard.empty()) << "a widget's echo is no edit";
    edit.EditedByUser("inv*");
    EXPECT_EQ(edit.GetWindowText(), "inv*");
    EXPECT_EQ(parent.Count(cnEditChanged), 1);
    edit.SetCueText("Filter");
    edit.SetCueText("Filter");
    EXPECT_EQ(edit.GetCueText(), "Filter");
    EXPECT_EQ(peers.Of(edit).changes, (std::vector<UINT>{cnChangeText, cnChangeText, cnChangeLook}));
}
