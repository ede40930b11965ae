#include "platform/UnixEnvironment.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "tests/platform/ToldUnixSide.h"
#include "text/PlatformText.h"

namespace {

using vapp_platform::GetUnixEnv;
using vapp_platform::PutUnixEnv;
using vapp_platform::SetUnixEnv;
using vapp_platform::UnsetUnixEnv;
using vapp_platform::World;

class UnixEnvironmentTest : public testing::Test {
protected:
    ~UnixEnvironmentTest() override {
        vapp_platform::SetWineAnswer(std::nullopt);
        vapp_platform::SetActiveCodePage(0);
    }

    TToldUnixSide m_side;
};

using TAsked = std::vector<std::string>;

TEST_F(UnixEnvironmentTest, ArgumentsArePassedOnAndTheAnswerGivenBack) {
    for (const int answer : {0, -1, 22}) {
        m_side.m_answer = answer;
        EXPECT_EQ(SetUnixEnv("N", "v", 0, World::Wine, m_side), answer);
        EXPECT_EQ(SetUnixEnv("N", "", 1, World::Wine, m_side), answer);
        EXPECT_EQ(UnsetUnixEnv("N", World::Wine, m_side), answer);
        EXPECT_EQ(PutUnixEnv("N=v", World::Wine, m_side), answer);
    }
    EXPECT_EQ(m_side.m_asked.size(), 12u);
    m_side.m_asked.resize(4);
    EXPECT_EQ(m_side.m_asked, (TAsked{"N|v|0", "N||1", "N", "N=v"}));
}

TEST_F(UnixEnvironmentTest, AValueIsReadInTheActiveCodePage) {
    m_side.m_value = "caf\xE9";
    vapp_platform::SetActiveCodePage(1252);
    EXPECT_EQ(GetUnixEnv("N", World::Wine, m_side), CStringU(u"caf\u00E9"));
    m_side.m_value = "caf\xC3\xA9";
    vapp_platform::SetActiveCodePage(vapp_platform::cnCodePageUtf8);
    EXPECT_EQ(GetUnixEnv("N", World::Wine, m_side), CStringU(u"caf\u00E9"));
    m_side.m_value = "";
    EXPECT_EQ(GetUnixEnv("N", World::Wine, m_side), "");
}

TEST_F(UnixEnvironmentTest, AWineWithoutTheServiceGivesThePlainAnswer) {
    m_side.m_hasVariables = false;
    m_side.m_value = "v";
    EXPECT_EQ(GetUnixEnv("N", World::Wine, m_side), "");
    EXPECT_EQ(SetUnixEnv("N", "v", 1, World::Wine, m_side), -1);
    EXPECT_EQ(UnsetUnixEnv("N", World::Wine, m_side), -1);
    EXPECT_EQ(PutUnixEnv("N=v", World::Wine, m_side), -1);
}

TEST_F(UnixEnvironmentTest, WindowsIsNotAsked) {
    m_side.m_value = "v";
    EXPECT_EQ(GetUnixEnv("N", World::Windows, m_side), "");
    EXPECT_EQ(SetUnixEnv("N", "v", 1, World::Windows, m_side), -1);
    EXPECT_EQ(UnsetUnixEnv("N", World::Windows, m_side), -1);
    EXPECT_EQ(PutUnixEnv("N=v", World::Windows, m_side), -1);
    EXPECT_EQ(m_side.m_asked, TAsked());
}

TEST_F(UnixEnvironmentTest, NullPointersAreRefused) {
    EXPECT_EQ(GetUnixEnv(nullptr, World::Wine, m_side), "");
    EXPECT_EQ(SetUnixEnv(nullptr, "v", 1, World::Wine, m_side), -1);
    EXPECT_EQ(SetUnixEnv("N", nullptr, 1, World::Wine, m_side), -1);
    EXPECT_EQ(UnsetUnixEnv(nullptr, World::Wine, m_side), -1);
    EXPECT_EQ(PutUnixEnv(nullptr, World::Wine, m_side), -1);
    EXPECT_EQ(m_side.m_asked, TAsked());
}

TEST_F(UnixEnvironmentTest, SettingOnPlainWindowsAnswersMinusOneAndChangesNothing) {
    vapp_platform::SetWineAnswer(false);
    const char* const name = "VAPP_TEST_PLAIN_WINDOWS";
    ASSERT_EQ(std::getenv(name), nullptr);
    EXPECT_EQ(gSetUnixEnv(name, "v", 1), -1);
    EXPECT_EQ(gPutUnixEnv("VAPP_TEST_PLAIN_WINDOWS=v"), -1);
    EXPECT_EQ(gUnsetUnixEnv("PATH"), -1);
    EXPECT_EQ(gGetUnixEnv("PATH"), "");
    EXPECT_EQ(std::getenv(name), nullptr);
    EXPECT_NE(std::getenv("PATH"), nullptr);
}

}  // namespace
