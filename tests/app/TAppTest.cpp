/// @file
/// The start in its order, and what each step does with its answers.
#include "vapp/app/TApp.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "platform/FaultPoint.h"
#include "tests/app/InstanceRoles.h"
#include "tests/app/StartLog.h"
#include "tests/platform/InstanceFolder.h"
#include "vapp/platform/MessageBox.h"
#include "vapp/toolkit/Resources.h"
#include "vapp/toolkit/WindowPlacement.h"

namespace {

using app_test::LoggingApp;
using app_test::OtherInstance;
using app_test::StartLog;

constexpr unsigned cnSplash = 9;
constexpr char csSplashLine[] = "splash '2019.2' at 11 22 in 33, key 4294967295, for 1000 ms, corner ";

std::string gSaid;

/// The machine has no SSE while this lives.
class NoSse {
public:
    NoSse() {
        vapp_platform::SetFaultSource([](vapp_platform::SystemCall call) {
            return call == vapp_platform::SystemCall::AskProcessor ? 1 : 0;
        });
    }
    ~NoSse() { vapp_platform::SetFaultSource(nullptr); }
    NoSse(const NoSse&) = delete;
    NoSse& operator=(const NoSse&) = delete;
};

/// A splash on a screen, with something to do when it goes.
class WatchedSplash : public Peer {
public:
    explicit WatchedSplash(std::function<void()> atEnd) : m_atEnd(std::move(atEnd)) {}
    ~WatchedSplash() override { m_atEnd(); }
    void Changed(UINT /*changes*/) override {}
    void Invalidate(bool /*erase*/) override {}
    void UpdateNow() override {}
    [[nodiscard]] void* NativeHandle() const override { return const_cast<WatchedSplash*>(this); }

private:
    std::function<void()> m_atEnd;
};

class WatchingPeers : public RecordingPeers {
public:
    std::function<void()> atEnd;
    std::unique_ptr<Peer> CreateSplash(TSplashScreen& /*splash*/) override {
        return std::make_unique<WatchedSplash>(atEnd);
    }
};

class App : public testing::Test {
protected:
    App() {
        gSetBitmapResource(cnSplash, reinterpret_cast<HBITMAP>(&things[0]));
        peers.monitors = {{0, 0, 1600, 1200}};
    }
    ~App() override {
        gSetBitmapResource(cnSplash, nullptr);
        gSetBitmapResource(cnSplash, nullptr, Module());
    }
    HINSTANCE Module() { return reinterpret_cast<HINSTANCE>(&things[1]); }
    void Place(const CRect& rect) {
        ASSERT_TRUE(gWriteWindowPlacement({.normal = rect, .isMaximized = false}, "WindowPos"));
    }
    // Behind what every start begins with.
    static StartLog Start(const StartLog& rest) {
        StartLog all = {"command line", "name", "limit", "bitmap"};
        all.insert(all.end(), rest.begin(), rest.end());
        return all;
    }

    int things[2] = {};
    const platform_test::InstanceFolder folder;
    StartLog log;
    app_test::LoggingPeers peers{log};
    LoggingApp app{log, folder.name};
};

}  // namespace

TEST_F(App, TheWholeStartInItsOrder) {
    app.bitmap = cnSplash;
    Place({100, 100, 900, 700});
    const NoSse noSse;
    EXPECT_EQ(app.InitInstance(), 1);
    EXPECT_EQ(log, Start({"version", "x", "y", "colour", "module", "read WindowPlacement/WindowPos",
                          "monitors", "time-out", std::string(csSplashLine) + "541 449", "box Error"}));
    EXPECT_TRUE(app.IsSplashScreenVisible());
}

TEST_F(App, WithoutAPictureThereIsNoSplashAndNoReadingOfThePlace) {
    EXPECT_EQ(app.InitInstance(), 1);
    EXPECT_EQ(log, Start({}));
    EXPECT_FALSE(app.IsSplashScreenVisible());
}

TEST_F(App, WithoutAPlaceTheSplashHasNone) {
    app.bitmap = cnSplash;
    EXPECT_EQ(app.InitInstance(), 1);
    EXPECT_EQ(log, Start({"version", "x", "y", "colour", "module", "read WindowPlacement/WindowPos",
                          "time-out", std::string(csSplashLine) + "-1 -1"}));
    EXPECT_TRUE(app.IsSplashScreenVisible());
}

TEST_F(App, TheSplashStandsOnTheMonitorOfTheWindow) {
    app.bitmap = cnSplash;
    peers.monitors = {{0, 0, 1000, 800}, {1000, 0, 3000, 1000}};
    Place({1900, 10, 2500, 400});
    EXPECT_EQ(app.InitInstance(), 1);
    EXPECT_EQ(log.back(), std::string(csSplashLine) + "1741 349");
}

TEST_F(App, WithoutMonitorsTheSplashStandsOnTheMiddleOfTheWindow) {
    app.bitmap = cnSplash;
    peers.monitors.clear();
    Place({1000, 1000, 1600, 1500});
    EXPECT_EQ(app.InitInstance(), 1);
    EXPECT_EQ(log.back(), std::string(csSplashLine) + "1041 1099") << "259 to the left, 151 above";
}

