/// The application object: what the library's start reads of the command line, and what it is answered.

#include "host/NavigatorApp.h"

#include <gtest/gtest.h>

#include "vapp/Version.h"

namespace navigator_test {
namespace {

using navigator::NavigatorApp;
using navigator::Options;

/// Any number of instances, so that a navigator that runs beside the tests does not matter.
Options OptionsOf(std::vector<std::string> folders) {
    Options options;
    options.folders = std::move(folders);
    options.instances = 0;
    options.isWithoutSplash = true;
    return options;
}

TEST(NavigatorAppTest, AFolderIsOpened) {
    NavigatorApp app(OptionsOf({"/libs/chip", "/libs/other"}));
    ASSERT_EQ(1, app.InitInstance());
    EXPECT_EQ(CCommandLineInfo::FileOpen, app.GetCmdInfo()->m_nShellCommand);
    EXPECT_STREQ("/libs/chip", app.GetCmdInfo()->m_strFileName.Payload());
}

TEST(NavigatorAppTest, WithoutAFolderItStartsWithSomethingNew) {
    NavigatorApp app(OptionsOf({}));
    ASSERT_EQ(1, app.InitInstance());
    EXPECT_EQ(CCommandLineInfo::FileNew, app.GetCmdInfo()->m_nShellCommand);
    EXPECT_TRUE(app.GetCmdInfo()->m_strFileName.IsEmpty());
}

TEST(NavigatorAppTest, AFolderThatLooksLikeASwitchIsAFolder) {
    NavigatorApp app(OptionsOf({"-unregister"}));
    ASSERT_EQ(1, app.InitInstance());
    EXPECT_EQ(CCommandLineInfo::FileOpen, app.GetCmdInfo()->m_nShellCommand);
    EXPECT_STREQ("./-unregister", app.GetCmdInfo()->m_strFileName.Payload());
}

TEST(NavigatorAppTest, AnswersTheStart) {
    Options options;
    EXPECT_EQ(1u, NavigatorApp(options).GetInstanceLimit());
    options.instances = 5;
    NavigatorApp app(options);
    EXPECT_EQ(5u, app.GetInstanceLimit());
    EXPECT_STREQ("navigator", app.GetApplicationName());
    EXPECT_STREQ("navigator", app.GetAppName().GetString()) << "heights of panes are kept under this name";
    EXPECT_EQ(std::string("Version ") + csVappVersion, app.GetVersionString());
    EXPECT_EQ(NavigatorApp::cnSplashBitmap, app.GetSplashScreenBitmapID());
    EXPECT_TRUE(app.GetCmdInfo()->m_bShowSplash);
}

}  // namespace
}  // namespace navigator_test
