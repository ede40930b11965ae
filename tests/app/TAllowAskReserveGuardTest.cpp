/// @file
/// The scope of the permission.
#include "vapp/app/TAllowAskReserveGuard.h"

#include <gtest/gtest.h>

#include "tests/toolkit/RecordingPeers.h"
#include "vapp/app/TPreferenceMgr.h"

namespace {

using namespace prefs;

bool IsAllowed() {
    const RecordingPeers peers;
    return TPreferenceMgr::GetInstance().AskReserve(false, AskAlways) != NotAsked;
}

}  // namespace

TEST(TAllowAskReserveGuard, AllowsTheQuestionInItsScope) {
    EXPECT_FALSE(IsAllowed());
    {
        const TAllowAskReserveGuard guard;
        EXPECT_TRUE(IsAllowed());
    }
    EXPECT_FALSE(IsAllowed());
}

TEST(TAllowAskReserveGuard, TheEndOfAnInnerOneEndsThePermission) {
    const TAllowAskReserveGuard outer;
    {
        const TAllowAskReserveGuard inner;
        EXPECT_TRUE(IsAllowed());
    }
    EXPECT_FALSE(IsAllowed()) << "guards don't nest";
}
