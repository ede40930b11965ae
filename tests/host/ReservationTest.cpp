/// The preference, managed folders, and when the user is asked.

#include "host/Reservation.h"

#include <gtest/gtest.h>

#include "host/NavigatorApp.h"
#include "tests/host/TempFolder.h"
#include "tests/toolkit/RecordingPeers.h"

namespace navigator_test {
namespace {

using namespace navigator;

TEST(ReservationTest, ThePreferenceIsKeptByItsText) {
    NavigatorApp app;
    EXPECT_EQ(gAskReserveOption(app), prefs::AskManagedCellsOnly) << "at first";
    for (const auto option : {prefs::AskAlways, prefs::AskNever, prefs::AskManagedCellsOnly}) {
        gSetAskReserveOption(app, option);
        EXPECT_EQ(gAskReserveOption(app), option);
    }
    EXPECT_EQ(app.GetProfileString("Preferences", "AskReserve"), "Managed Cells Only");
    app.WriteProfileString("Preferences", "AskReserve", "always");
    EXPECT_EQ(gAskReserveOption(app), prefs::AskNever) << "the text is taken as it is written";
}

TEST(ReservationTest, AFolderIsManagedByWhatLiesInItOrAbove) {
    const TempFolder folder;
    folder.Write("a/b/c.sym", "v {}\n");
    EXPECT_FALSE(gIsManagedFolder(folder.Path() / "a" / "b"));
    std::filesystem::create_directory(folder.Path() / "a" / ".svn");
    EXPECT_TRUE(gIsManagedFolder(folder.Path() / "a" / "b"));
    EXPECT_TRUE(gIsManagedFolder(folder.Path() / "a"));
    EXPECT_FALSE(gIsManagedFolder(folder.Path()));
    EXPECT_FALSE(gIsManagedFolder({}));
}

TEST(ReservationTest, NoQuestionIsAYes) {
    RecordingPeers peers;
    EXPECT_TRUE(gMayReserve(true, prefs::AskNever));
    EXPECT_TRUE(gMayReserve(false, prefs::AskManagedCellsOnly));
    EXPECT_TRUE(peers.boxes.empty());
    EXPECT_TRUE(gMayReserve(true, prefs::AskManagedCellsOnly));
    EXPECT_TRUE(gMayReserve(false, prefs::AskAlways));
    EXPECT_EQ(peers.boxes.size(), 2U);
    peers.answer = IDCANCEL;
    EXPECT_FALSE(gMayReserve(false, prefs::AskAlways));
    peers.answer = std::nullopt;
    EXPECT_FALSE(gMayReserve(false, prefs::AskAlways)) << "nobody could be asked";
}

}  // namespace
}  // namespace navigator_test
