/// @file
/// The splash as state: what it shows, how long, and what its peer is told.
#include "vapp/toolkit/TSplashScreen.h"

#include <gtest/gtest.h>

#include "tests/toolkit/RecordingPeers.h"
#include "vapp/text/Translate.h"
#include "vapp/toolkit/Resources.h"

namespace {

class Splash : public testing::Test {
protected:
    Splash() { gSetBitmapResource(5, picture); }
    ~Splash() override { gSetBitmapResource(5, nullptr); }

    int thing = 0;
    const HBITMAP picture = reinterpret_cast<HBITMAP>(&thing);
    RecordingPeers peers;
    TSplashScreen splash;
};

}  // namespace

TEST_F(Splash, BeginsWithNothingToShow) {
    EXPECT_EQ(splash.GetVersionString(), "");
    EXPECT_EQ(splash.GetVersionXLocation(), 0u);
    EXPECT_EQ(splash.GetVersionYLocation(), 0u);
    EXPECT_EQ(splash.GetVersionColor(), 0u);
    EXPECT_EQ(splash.GetPicture(), nullptr);
    EXPECT_FALSE(splash.IsShown());
    EXPECT_FALSE(splash.Show(1000));
    EXPECT_FALSE(splash.IsShown());
    splash.Hide(0);
    splash.TimedOutByPeer();
    EXPECT_FALSE(splash.IsShown());
}

TEST_F(Splash, APictureComesByItsNumber) {
    EXPECT_FALSE(splash.LoadPicture(6, 0xFF00FF));
    EXPECT_EQ(splash.GetPicture(), nullptr);
    EXPECT_TRUE(splash.LoadPicture(5, 0xFF00FF));
    EXPECT_EQ(splash.GetPicture(), picture);
    EXPECT_EQ(splash.GetColorKey(), 0xFF00FFu);
}

TEST_F(Splash, IsShownAtOnceWhereItIsWanted) {
    splash.LoadPicture(5, cnNoColor);
    ASSERT_TRUE(splash.Show(1500, CPoint{30, 40}));
    EXPECT_TRUE(splash.IsShown());
    EXPECT_EQ(splash.GetTimeOut(), 1500);
    EXPECT_EQ(splash.GetPosition(), (CPoint{30, 40}));
    EXPECT_EQ(splash.GetRect().TopLeft(), (CPoint{30, 40}));
    EXPECT_EQ(peers.Of(splash).updates, 1u) << "the event loop doesn't run yet";
    EXPECT_NE(CWnd::GetFocus(), &splash);
}

TEST_F(Splash, WithoutAPlaceThePeerChoosesOne) {
    splash.LoadPicture(5, cnNoColor);
    ASSERT_TRUE(splash.Show(0));
    EXPECT_EQ(splash.GetPosition(), std::nullopt);
}

TEST_F(Splash, EndsByItsTimeOrByTheHost) {
    splash.LoadPicture(5, cnNoColor);
    ASSERT_TRUE(splash.Show(10));
    splash.TimedOutByPeer();
    EXPECT_FALSE(splash.IsShown());
    EXPECT_FALSE(peers.Of(splash).alive);
    ASSERT_TRUE(splash.Show(10)) << "and can come again";
    EXPECT_TRUE(peers.Of(splash).alive);
    splash.Hide(0);
    EXPECT_FALSE(splash.IsShown());
    ASSERT_TRUE(splash.Show(0)) << "for as long as nobody ends it";
    splash.ClosedByPeer();
    EXPECT_FALSE(splash.IsShown());
    EXPECT_FALSE(peers.Of(splash).alive);
}

TEST_F(Splash, ThePeerHearsOfChanges) {
    splash.LoadPicture(5, cnNoColor);
    ASSERT_TRUE(splash.Show(10));
    peers.ForgetAll();
    splash.SetVersionString("2019.2");
    splash.SetVersionXLocation(10);
    splash.SetVersionYLocation(20);
    splash.SetVersionColor(0x0000FF);
    EXPECT_EQ(peers.Of(splash).Count(cnChangeLook), 4);
    EXPECT_EQ(splash.GetVersionString(), "2019.2");
    EXPECT_EQ(splash.GetVersionXLocation(), 10u);
    EXPECT_EQ(splash.GetVersionYLocation(), 20u);
    EXPECT_EQ(splash.GetVersionColor(), 0x0000FFu);
}

TEST_F(Splash, AsksForPatienceInTheUsersLanguage) {
    splash.LoadPicture(5, cnNoColor);
    ASSERT_TRUE(splash.Show(10));
    peers.ForgetAll();
    EXPECT_EQ(splash.GetStartupWaitMessage(), "");
    splash.ShowStartupWaitMessage();
    EXPECT_EQ(splash.GetStartupWaitMessage(), "The program is starting. Please wait.");
    EXPECT_EQ(peers.Of(splash).updates, 1u);
    vlang::gSetTranslation("__$$Translatable$$_The program is starting. Please wait.", "Patientez \xC3\xA9");
    splash.ShowStartupWaitMessage();
    EXPECT_STREQ(splash.GetStartupWaitMessage().Payload(), "Patientez \xC3\xA9");
    vlang::gClearTranslations();
    splash.HideStartupWaitMessage();
    EXPECT_EQ(splash.GetStartupWaitMessage(), "");
    EXPECT_EQ(peers.Of(splash).Count(cnChangeLook), 3);
}

TEST_F(Splash, EndsWithItsObject) {
    const CWnd* window = nullptr;
    {
        TSplashScreen passing;
        window = &passing;
        passing.LoadPicture(5, cnNoColor);
        ASSERT_TRUE(passing.Show(10));
    }
    EXPECT_FALSE(peers.Of(*window).alive);
}