TEST_F(App, ThePictureIsThatOfTheModule) {
    app.bitmap = cnSplash;
    app.module = Module();
    EXPECT_EQ(app.InitInstance(), 1);
    EXPECT_FALSE(app.IsSplashScreenVisible()) << "the module has no such number";
    EXPECT_EQ(gGetResourceHandle(), nullptr) << "as before";
    gSetBitmapResource(cnSplash, reinterpret_cast<HBITMAP>(&things[1]), Module());
    EXPECT_EQ(app.InitInstance(), 1);
    EXPECT_TRUE(app.IsSplashScreenVisible());
    EXPECT_EQ(gGetResourceHandle(), nullptr);
}

TEST_F(App, AFileIsOpened) {
    app.SetArguments({"chip"});
    EXPECT_EQ(app.InitInstance(), 1);
    EXPECT_EQ(app.info->m_nShellCommand, CCommandLineInfo::FileOpen);
    EXPECT_EQ(app.info->m_strFileName, "chip");
}

TEST_F(App, AFileIsOpenedWhereNothingElseWouldBe) {
    CCommandLineInfo info;
    info.m_nShellCommand = CCommandLineInfo::FileNothing;
    app.info = &info;
    EXPECT_EQ(app.InitInstance(), 1);
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FileNothing) << "no file";
    app.SetArguments({"chip"});
    EXPECT_EQ(app.InitInstance(), 1);
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FileOpen);
}

TEST_F(App, AHostWithoutACommandLineObjectHasTheBases) {
    app.info = nullptr;
    app.SetArguments({"-unregister"});
    app.bitmap = cnSplash;
    EXPECT_EQ(app.InitInstance(), 1);
    EXPECT_EQ(log, (StartLog{"command line", "name", "bitmap"}));
}

TEST_F(App, UnregisteringShowsNoSplashAndWantsToBeAlone) {
    app.bitmap = cnSplash;
    app.limit = 5;
    app.SetArguments({"-unregister"});
    OtherInstance other(app.name, 5);
    ASSERT_EQ(other.Answer(), "0");
    EXPECT_EQ(app.InitInstance(), 0);
    EXPECT_EQ(log, (StartLog{"command line", "name"})) << "the host's limit isn't asked";
    other.End();
    EXPECT_EQ(app.InitInstance(), 1);
    EXPECT_FALSE(app.info->m_bShowSplash);
    EXPECT_FALSE(app.IsSplashScreenVisible());
}

TEST_F(App, AHostsSwitchCanLeaveTheSplashOut) {
    app.bitmap = cnSplash;
    app.info->m_bShowSplash = false;
    EXPECT_EQ(app.InitInstance(), 1);
    EXPECT_EQ(log, Start({}));
}

TEST_F(App, ASecondInstanceEndsBeforeAnySplash) {
    OtherInstance first(app.name, 1);
    ASSERT_EQ(first.Answer(), "0");
    app.bitmap = cnSplash;
    const NoSse noSse;
    EXPECT_EQ(app.InitInstance(), 0);
    EXPECT_EQ(log, (StartLog{"command line", "name", "limit"}));
    first.Kill();
    EXPECT_EQ(app.InitInstance(), 1) << "killed, it leaves nothing behind";
}

TEST_F(App, AHigherLimitLetsASecondInstanceIn) {
    OtherInstance first(app.name, 2);
    app.limit = 2;
    EXPECT_EQ(app.InitInstance(), 1);
    EXPECT_EQ(OtherInstance(app.name, 2).Answer(), "1");
}

TEST_F(App, NoLimitIsTooHigh) {
    OtherInstance first(app.name, 1);
    app.limit = ~0ul;
    EXPECT_EQ(app.InitInstance(), 1);
}

TEST_F(App, TheCountEndsWithTheApplication) {
    StartLog passingLog;
    {
        LoggingApp passing(passingLog, folder.name + "2");
        EXPECT_EQ(passing.InitInstance(), 0) << "only the current application object starts";
        EXPECT_TRUE(passingLog.empty());
    }
    EXPECT_EQ(OtherInstance(folder.name + "2", 1).Answer(), "0");
    EXPECT_EQ(app.InitInstance(), 1);
    EXPECT_EQ(OtherInstance(app.name, 1).Answer(), "1");
}

TEST_F(App, AMachineWithoutSseIsWarnedOfOnceAndStarts) {
    const NoSse noSse;
    EXPECT_EQ(app.InitInstance(), 1);
    ASSERT_EQ(peers.boxes.size(), 1u);
    const TMessageBox& box = peers.boxes.front();
    EXPECT_EQ(box.GetOwner(), nullptr);
    EXPECT_EQ(box.GetTitle(), "Error");
    EXPECT_EQ(box.GetStyle(), static_cast<UINT>(MB_ICONERROR));
    EXPECT_EQ(
        box.GetText(),
        "Vornex EDA Tools can only work on CPUs that are compatible with Pentium III or better and on "
        "Windows 2000 or Windows XP or newer.(We detected that SSE SIMD instruction set is not present on "
        "your system.)\n\nSome elements of this program could still work, but it will be unstable.");
}

