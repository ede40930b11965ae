/// @file
/// When the question is asked, how it reads, and what the answers mean.
#include "vapp/app/TPreferenceMgr.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "tests/toolkit/RecordingPeers.h"
#include "vapp/app/TAllowAskReserveGuard.h"
#include "vapp/text/Translate.h"

namespace {

using namespace prefs;

/// A user who lets something happen while the question is on the screen.
class ThinkingUser : public RecordingPeers {
public:
    std::function<void()> think;
    std::optional<int> ShowMessageBox(const TMessageBox& box) override {
        if (think) think();
        return RecordingPeers::ShowMessageBox(box);
    }
};

class PreferenceMgr : public testing::Test {
protected:
    PreferenceMgr() { manager.ResetAskReserveStatus(); }
    ~PreferenceMgr() override { vlang::gClearTranslations(); }

    TPreferenceMgr& manager = TPreferenceMgr::GetInstance();
    ThinkingUser peers;
};

}  // namespace

TEST_F(PreferenceMgr, ThereIsOne) {
    EXPECT_EQ(&TPreferenceMgr::GetInstance(), &manager);
}

TEST_F(PreferenceMgr, TheQuestionIsAskedByOptionCellAndGuard) {
    const struct {
        TAskReserveOption option;
        bool isManaged;
        bool isGuarded;
        bool isAsked;
    } rows[] = {
        {AskAlways, false, false, false},
        {AskAlways, true, false, false},
        {AskAlways, false, true, true},
        {AskAlways, true, true, true},
        {AskNever, false, false, false},
        {AskNever, true, false, false},
        {AskNever, false, true, false},
        {AskNever, true, true, false},
        {AskManagedCellsOnly, false, false, false},
        {AskManagedCellsOnly, true, false, true},
        {AskManagedCellsOnly, false, true, false},
        {AskManagedCellsOnly, true, true, true},
    };
    for (const auto& row : rows) {
        std::optional<TAllowAskReserveGuard> guard;
        if (row.isGuarded) guard.emplace();
        peers.boxes.clear();
        const TAskReserveStatus status = manager.AskReserve(row.isManaged, row.option);
        EXPECT_EQ(status, row.isAsked ? Agreed : NotAsked) << row.option << row.isManaged << row.isGuarded;
        EXPECT_EQ(peers.boxes.size(), row.isAsked ? 1u : 0u) << row.option << row.isManaged << row.isGuarded;
        EXPECT_EQ(manager.GetAskReserveStatus(), status);
    }
}

TEST_F(PreferenceMgr, OnlyTheFirstButtonAgrees) {
    const struct {
        std::optional<int> answer;
        TAskReserveStatus status;
    } rows[] = {
        {IDOK, Agreed}, {IDCANCEL, Declined}, {IDYES, Declined}, {0, Declined}, {std::nullopt, Declined}};
    for (const auto& row : rows) {
        peers.answer = row.answer;
        EXPECT_EQ(manager.AskReserve(true, AskManagedCellsOnly), row.status);
    }
}

TEST_F(PreferenceMgr, TheQuestionInItsWords) {
    ASSERT_EQ(manager.AskReserve(true, AskManagedCellsOnly), Agreed);
    ASSERT_EQ(peers.boxes.size(), 1u);
    const TMessageBox& box = peers.boxes.front();
    EXPECT_EQ(box.GetOwner(), nullptr);
    EXPECT_EQ(box.GetTitle(), "Reserve");
    EXPECT_EQ(box.GetText(), "Do you want to reserve the cellview?");
    EXPECT_EQ(box.GetStyle(), 0x21u);
    ASSERT_EQ(box.GetButtons().size(), 2u);
    EXPECT_EQ(box.GetButtons()[0].text, "&Yes");
    EXPECT_EQ(box.GetButtons()[0].answer, 1);
    EXPECT_EQ(box.GetButtons()[1].text, "&No");
    EXPECT_EQ(box.GetButtons()[1].answer, 2);
}

TEST_F(PreferenceMgr, AllWordsAreTranslated) {
    ASSERT_EQ(vlang::gLoadTranslations("Reserve\tR\xC3\xA9server\n"
                                       "Do you want to reserve the cellview?\tOui ou non ?\n"
                                       "&Yes\t&Oui\n&No\t&Non\n"),
              0);
    ASSERT_EQ(manager.AskReserve(true, AskManagedCellsOnly), Agreed);
    const TMessageBox& box = peers.boxes.front();
    EXPECT_STREQ(box.GetTitle().Payload(), "R\xC3\xA9server");
    EXPECT_EQ(box.GetText(), "Oui ou non ?");
    EXPECT_EQ(box.GetButtons()[0].text, "&Oui");
    EXPECT_EQ(box.GetButtons()[1].text, "&Non");
}

TEST_F(PreferenceMgr, TheAnswerStaysUntilTheNextQuestionOrAReset) {
    peers.answer = IDCANCEL;
    ASSERT_EQ(manager.AskReserve(true, AskManagedCellsOnly), Declined);
    EXPECT_EQ(manager.GetAskReserveStatus(), Declined);
    EXPECT_EQ(manager.AskReserve(true, AskNever), NotAsked) << "what isn't asked has no answer";
    EXPECT_EQ(manager.GetAskReserveStatus(), NotAsked);
    ASSERT_EQ(manager.AskReserve(true, AskManagedCellsOnly), Declined);
    manager.ResetAskReserveStatus();
    EXPECT_EQ(manager.GetAskReserveStatus(), NotAsked);
}

TEST_F(PreferenceMgr, AnOptionThatIsNoneNeverAsks) {
    const auto none = static_cast<TAskReserveOption>(3);
    const TAllowAskReserveGuard guard;
    for (const bool isManaged : {false, true})
        EXPECT_EQ(manager.AskReserve(isManaged, none), NotAsked);
    EXPECT_TRUE(peers.boxes.empty());
}

TEST_F(PreferenceMgr, WhatHappensWhileTheUserThinksDoesNotTouchTheAnswer) {
    std::optional<TAllowAskReserveGuard> guard(std::in_place);
    TAskReserveStatus meanwhile = Agreed;
    peers.think = [&] {
        meanwhile = manager.GetAskReserveStatus();
        manager.ResetAskReserveStatus();
        guard.reset();
    };
    EXPECT_EQ(manager.AskReserve(false, AskAlways), Agreed);
    EXPECT_EQ(meanwhile, NotAsked) << "the former answer is gone when the question comes up";
    EXPECT_EQ(manager.GetAskReserveStatus(), Agreed);
    EXPECT_EQ(manager.AskReserve(false, AskAlways), NotAsked) << "the scope has ended meanwhile";
    EXPECT_EQ(peers.boxes.size(), 1u);
}

TEST_F(PreferenceMgr, AQuestionWithinTheQuestionIsAnsweredFirst) {
    peers.think = [&] {
        peers.think = nullptr;
        peers.answer = IDCANCEL;
        EXPECT_EQ(manager.AskReserve(true, AskManagedCellsOnly), Declined);
        peers.answer = IDOK;
    };
    EXPECT_EQ(manager.AskReserve(true, AskManagedCellsOnly), Agreed);
    EXPECT_EQ(manager.GetAskReserveStatus(), Agreed) << "the last answer that came";
    EXPECT_EQ(peers.boxes.size(), 2u);
}
