#include "platform/InstancePlaces.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/InstanceKey.h"
#include "tests/platform/InstanceFolder.h"

namespace {

using namespace vapp_platform;

class InstancePlaces : public testing::Test {
protected:
    [[nodiscard]] TPlaceResult Take(std::uint32_t limit) const { return TakeInstancePlace(key, limit); }

    const platform_test::InstanceFolder folder;
    const std::string key = InstanceKey(folder.name);
};

TEST_F(InstancePlaces, TheSecondOfOneIsRefusedUntilTheFirstLetsGo) {
    TPlaceResult first = Take(1);
    ASSERT_EQ(first.answer, PlaceAnswer::Taken);
    const TPlaceResult second = Take(1);
    EXPECT_EQ(second.answer, PlaceAnswer::Full);
    EXPECT_FALSE(second.hold.IsOpen());
    first.hold.Drop();
    EXPECT_EQ(Take(1).answer, PlaceAnswer::Taken);
}

TEST_F(InstancePlaces, ARefusalTakesNothing) {
    TPlaceResult first = Take(1);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(Take(1).answer, PlaceAnswer::Full);
    EXPECT_EQ(Take(2).answer, PlaceAnswer::Taken) << "one is taken, two may be";
}

TEST_F(InstancePlaces, AllThatRunAreCountedWhicheverPlaceTheyHave) {
    TPlaceResult first = Take(3);
    const TPlaceResult second = Take(3);
    const TPlaceResult third = Take(3);
    ASSERT_EQ(third.answer, PlaceAnswer::Taken);
    EXPECT_EQ(Take(3).answer, PlaceAnswer::Full);
    first.hold.Drop();
    EXPECT_EQ(Take(1).answer, PlaceAnswer::Full) << "the first place is free, but two others run";
    EXPECT_EQ(Take(3).answer, PlaceAnswer::Taken);
}

TEST_F(InstancePlaces, WithoutALimitOneStillCountsForOthers) {
    const TPlaceResult unlimited = Take(0);
    EXPECT_EQ(unlimited.answer, PlaceAnswer::Taken);
    EXPECT_EQ(Take(0).answer, PlaceAnswer::Taken);
    EXPECT_EQ(Take(1).answer, PlaceAnswer::Full);
}

TEST_F(InstancePlaces, BeyondWhatIsCountedNobodyIsRefused) {
    std::vector<TPlaceResult> all;
    for (std::uint32_t i = 0; i < cnMostPlaces; ++i)
        all.push_back(Take(0));
    EXPECT_EQ(all.back().answer, PlaceAnswer::Taken);
    EXPECT_EQ(Take(0).answer, PlaceAnswer::NotKept);
    EXPECT_EQ(Take(cnMostPlaces + 1).answer, PlaceAnswer::NotKept);
    EXPECT_EQ(Take(cnMostPlaces).answer, PlaceAnswer::Full);
}

TEST_F(InstancePlaces, OtherNamesAreOtherPlaces) {
    const TPlaceResult first = Take(1);
    EXPECT_EQ(TakeInstancePlace(InstanceKey(folder.name + "2"), 1).answer, PlaceAnswer::Taken);
    EXPECT_EQ(TakeInstancePlace(InstanceKey(folder.name + std::string(500, 'x')), 1).answer,
              PlaceAnswer::Taken);
}

TEST_F(InstancePlaces, ABoardThatIsLeftGivesItsTurnAway) {
    for (int i = 0; i < 3; ++i) {
        const InstanceBoard board(key);
        ASSERT_TRUE(board.IsOpen());
        EXPECT_EQ(board.Look(0), InstanceBoard::TPlace::Free);
    }
    EXPECT_EQ(Take(1).answer, PlaceAnswer::Taken);
}

}  // namespace