TEST_F(App, WithoutAToolkitTheSystemWarns) {
    peers.answer.reset();
    gSetMessageBox([](const char* text, const char* caption) { gSaid = std::string(caption) + '/' + text; });
    const NoSse noSse;
    EXPECT_EQ(app.InitInstance(), 1);
    gSetMessageBox(nullptr);
    EXPECT_EQ(
        gSaid,
        "Error/Vornex EDA Tools can only work on CPUs that are compatible with Pentium III or better and on "
        "Windows 2000 or Windows XP or newer.(We detected that SSE SIMD instruction set is not present on "
        "your system.)\n\nSome elements of this program could still work, but it will be unstable.");
}

TEST_F(App, TheSplashObeysTheHost) {
    app.bitmap = cnSplash;
    app.ShowStartupWaitMessage();
    app.HideStartupWaitMessage();
    app.HideSplashScreen();
    EXPECT_FALSE(app.IsSplashScreenVisible()) << "nothing to show yet";
    ASSERT_EQ(app.InitInstance(), 1);
    EXPECT_TRUE(app.IsSplashScreenVisible());
    EXPECT_EQ(app.TApp::GetSplashScreenVersionXLocation(), 11u) << "as the splash has it";
    EXPECT_EQ(app.TApp::GetSplashScreenVersionYLocation(), 22u);
    EXPECT_EQ(app.TApp::GetSplashScreenVersionColor(), 33ul);
    const TSplashScreen* splash = peers.splash;
    ASSERT_NE(splash, nullptr);
    const CStringU quiet = splash->GetStartupWaitMessage();
    app.ShowStartupWaitMessage();
    EXPECT_NE(splash->GetStartupWaitMessage(), quiet);
    app.HideStartupWaitMessage();
    EXPECT_EQ(splash->GetStartupWaitMessage(), quiet);
    app.HideSplashScreen();
    EXPECT_FALSE(app.IsSplashScreenVisible());
}

TEST_F(App, IsTheMachineToo) {
    EXPECT_FALSE(app.GetOsName().IsEmpty());
    EXPECT_TRUE(app.m_hasSse2);
    EXPECT_EQ(std::filesystem::weakly_canonical(app.GetProgramDirectory().Payload()),
              std::filesystem::weakly_canonical(platform_test::OwnProgram()).parent_path());
}

TEST(EndingApp, GivesItsPlaceToTheNextOneThenItsSplashThenItsCommandLine) {
    const platform_test::InstanceFolder folder;
    StartLog log;
    WatchingPeers peers;
    int picture = 0;
    gSetBitmapResource(cnSplash, reinterpret_cast<HBITMAP>(&picture));
    std::string next;
    bool hasCommandLine = false;
    {
        LoggingApp app(log, folder.name);
        TApp& base = app;
        peers.atEnd = [&] {
            next = OtherInstance(folder.name, 1).Answer();
            hasCommandLine = base.TApp::GetCmdInfo() != nullptr;
        };
        app.bitmap = cnSplash;
        EXPECT_EQ(app.InitInstance(), 1);
        EXPECT_EQ(OtherInstance(folder.name, 1).Answer(), "1");
        EXPECT_EQ(next, "") << "the splash is still there";
    }
    gSetBitmapResource(cnSplash, nullptr);
    EXPECT_EQ(next, "0") << "while the splash goes, another instance may start";
    EXPECT_TRUE(hasCommandLine);
}

TEST(PlainApp, AnswersForAHostThatOverridesNothing) {
    TApp app("tool");
    EXPECT_EQ(app.GetAppName(), "tool");
    EXPECT_EQ(app.GetSplashScreenBitmapID(), 0u);
    EXPECT_EQ(app.GetSplashScreenModule(), nullptr);
    EXPECT_EQ(app.GetSplashScreenTimeOut(), 1000);
    EXPECT_EQ(app.GetSplashScreenVersionXLocation(), 0u);
    EXPECT_EQ(app.GetSplashScreenVersionYLocation(), 0u);
    EXPECT_EQ(app.GetSplashScreenVersionColor(), 0ul);
    EXPECT_STREQ(app.GetVersionString(), "2019.2");
    EXPECT_EQ(app.GetApplicationName(), nullptr);
    EXPECT_EQ(app.GetInstanceLimit(), 1ul);
    ASSERT_NE(app.GetCmdInfo(), nullptr);
    EXPECT_FALSE(app.IsSplashScreenVisible());
}

TEST(PlainApp, ReadsTheCommandLineOfTheProcess) {
    platform_test::PipedChild child = platform_test::StartRole("application", {"a b", "-unregister"});
    ASSERT_NE(child.child, nullptr);
    EXPECT_EQ(platform_test::ReadAll(*child.output), "3: --child=application, a b, -unregister");
}
