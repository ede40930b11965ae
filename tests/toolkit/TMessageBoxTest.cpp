/// @file
/// The box as state, and who answers it.
#include "vapp/toolkit/TMessageBox.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/toolkit/RecordingPeers.h"
#include "vapp/text/Translate.h"

namespace {

// "1 OK, 2 Cancel"
std::string ButtonsOf(const TMessageBox& box) {
    std::string all;
    for (const TMessageBox::TButton& button : box.GetButtons())
        all += (all.empty() ? "" : ", ") + std::to_string(button.answer) + ' ' + button.text.Payload();
    return all;
}

}  // namespace

TEST(TMessageBox, TheStyleNamesTheButtons) {
    const struct {
        UINT style;
        const char* buttons;
        int closing;
    } rows[] = {
        {MB_OK, "1 OK", 1},
        {MB_OKCANCEL | MB_ICONQUESTION, "1 OK, 2 Cancel", 2},
        {MB_YESNOCANCEL | MB_ICONWARNING, "6 &Yes, 7 &No, 2 Cancel", 2},
        {MB_YESNO, "6 &Yes, 7 &No", 7},
        {MB_ICONERROR, "1 OK", 1},
        {0xFFFFFFFFu, "1 OK", 1},
    };
    for (const auto& row : rows) {
        const TMessageBox box(nullptr, "title", "text", row.style);
        EXPECT_EQ(ButtonsOf(box), row.buttons) << row.style;
        EXPECT_EQ(box.GetCloseAnswer(), row.closing) << row.style;
    }
}

TEST(TMessageBox, TheStylesAreTheSystems) {
    EXPECT_EQ(MB_OKCANCEL | MB_ICONQUESTION, 0x21u);
    EXPECT_EQ(MB_ICONERROR, 0x10u);
    EXPECT_EQ(IDOK, 1);
}

TEST(TMessageBox, WordsOfTheHostReplaceTheButtons) {
    TMessageBox box(nullptr, "title", "text", MB_OKCANCEL);
    box.SetButtonTexts({"&Go"});
    EXPECT_EQ(ButtonsOf(box), "1 &Go, 2 Cancel");
    box.SetButtonTexts({"a", "b", "c"});
    EXPECT_EQ(ButtonsOf(box), "1 a, 2 b") << "more words than buttons";
    box.SetButtonTexts({});
    EXPECT_EQ(ButtonsOf(box), "1 a, 2 b");
}

TEST(TMessageBox, ButtonsSpeakTheUsersLanguage) {
    vlang::gSetTranslation("__$$Translatable$$_Cancel", "Abbrechen");
    EXPECT_EQ(ButtonsOf(TMessageBox(nullptr, "", "", MB_OKCANCEL)), "1 OK, 2 Abbrechen");
    vlang::gClearTranslations();
}

TEST(TMessageBox, TheToolkitShowsItAndAnswers) {
    RecordingPeers peers;
    peers.answer = IDCANCEL;
    CFrameWnd frame;
    const TMessageBox box(&frame, "title", "text", MB_OKCANCEL);
    EXPECT_EQ(box.Ask(), IDCANCEL);
    EXPECT_EQ(box.DoModal(), IDCANCEL);
    ASSERT_EQ(peers.boxes.size(), 2u);
    EXPECT_EQ(peers.boxes[0].GetOwner(), &frame);
    EXPECT_EQ(peers.boxes[0].GetTitle(), "title");
    EXPECT_EQ(peers.boxes[0].GetText(), "text");
    EXPECT_EQ(peers.boxes[0].GetStyle(), MB_OKCANCEL);
}

TEST(TMessageBox, WhereNobodyCanBeAskedItIsAsIfClosed) {
    const TMessageBox box(nullptr, "title", "text", MB_YESNO);
    ASSERT_EQ(PeerFactory::Installed(), nullptr);
    EXPECT_EQ(box.Ask(), std::nullopt);
    EXPECT_EQ(box.DoModal(), IDNO);
    RecordingPeers peers;
    peers.answer.reset();
    EXPECT_EQ(box.DoModal(), IDNO);
}
